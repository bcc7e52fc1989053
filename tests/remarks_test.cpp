// Each warning and note by its example in truth/examples.txt: the statement carries it and what is
// to be written instead does not. What the servers make of them is the truth test's part.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "quillet.hpp"
#include "quillet_mysql_remarks.h"
#include "quillet_postgresql_remarks.h"
#include "support.h"

namespace {

struct example {
    std::string builder;
    std::string id;
    std::vector<std::string> statements; // the one that carries it, then the others
};

std::vector<std::string> taken_apart(const std::string &line) {
    std::vector<std::string> statements;
    std::size_t begin = 0;
    for (std::size_t end = 0; (end = line.find("; ", begin)) != std::string::npos; begin = end + 2)
        statements.push_back(line.substr(begin, end - begin));
    statements.push_back(line.substr(begin));
    return statements;
}

std::vector<example> examples() {
    std::ifstream file(EXAMPLES);
    std::vector<example> all;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.starts_with("--"))
            continue;
        if (!line.starts_with("    ")) {
            const std::size_t blank = line.find(' ');
            all.push_back({line.substr(0, blank), line.substr(blank + 1), {}});
        } else if (line != "    (recommended settings)") {
            for (const std::string &statement : taken_apart(line.substr(4)))
                all.back().statements.push_back(statement);
        }
    }
    return all;
}

bool carries(const std::string &statement, const example &shown) {
    const auto made = quillet::translate(statement, quillet_get_builder_id(shown.builder.c_str()));
    return std::ranges::any_of(made.diagnostics(),
                               [&](const auto &each) { return each.id == shown.id; });
}

TEST(Remarks, AreCarriedByTheirExamples) {
    for (const example &shown : examples()) {
        ASSERT_FALSE(shown.statements.empty()) << shown.id;
        EXPECT_TRUE(carries(shown.statements.front(), shown)) << shown.statements.front();
        for (std::size_t i = 1; i < shown.statements.size(); ++i)
            EXPECT_FALSE(carries(shown.statements[i], shown)) << shown.statements[i];
    }
}

TEST(Remarks, HaveAnExampleEach) {
    std::set<std::string> listed;
#define NOTICE(name, severity, id, message, hint) listed.insert(std::string("mysql ") + (id));
#include "quillet_mysql_notices.def"
#define NOTICE(name, severity, id, message, hint) listed.insert(std::string("postgresql ") + (id));
#include "quillet_postgresql_notices.def"
    std::set<std::string> shown;
    for (const example &each : examples())
        shown.insert(each.builder + ' ' + each.id);
    EXPECT_EQ(shown, listed);
}

// The classic call's texts are the texts of quillet_translate, whatever is remarked.
TEST(Remarks, ChangeNoText) {
    quillet_tests::reset_scanner();
    for (const example &shown : examples())
        for (const std::string &statement : shown.statements) {
            char *text = nullptr;
            const int id = quillet_get_builder_id(shown.builder.c_str());
            const int code = quillet_translate_query(statement.c_str(), &text, id);
            const auto made = quillet::translate(statement, id);
            EXPECT_EQ(made.code(), code) << statement;
            EXPECT_EQ(made.text(), text ? text : "") << statement;
            std::free(text);
        }
}

// The statements of the benchmark, by either way in.
TEST(Remarks, ChangeNoTextOfAnyBuilder) {
    quillet_tests::reset_scanner();
    std::ifstream file(STATEMENTS);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    for (std::size_t begin = 0, end = 0; (end = text.find(';', begin)) != std::string::npos;
         begin = end + 1)
        for (int id = 0; id < quillet_get_builder_count(); ++id) {
            const std::string statement = text.substr(begin, end - begin);
            char *classic = nullptr;
            EXPECT_EQ(quillet_translate_query(statement.c_str(), &classic, id), 0) << statement;
            EXPECT_EQ(quillet::translate(statement, id).text(), classic ? classic : "");
            std::free(classic);
        }
}

} // namespace
