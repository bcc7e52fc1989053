#include "contender.h"

#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace quillet_bench {

namespace {

enum status { done = 0, refused = 1, misused = 2 };

using statement_list = std::vector<std::string>;

// What the thread has had of the processor: others that want it, too, do not count.
double thread_seconds() {
    std::timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

statement_list read_statements(const char *path) {
    std::ifstream input(path, std::ios::binary);
    statement_list statements;
    for (std::string statement; std::getline(input, statement, '\0');)
        statements.push_back(statement);
    return statements;
}

// A library may report an error on standard output: the answers alone go there.
std::FILE *take_standard_output() {
    std::FILE *answers = fdopen(dup(STDOUT_FILENO), "w");
    if (!answers || !std::freopen("/dev/null", "w", stdout))
        std::abort();
    return answers;
}

// The process's own: ru_maxrss knows the size of the process that started it too.
long peak_memory() {
    std::ifstream input("/proc/self/status");
    for (std::string line; std::getline(input, line);)
        if (line.starts_with("VmHWM:"))
            return std::atol(line.c_str() + line.find(':') + 1);
    return 0;
}

bool translate_all(const statement_list &statements, translation translate) {
    return std::ranges::all_of(
        statements, [=](const std::string &statement) { return translate(statement.c_str()); });
}

status accepts(std::FILE *answers, const statement_list &statements, translation translate) {
    for (const std::string &statement : statements)
        std::fprintf(answers, "%d\n", translate(statement.c_str()));
    return done;
}

status times(std::FILE *answers, const statement_list &statements, translation translate,
             double seconds) {
    if (!translate_all(statements, translate)) // the first time is another matter
        return refused;
    const double start = thread_seconds();
    std::size_t count = 0;
    std::size_t passes = 1;
    double elapsed = 0;
    do {
        for (std::size_t pass = 0; pass < passes; ++pass)
            translate_all(statements, translate);
        count += passes * statements.size();
        const double before = elapsed;
        elapsed = thread_seconds() - start;
        if (elapsed - before < seconds / 100) // to look at the clock takes longer than a short one
            passes *= 2;
    } while (elapsed < seconds);
    std::fprintf(answers, "%.4f\n", elapsed * 1e6 / static_cast<double>(count));
    return done;
}

status once(std::FILE *answers, const statement_list &statements, translation translate) {
    const double start = thread_seconds();
    const bool translated = translate_all(statements, translate);
    const double elapsed = thread_seconds() - start;
    if (!translated)
        return refused;
    std::fprintf(answers, "%.4f %ld\n", elapsed * 1e6, peak_memory());
    return done;
}

} // namespace

int run_contender(int argc, char **argv, translation translate) {
    const std::string_view command = argc > 1 ? argv[1] : "";
    if (argc != (command == "times" ? 4 : 3))
        return misused;
    const statement_list statements = read_statements(argv[2]);
    if (statements.empty())
        return misused;
    std::FILE *answers = take_standard_output();
    status result = misused;
    if (command == "accepts")
        result = accepts(answers, statements, translate);
    else if (command == "times")
        result = times(answers, statements, translate, std::atof(argv[3]));
    else if (command == "once")
        result = once(answers, statements, translate);
    std::fclose(answers);
    return result;
}

} // namespace quillet_bench
