// Runs the cases of golden/*.test, one test per case; golden/README.md describes their format.
#include "quillet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "host_builder.h"
#include "quillet_parser.h"
#include "translation_checks.h"

extern "C" {
int yy_quillet_lex_destroy(void);
extern int32_t mysql_error_code __attribute__((weak));
}

namespace {

// What some builders give for the statement of a case.
struct section {
    int line;
    std::vector<std::string> builders;
    std::string outcome; // empty for a success, else what follows the colon of the heading
    std::string body;    // its lines, each with its newline
};

struct golden_case {
    std::string file;
    int line;
    std::string title;
    std::string statement;
    std::string printed; // on standard output, with a success
    std::vector<section> sections;
    std::string fault; // why the case cannot be read, empty if it can
};

constexpr std::string_view builder_names[] = {"postgresql", "type_view", "tree", "mysql"};

std::string without_final_newline(std::string text) {
    if (text.ends_with('\n'))
        text.pop_back();
    return text;
}

// Reads the cases of a file line by line. A fault makes a case of its own, and goes on with the
// next heading.
class golden_reader {
public:
    explicit golden_reader(const std::filesystem::path &path) : file(path.string()) {
        std::ifstream input(path);
        if (!input)
            fail("cannot be opened");
        for (std::string text; std::getline(input, text);) {
            ++line;
            read(text);
        }
        end_case();
        if (cases.empty())
            fail("there is no case");
    }

    std::vector<golden_case> cases;

private:
    void read(const std::string &text) {
        if (text.starts_with("==="))
            begin_case(text);
        else if (text.starts_with("---"))
            begin_section(text);
        else if (body)
            *body += text + '\n';
        else if (!text.empty() && !text.starts_with('#'))
            fail("neither a comment nor a heading");
    }

    void begin_case(const std::string &heading) {
        if (body && body->ends_with("\n\n"))
            body->pop_back(); // the separator
        else if (body && *body == "\n")
            body->clear();
        end_case();
        current = {file, line, heading.substr(std::min<std::size_t>(4, heading.size())), "", "",
                   {},   ""};
        if (!heading.starts_with("=== ") || current.title.empty()) {
            current.title = "line " + std::to_string(line);
            current.fault = "a case without a title";
        }
        body = &current.statement;
    }

    void begin_section(const std::string &heading) {
        if (!body)
            return fail("a section outside a case");
        const std::size_t colon = std::min(heading.find(':'), heading.size());
        std::istringstream words(heading.substr(3, colon - 3));
        section next{line, {}, "", ""};
        for (std::string word; words >> word;)
            next.builders.push_back(word);
        if (colon < heading.size())
            next.outcome =
                heading.substr(std::min(heading.find_first_not_of(' ', colon + 1), heading.size()));
        if (!heading.starts_with("--- ") || next.builders.empty())
            return fail("a section without a builder");
        if (colon < heading.size() && next.outcome.empty())
            return fail("a colon without an outcome");
        if (next.outcome.empty() && next.builders == std::vector<std::string>{"printed"}) {
            body = &current.printed;
            return;
        }
        if (next.builders == std::vector<std::string>{"all"})
            next.builders.assign(std::begin(builder_names), std::end(builder_names));
        for (const std::string &name : next.builders) {
            if (std::ranges::find(builder_names, name) == std::end(builder_names))
                return fail("there is no builder " + name);
            if (!seen.insert(name).second)
                return fail("a second section for " + name);
        }
        current.sections.push_back(next);
        body = &current.sections.back().body;
    }

    void end_case() {
        if (body) {
            current.statement = without_final_newline(current.statement);
            if (current.sections.empty() && current.fault.empty())
                current.fault = "a case without a section";
            cases.push_back(current);
        }
        body = nullptr;
        seen.clear();
    }

    void fail(const std::string &fault) {
        cases.push_back({file, line, "malformed line " + std::to_string(line), "", "", {}, fault});
    }

