// README.md lists what is not read: each of its examples is a syntax error.

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "quillet.hpp"

namespace {

// The statements in the second column of the table.
std::vector<std::string> statements_not_read() {
    std::vector<std::string> statements;
    std::ifstream page(DOCS_DIRECTORY "/../README.md");
    bool is_in_table = false;
    for (std::string line; std::getline(page, line);) {
        is_in_table = line.starts_with(is_in_table ? "|" : "| not read |");
        const std::size_t begin = line.find("| `");
        if (is_in_table && begin != std::string::npos)
            statements.push_back(line.substr(begin + 3, line.size() - begin - 6));
    }
    return statements;
}

TEST(Readme, ListsWhatIsNotRead) {
    const std::vector<std::string> statements = statements_not_read();
    EXPECT_EQ(statements.size(), 23U);
    for (const std::string &statement : statements) {
        const auto made = quillet::translate(statement, quillet::target::postgresql);
        EXPECT_EQ(made.code(), QUILLET_INVALID_QUERY) << statement;
    }
}

} // namespace
