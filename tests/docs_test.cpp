// docs/mysql.md says what the code does: every row of the tables behind the builder stands in it.

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

namespace {

std::string page() {
    std::ifstream file(DOCS_DIRECTORY "/mysql.md");
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::string cell(const std::string &text) { return text.empty() ? "refused" : "`" + text + "`"; }

const std::string rows[] = {
#define OPERATOR_TEXT(name, text, rule) std::string(" | `") + text + "` |\n",
#define FUNCTION_TEXT(name, needs, text, type)                                                     \
    std::string("\n| " #name " | `") + text + "` | " #type " |\n",
#include "quillet_mysql_slots.def"
#define FIELD(name, text, interval_text, mask)                                                     \
    "\n| " #name " | " + cell(text) + " | " + cell(interval_text) + " | " + cell(mask) + " |\n",
#include "quillet_mysql_fields.def"
};

} // namespace

TEST(MysqlPage, HoldsEveryTextAndField) {
    const std::string text = page();
    for (const std::string &row : rows)
        EXPECT_NE(text.find(row), std::string::npos) << row;
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
#define ERROR(name, code, text)                                                                    \
    if (code != 0)                                                                                 \
        expect_row(code, text);
#include "quillet_mysql_errors.def"
}

TEST(MysqlPage, NamesEveryRefusedOrOwnOperatorAndFunction) {
    const std::string text = page();
    const auto expect_name = [&](const std::string &name) {
        EXPECT_NE(text.find(name), std::string::npos) << name;
    };
#define OPERATOR_TEXT(name, text, rule) expect_name("\n| " #name " | `");
#define OPERATOR_PICK(name, function) expect_name("\n| " #name " | `");
#define OPERATOR_OWN(name, function) expect_name("\n| " #name " | `");
#define FUNCTION_OWN(name, function) expect_name(#name);
#define FUNCTION_REFUSED(name, error) expect_name("| `" #name "(…)` |");
#define FUNCTION_RESERVED(name, error) expect_name("`" #name "`");
#include "quillet_mysql_slots.def"
}
