// Translates the training statements as programs do: quillet_train DIRECTORY.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "../bench/corpus.h"
#include "quillet.h"

namespace {

enum class way { classic, translate, remarks };

struct course {
    const char *builder;
    way call;
    int rounds;
};

// The two databases are what the library is for, in either way in.
constexpr course courses[] = {
    {"postgresql", way::classic, 20}, {"postgresql", way::translate, 20},
    {"postgresql", way::remarks, 10}, {"mysql", way::classic, 20},
    {"mysql", way::translate, 20},    {"mysql", way::remarks, 20},
    {"tree", way::classic, 2},        {"tree", way::translate, 2},
    {"type_view", way::classic, 2},   {"type_view", way::translate, 2},
};

int translated(const std::string &statement, int builder, way call) {
    if (call == way::classic) {
        char *text = nullptr;
        const int code = quillet_translate_query(statement.c_str(), &text, builder);
        std::free(text);
        return code;
    }
    quillet_options options{};
    options.size = sizeof options;
    options.least_severity = call == way::remarks ? QUILLET_NOTE : QUILLET_REFUSAL;
    quillet_translation *made =
        quillet_translate(statement.data(), statement.size(), builder, &options);
    const int code = made->code;
    quillet_translation_free(made);
    return code;
}

bool translate_all(const std::vector<std::string> &statements, const course &taken, int rounds) {
    const int builder = quillet_get_builder_id(taken.builder);
    for (int round = 0; round < rounds; ++round)
        for (const std::string &statement : statements)
            if (translated(statement, builder, taken.call) != QUILLET_SUCCESS) {
                std::fprintf(stderr, "%s: not translated: %s\n", taken.builder, statement.c_str());
                return false;
            }
    return true;
}

// What a program's user gets wrong: by quillet_translate alone, as the classic call keeps what it
// left unread.
void fail_all(const std::vector<std::string> &statements) {
    for (const char *builder : {"postgresql", "mysql"})
        for (const way call : {way::translate, way::remarks})
            for (const std::string &statement : statements)
                translated(statement, quillet_get_builder_id(builder), call);
}

// Statements as programs put them together from data.
std::vector<std::string> long_statements() {
    std::string columns = "select id";
    std::string values = "insert into card_index values (0";
    std::string wanted = "select title from card_index where shelf = 0";
    std::string text = "select signature";
    for (int i = 1; i <= 3000; ++i) {
        const std::string number = std::to_string(i);
        columns += ", field_" + number;
        values += i % 2 ? ", " + number : ", 'card " + number + "'";
        wanted += " or shelf = " + number;
        text += " || ' / ' || part_" + number;
    }
    return {columns + " from card_index", values + ")", wanted, text + " from card_index"};
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 2)
        return EXIT_FAILURE;
    const std::string directory = argv[1];
    const auto statements = quillet_bench::read_statements((directory + "/statements.sql").c_str());
    const auto refused = quillet_bench::read_statements((directory + "/refused.sql").c_str());
    const auto mistaken = quillet_bench::read_statements((directory + "/mistaken.sql").c_str());
    const auto generated = long_statements();

    quillet_init();
    for (const course &taken : courses)
        if (!translate_all(statements, taken, taken.rounds) || !translate_all(generated, taken, 1))
            return EXIT_FAILURE;
    fail_all(refused);
    fail_all(mistaken);
    quillet_done();
    std::puts("Trained"); // as the classic call may end a process with 0
}
