// README.md lists what is not read: each of its examples is a syntax error, and docs/migrating.md
// says what to write instead.

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "quillet.hpp"

namespace {

// The cells in this column of the table that are not empty, without their backquotes.
std::vector<std::string> cells_of_what_is_not_read(int column) {
    std::vector<std::string> cells;
    std::ifstream page(DOCS_DIRECTORY "/../README.md");
    bool is_in_table = false;
    for (std::string line; std::getline(page, line);) {
        const bool is_heading = line.starts_with("| not read |");
        is_in_table = is_heading || (is_in_table && line.starts_with('|'));
        if (!is_in_table || is_heading || line.starts_with("|---"))
            continue;
        std::size_t begin = 1;
        for (int passed = 0; passed < column; ++passed)
            begin = line.find('|', begin) + 1;
        const std::size_t end = column ? line.size() - 1 : line.find('|', begin);
        std::string cell = line.substr(begin, end - begin);
        std::erase(cell, '`');
        const std::size_t first = cell.find_first_not_of(' ');
        if (first != std::string::npos)
            cells.push_back(cell.substr(first, cell.find_last_not_of(' ') + 1 - first));
    }
    return cells;
}

TEST(Readme, ListsWhatIsNotRead) {
    const std::vector<std::string> statements = cells_of_what_is_not_read(1);
    EXPECT_EQ(statements.size(), 23U);
    for (const std::string &statement : statements) {
        const auto made = quillet::translate(statement, quillet::target::postgresql);
        EXPECT_EQ(made.code(), QUILLET_INVALID_QUERY) << statement;
    }
}

TEST(Readme, ListsWhatMigratingHasARewriteFor) {
    std::vector<std::string> headings;
    std::ifstream page(DOCS_DIRECTORY "/migrating.md");
    for (std::string line; std::getline(page, line);) {
        if (line.starts_with("## "))
            headings.clear();
        if (line.starts_with("### "))
            headings.push_back(line.substr(4));
    }
    EXPECT_EQ(headings, cells_of_what_is_not_read(0));
}

} // namespace
