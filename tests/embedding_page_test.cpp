// docs/embedding.md lists every diagnostic that there is: its tables are those of the code.

#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "quillet.hpp"
#include "quillet_findings.h"
#include "quillet_mysql_errors.h"

namespace {

constexpr const char *no_hint = nullptr;

std::string page(const std::string &name) {
    std::ifstream file(DOCS_DIRECTORY "/" + name);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

// A text as a table's cell, in which some characters are marks.
std::string cell(const char *text) {
    std::string escaped;
    for (const char c : std::string_view(text ? text : "")) {
        if (std::string_view("|*_<[").find(c) != std::string_view::npos)
            escaped += '\\';
        escaped += c;
    }
    return escaped;
}

std::string name_of(int severity) {
    constexpr const char *names[] = {"note", "warning", "refusal", "error"};
    return names[severity];
}

std::string row_of(const quillet::notice &what) {
    const std::string message = what.message ? cell(what.message) : "depends on the statement";
    return std::string("| `") + what.id + "` | " + name_of(what.severity) + " | " + message +
           " | " + cell(what.hint) + " |";
}

std::string id_of(std::string_view reason) {
    std::string id = "refused-";
    for (const char c : reason)
        id += c == '_' ? '-' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return id;
}

std::string row_of(std::string_view reason, int code, const char *hint) {
    if (reason == "TO_CHAR_FORMAT") // refuses with the code of another one
        code = static_cast<int>(quillet::mysql::reason::DEFAULT_VALUE);
    return "| `" + id_of(reason) + "` | " + std::to_string(code) + " | " + cell(hint) + " |";
}

// The rows that must stand on the page.
std::multiset<std::string> rows() {
    return {
#define NOTICE(name, severity, id, message, hint) row_of({severity, 0, id, message, hint}),
#include "quillet_notices.def"
#define ERROR(name, code, text, hint) row_of(#name, code, hint),
#include "quillet_mysql_errors.def"
    };
}

// The rows that do: those that begin with a text in words, of small letters and hyphens.
std::multiset<std::string> shown_rows() {
    std::multiset<std::string> found;
    std::istringstream lines(page("embedding.md"));
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind("| `", 0) != 0)
            continue;
        const std::size_t end = line.find_first_not_of("abcdefghijklmnopqrstuvwxyz-", 3);
        if (line.compare(end, 1, "`") == 0)
            found.insert(line);
    }
    return found;
}

// A warning or note of a builder, as a row that leads to the section of its id.
std::string linked_row(const std::string &anchor, int severity, const std::string &id) {
    return "| [`" + id + "`](differences.md#" + anchor + id + ") | " + name_of(severity) + " |";
}

// The rows of the warnings and notes, in the order of the lists.
std::vector<std::string> linked_rows() {
    return {
#define NOTICE(name, severity, id, message, hint) linked_row("", severity, id),
#include "quillet_mysql_notices.def"
#define NOTICE(name, severity, id, message, hint) linked_row("postgresql-", severity, id),
#include "quillet_postgresql_notices.def"
    };
}

// The rows of a page that begin so.
std::vector<std::string> lines_of(const std::string &text, std::string_view begin) {
    std::vector<std::string> found;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        if (line.rfind(begin, 0) == 0)
            found.push_back(line);
    return found;
}

// How the section of a warning or note begins.
std::string section_of(const std::string &title, int severity, std::string message) {
    message.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(message.front())));
    std::string shown_severity = name_of(severity);
    shown_severity.front() =
        static_cast<char>(std::toupper(static_cast<unsigned char>(shown_severity.front())));
    return "\n### " + title + "\n\n**" + shown_severity + ".** " + cell(message.c_str()) + ".";
}

} // namespace

TEST(EmbeddingPage, HoldsEveryWarningAndNoteAndNoOther) {
    EXPECT_EQ(lines_of(page("embedding.md"), "| [`"), linked_rows());
    EXPECT_GT(linked_rows().size(), 60);
}

// The page that the rows lead to is written from the same lists.
TEST(EmbeddingPage, LeadsToSectionsThatExist) {
    const std::string text = page("differences.md");
    const std::vector<std::string> sections = {
#define NOTICE(name, severity, id, message, hint) section_of(id, severity, message),
#include "quillet_mysql_notices.def"
#define NOTICE(name, severity, id, message, hint)                                                  \
    section_of(std::string("postgresql ") + id, severity, message),
#include "quillet_postgresql_notices.def"
    };
    for (const std::string &section : sections)
        EXPECT_NE(text.find(section), std::string::npos) << section;
    EXPECT_EQ(lines_of(text, "### ").size(), sections.size());
}

TEST(EmbeddingPage, HoldsEveryDiagnosticAndNoOther) {
    std::multiset<std::string> expected = rows();
    expected.erase(row_of("NONE", 0, no_hint)); // no reason
    const std::multiset<std::string> found = shown_rows();
    for (const std::string &row : expected)
        EXPECT_EQ(found.count(row), expected.count(row)) << row;
    for (const std::string &row : found)
        EXPECT_TRUE(expected.contains(row)) << row;
    EXPECT_GT(found.size(), 50);
}

TEST(EmbeddingPage, HoldsTheCodeThatAFormatIsRefusedWith) {
    const auto made = quillet::translate("select to_char(now(), 'Q')", quillet::target::mysql);
    ASSERT_EQ(made.diagnostics().size(), 1);
    const quillet::diagnostic found = made.diagnostics()[0];
    EXPECT_EQ(found.id, "refused-to-char-format");
    const std::string hint(found.hint.value());
    EXPECT_EQ(shown_rows().count(row_of("TO_CHAR_FORMAT", found.code, hint.c_str())), 1);
    EXPECT_EQ(found.code, -38);
}

// The hints that depend on a character.
TEST(EmbeddingPage, HoldsTheHintsForUnknownCharacters) {
    const std::string text = page("embedding.md");
    for (int byte = 1; byte < 256; ++byte) {
        const std::string statement = std::string("select ") + static_cast<char>(byte);
        const auto made = quillet::translate(statement, quillet::target::postgresql);
        for (const quillet::diagnostic &each : made.diagnostics()) {
            if (each.id == "unknown-character" && each.hint) {
                EXPECT_NE(text.find('`' + statement.substr(7) + '`'), std::string::npos)
                    << statement;
                EXPECT_NE(text.find(*each.hint), std::string::npos) << *each.hint;
            }
        }
    }
}