    std::string file;
    int line = 0;
    golden_case current;
    std::set<std::string> seen;  // the builders that the current case has sections for
    std::string *body = nullptr; // where lines go; NULL before the first case
};

// A translation as a section tells it.
struct translation {
    std::string outcome;
    std::string text;
    std::string printed;

    bool operator==(const translation &) const = default;
};

void reset_library() {
    quillet_init();
    yy_quillet_lex_destroy();
    quillet_comment_count = 0;
    if (&mysql_error_code)
        mysql_error_code = 0;
}

// An unknown character ends the process as if all were well, which no test may do unseen.
bool translating = false;

void end_unseen() {
    if (!translating)
        return;
    std::fputs("A golden case ended the process.\n", stderr);
    std::_Exit(EXIT_FAILURE);
}

translation translate(const std::string &statement, const std::string &builder) {
    reset_library();
    char *output = nullptr;
    testing::internal::CaptureStdout();
    translating = true;
    const int code = quillet_translate_query(statement.c_str(), &output,
                                             quillet_get_builder_id(builder.c_str()));
    translating = false;
    translation result;
    result.printed = testing::internal::GetCapturedStdout();
    if (output)
        result.text = output;
    std::free(output);
    if (code) {
        result.outcome = std::to_string(code) + ' ' + quillet_get_error_description();
        if (const int detail = quillet_get_detailed_error_code())
            result.printed += "detail " + std::to_string(detail) + ' ' +
                              quillet_get_detailed_error_description() + '\n';
    }
    return result;
}

// What quillet_translate makes, which must print nothing, and leave what the classic calls left.
quillet_tests::owned_translation translate_freely(const std::string &statement,
                                                  const std::string &builder) {
    const std::string description = quillet_get_error_description();
    const int detail = quillet_get_detailed_error_code();
    const int depth = quillet_comment_count;
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    translating = true;
    auto made = quillet_tests::translated(statement, quillet_get_builder_id(builder.c_str()));
    translating = false;
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(quillet_get_error_description(), description);
    EXPECT_EQ(quillet_get_detailed_error_code(), detail);
    EXPECT_EQ(quillet_comment_count, depth);
    return made;
}

// Runs a translation that ends the process, with its standard output where the test sees it.
[[noreturn]] void translate_to_the_end(const std::string &statement, const std::string &builder) {
    reset_library();
    dup2(STDERR_FILENO, STDOUT_FILENO);
    char *output = nullptr;
    quillet_translate_query(statement.c_str(), &output, quillet_get_builder_id(builder.c_str()));
    std::_Exit(EXIT_FAILURE);
}

constexpr std::string_view ending = "exit 0";

// What a section says: the code, which is that of an invalid query where the classic call ends the
// process; the text; the builder's reason; and whether a token does not fit.

int code_of(const section &expected) {
    if (expected.outcome == ending)
        return QUILLET_INVALID_QUERY;
    return expected.outcome.empty() ? QUILLET_SUCCESS : std::stoi(expected.outcome);
}

std::string text_of(const section &expected, const std::string &builder) {
    if (!expected.outcome.empty())
        return "";
    const bool own_newline = builder == "tree";
    return own_newline ? expected.body : without_final_newline(expected.body);
}

int detail_of(const section &expected) {
    constexpr std::string_view heading = "detail ";
    const std::size_t found =
        expected.outcome.empty() ? std::string::npos : expected.body.find(heading);
    return found == std::string::npos ? 0 : std::stoi(expected.body.substr(found + heading.size()));
}

bool is_syntax_error(const section &expected) {
    return !expected.outcome.empty() &&
           expected.body.find("Error: syntax error\n") != std::string::npos;
}

class golden_test : public testing::Test {
public:
    explicit golden_test(const golden_case &golden) : tested(golden) {}

