// docs/scripts.md describes all that there is: ids, placeholders, options and fields of JSON.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "finding.h"
#include "placeholders.h"
#include "process.h"

namespace {

std::string page() {
    std::ifstream file(DOCS_DIRECTORY "/scripts.md");
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

// The rows of the table whose heading begins so.
std::vector<std::string> rows_below(std::string_view heading) {
    std::vector<std::string> found;
    std::istringstream lines(page());
    std::string line;
    while (std::getline(lines, line) && !line.starts_with(heading))
        ;
    std::getline(lines, line); // |---|
    while (std::getline(lines, line) && line.starts_with('|'))
        found.push_back(line);
    return found;
}

// A text as a table's cell, in which some characters are marks.
std::string cell(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        if (std::string_view("|*_<[").find(c) != std::string_view::npos)
            escaped += '\\';
        escaped += c;
    }
    return escaped;
}

std::string row_of(const script::own_finding &own) {
    return "| `" + std::string(own.id) + "` | " + std::string(script::name_of(own.severity)) +
           " | " + cell(own.message) + " | " + cell(own.hint) + " |";
}

std::string row_of(const script::placeholder_row &style) {
    const bool has_number = style.style == script::placeholder_style::dollar;
    return "| `" + std::string(style.name) + "` | `" + std::string(style.example) + "` | its " +
           (style.is_named ? "name"
            : has_number   ? "number"
                           : "place") +
           " |";
}

// What an expression's first group matches, in each match.
std::vector<std::string> all_in(const std::string &text, const char *expression) {
    const std::regex pattern(expression);
    std::vector<std::string> found;
    for (std::sregex_iterator each(text.begin(), text.end(), pattern), end; each != end; ++each)
        found.push_back((*each)[1]);
    return found;
}

TEST(ScriptsPage, HoldsEveryIdOfScripts) {
    std::vector<std::string> rows;
    for (const script::own_finding *own : script::own_findings)
        rows.push_back(row_of(*own));
    EXPECT_EQ(rows_below("| id | severity | message"), rows);
}

TEST(ScriptsPage, HoldsEveryStyleOfPlaceholders) {
    std::vector<std::string> rows;
    for (const script::placeholder_row &style : script::placeholder_rows)
        rows.push_back(row_of(style));
    EXPECT_EQ(rows_below("| style | placeholder"), rows);
}

TEST(ScriptsPage, HoldsEveryOption) {
    const std::vector<std::string> shown = all_in(page(), "(--[a-z-]+)");
    const std::vector<std::string> options = all_in(run({{"--help"}}).output, "(--[a-z-]+)");
    EXPECT_GT(options.size(), 15);
    for (const std::string &option : options) {
        if (option != "--help" && option != "--version") {
            EXPECT_THAT(shown, testing::Contains(option));
        }
    }
}

TEST(ScriptsPage, HoldsEveryFieldOfJson) {
    std::string shown;
    for (const char *heading : {"| field | |", "| field of a diagnostic"})
        for (const std::string &row : rows_below(heading))
            shown += row.substr(0, row.find('|', 1));
    const std::string input = R"lines({"id": 1, "statement": "select initcap(a)"})lines";
    const std::string line = run({{"--input", "json"}, input}).output;
    const std::vector<std::string> fields = all_in(line, "\"([a-z]+)\":");
    EXPECT_GT(fields.size(), 15);
    for (const std::string &field : fields)
        EXPECT_THAT(shown, testing::HasSubstr('`' + field + '`'));
}

} // namespace
