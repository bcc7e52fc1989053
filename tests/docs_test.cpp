// docs/mysql.md says what the code does: every row of the tables behind the builder stands in it.
// So does docs/migrating.md of what is refused.

#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include "quillet_mysql_arithmetic.h"
#include "quillet_mysql_rendering.h"

namespace {

using namespace quillet;
using namespace quillet::mysql;
using namespace quillet::rows;
using enum quillet::arguments;
using enum quillet::mysql::reason;

struct operator_row {
    const char *name;
    operator_rule rule;
};

const operator_row operators[] = {
#define OPERATOR(name, ...) {#name, __VA_ARGS__},
#include "quillet_mysql_slots.def"
};

struct function_row {
    const char *name;
    function_rule rule;
};

const function_row functions[] = {
#define FUNCTION(name, ...) {#name, __VA_ARGS__},
#include "quillet_mysql_slots.def"
};

// The type of a call whose type does not depend on its arguments.
std::string default_type(const std::string &function) {
    const node_function_call call{};
#define FUNCTION(name, rule)                                                                       \
    if (function == #name)                                                                         \
        return quillet_type_to_string(quillet_get_result_type_function_##rule(&call));
#include "quillet_functions.def"
    return "no function";
}

std::string page(const char *name = "mysql.md") {
    std::ifstream file(std::string(DOCS_DIRECTORY "/") + name);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::string cell(const std::string &text) { return text.empty() ? "refused" : "`" + text + "`"; }

std::string quoted(const text_template &text) { return std::string("`") + text.text + "`"; }

const std::string fields[] = {
#define FIELD(name, text, interval_text, mask)                                                     \
    "\n| " #name " | " + cell(text) + " | " + cell(interval_text) + " | " + cell(mask) + " |\n",
#include "quillet_mysql_fields.def"
};

} // namespace

TEST(MysqlPage, HoldsEveryTextAndField) {
    const std::string text = page();
    const auto expect = [&](const std::string &row) {
        EXPECT_NE(text.find(row), std::string::npos) << row;
    };
    for (const auto &[name, rule] : operators) {
        if (rule.text.count)
            expect(" | " + quoted(rule.text) + " | ");
        if (rule.is_truth_test())
            expect(" | " + quoted(rule.by_truth[0]) + ", " + quoted(rule.by_truth[1]) + ", " +
                   quoted(rule.by_truth[2]) + " |");
        for (const typed_text &row : rule.by_types)
            if (row.text.count)
                expect(quoted(row.text));
    }
    for (const auto &[name, rule] : functions)
        if (rule.text.count)
            expect(std::string("\n| ") + name + " | " + quoted(rule.text) + " | " +
                   default_type(name) + " |");
    for (const std::string &row : fields)
        expect(row);
}

// Each warning and note stands beside what it is about, and leads to its section.
TEST(MysqlPage, LinksEveryWarningAndNoteAndNoOther) {
    const std::set<std::string> known = {
#define NOTICE(name, severity, id, message, hint) id,
#include "quillet_mysql_notices.def"
    };
    const std::string text = page();
    const std::regex link(R"(\[([a-z-]+)\]\(differences\.md#([a-z-]+)\))");
    std::set<std::string> linked;
    for (std::sregex_iterator found(text.begin(), text.end(), link), end; found != end; ++found) {
        EXPECT_EQ((*found)[1], (*found)[2]);
        linked.insert((*found)[1]);
    }
    EXPECT_EQ(linked, known);
}

TEST(MysqlPage, HoldsEveryRefusal) {
    const std::string text = page();
    const auto expect_row = [&](int code, const char *sentence) {
        std::ostringstream begin;
        begin << "\n| " << code << " | ";
        const std::size_t row = text.find(begin.str());
        ASSERT_NE(row, std::string::npos) << code;
        const std::string line = text.substr(row + 1, text.find('\n', row + 1) - row - 1);
        EXPECT_TRUE(line.ends_with(std::string(" | ") + sentence + " |")) << line;
    };
#define ERROR(name, code, text, hint)                                                              \
    if (code != 0)                                                                                 \
        expect_row(code, text);
#include "quillet_mysql_errors.def"
}

// Each reason has a section, with its sentence and what to write instead.
TEST(MigratingPage, HoldsEveryRefusal) {
    const std::string text = page("migrating.md");
    const auto expect_section = [&](std::string name, const char *sentence) {
        for (char &c : name)
            c = c == '_' ? '-' : static_cast<char>(std::tolower(c));
        const std::string heading = "\n### refused-" + name + "\n\n";
        const std::size_t begin = text.find(heading);
        ASSERT_NE(begin, std::string::npos) << name;
        const std::size_t end = text.find("\n##", begin + 1);
        std::string section = text.substr(begin, end - begin);
        std::erase(section, '\\');
        EXPECT_NE(section.find(heading + sentence), std::string::npos) << section;
        EXPECT_NE(section.find("```text\n"), std::string::npos) << section;
    };
#define ERROR(name, code, text, hint)                                                              \
    if (code != 0)                                                                                 \
        expect_section(#name, text);
#include "quillet_mysql_errors.def"
}

TEST(MysqlPage, NamesEveryRefusedOrOwnOperatorAndFunction) {
    const std::string text = page();
    const auto expect_name = [&](const std::string &name) {
        EXPECT_NE(text.find(name), std::string::npos) << name;
    };
    for (const auto &[name, rule] : operators)
        if (!rule.refusal && rule.by_types.empty())
            expect_name(std::string("\n| ") + name + " | `");
    for (const auto &[name, rule] : functions) {
        if (rule.is_reserved)
            expect_name(std::string("`") + name + "`");
        else if (rule.refusal)
            expect_name(std::string("| `") + name + "(…)` |");
        else
            expect_name(name);
    }
}