    void TestBody() override {
        if (!tested.fault.empty()) {
            ADD_FAILURE_AT(tested.file.c_str(), tested.line) << tested.fault;
            return;
        }
        for (const section &expected : tested.sections)
            for (const std::string &builder : expected.builders) {
                const testing::ScopedTrace trace(tested.file.c_str(), expected.line, builder);
                check(expected, builder);
            }
    }

private:
    void check(const section &expected, const std::string &builder) {
        check_classic(expected, builder);
        check_free(expected, builder);
        SCOPED_TRACE("through a host's operations");
        quillet_init(); // which a host calls before it changes a builder
        const quillet_tests::hosted host(quillet_get_builder_id(builder.c_str()));
        check_free(expected, builder);
    }

    void check_classic(const section &expected, const std::string &builder) {
        if (expected.outcome == ending) {
            EXPECT_EXIT(translate_to_the_end(tested.statement, builder),
                        testing::ExitedWithCode(EXIT_SUCCESS), testing::StrEq(expected.body));
            return;
        }
        const translation actual = translate(tested.statement, builder);
        {
            const quillet_tests::hosted host(quillet_get_builder_id(builder.c_str()));
            EXPECT_EQ(translate(tested.statement, builder), actual)
                << "through a host's operations";
        }
        const bool success = expected.outcome.empty();
        EXPECT_EQ(actual.outcome, expected.outcome);
        EXPECT_EQ(actual.printed, success ? tested.printed : expected.body);
        if (success) {
            EXPECT_EQ(actual.text, text_of(expected, builder));
        }
    }

    // Checks quillet_translate against what the section says of the classic call.
    void check_free(const section &expected, const std::string &builder) {
        const auto made = translate_freely(tested.statement, builder);
        SCOPED_TRACE("quillet_translate: " + quillet_tests::shown(*made));
        EXPECT_STREQ(quillet_tests::fault_of(*made, tested.statement), nullptr);
        EXPECT_EQ(made->code, code_of(expected));
        EXPECT_EQ(quillet_tests::is_unscannable(*made), expected.outcome == ending);
        EXPECT_EQ(quillet_tests::has_id(*made, "syntax-error"), is_syntax_error(expected));
        if (const int detail = detail_of(expected)) {
            EXPECT_TRUE(quillet_tests::has_diagnostic(*made, [&](const quillet_diagnostic &each) {
                return each.severity == QUILLET_REFUSAL && each.code == detail;
            }));
        }
        EXPECT_EQ(made->text ? made->text : "", text_of(expected, builder));
    }

    const golden_case &tested;
};

// The test's name: letters, digits and single underscores.
std::string test_name(const golden_case &tested) {
    std::string name;
    for (const char letter : tested.title) {
        if (std::isalnum(static_cast<unsigned char>(letter)))
            name += letter;
        else if (!name.empty() && !name.ends_with('_'))
            name += '_';
    }
    while (name.ends_with('_'))
        name.pop_back();
    return std::filesystem::path(tested.file).stem().string() + '/' + name;
}

std::vector<golden_case> read_cases() {
    std::set<std::filesystem::path> files;
    for (const auto &entry : std::filesystem::directory_iterator(GOLDEN_DIRECTORY))
        if (entry.path().extension() == ".test")
            files.insert(entry.path());
    std::vector<golden_case> cases;
    for (const auto &file : files)
        std::ranges::move(golden_reader(file).cases, std::back_inserter(cases));
    return cases;
}

bool register_cases() {
    static const std::vector<golden_case> cases = [] {
        std::vector<golden_case> read = read_cases();
        std::set<std::string> names;
        for (golden_case &tested : read)
            if (!names.insert(test_name(tested)).second) {
                tested.fault = "a second case with the title " + tested.title;
                tested.title += " line " + std::to_string(tested.line);
            }
        return read;
    }();
    for (const golden_case &tested : cases)
        testing::RegisterTest("Golden", test_name(tested).c_str(), nullptr, nullptr,
                              tested.file.c_str(), tested.line,
                              [&tested]() -> testing::Test * { return new golden_test(tested); });
    std::atexit(end_unseen);
    return true;
}

[[maybe_unused]] const bool registered = register_cases();

} // namespace
