#include "corpus.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace quillet_bench {

std::vector<std::string> read_statements(const char *path) {
    std::ifstream input(path);
    std::vector<std::string> statements;
    std::string statement;
    for (std::string line; std::getline(input, line);) {
        if (line.empty())
            continue;
        const bool last = line.back() == ';';
        if (last)
            line.pop_back();
        statement += statement.empty() ? line : '\n' + line;
        if (last) {
            statements.push_back(statement);
            statement.clear();
        }
    }
    if (statements.empty()) {
        std::fprintf(stderr, "%s holds no statement\n", path);
        std::exit(EXIT_FAILURE);
    }
    return statements;
}

std::size_t size_of(const std::vector<std::string> &statements) {
    std::size_t size = 0;
    for (const std::string &statement : statements)
        size += statement.size();
    return size;
}

const std::vector<shape> lists_and_chains = {
    {"columns", "select ", "a", ", ", " from t"},
    {"tables", "select * from ", "t", ", ", ""},
    {"joins", "select * from t ", "join u on a = b", " ", ""},
    {"values", "insert into t values (", "1", ", ", ")"},
    {"assignments", "update t set ", "a = 1", ", ", ""},
    {"group keys", "select a from t group by ", "a", ", ", ""},
    {"sort keys", "select a from t order by ", "a", ", ", ""},
    {"when branches", "select case ", "when a then b", " ", " end"},
    {"arguments", "select coalesce(", "a", ", ", ")"},
    {"sum", "select ", "a", " + ", ""},
    {"difference", "select ", "a", " - ", ""},
    {"product", "select ", "a", " * ", ""},
    {"quotient", "select ", "a", " / ", ""},
    {"concatenation", "select ", "a", " || ", ""},
    {"and", "select a from t where ", "a = 1", " and ", ""},
    {"or", "select a from t where ", "a = 1", " or ", ""},
    {"and, or", "select a from t where ", "a = 1 and b", " or ", ""},
    {"terms", "select ", "(a)", " + ", ""},
    {"casts", "select a", "::int", "", ""},
};

const std::vector<nest> nests = {
    {"parentheses", "select ", "(", "a", ")"},
    {"not", "select a from t where ", "not ", "a", ""},
    {"negations", "select ", "- ", "a", ""},
    {"case", "select ", "case when a then ", "b", " end"},
    {"calls", "select ", "upper(", "a", ")"},
};

namespace {

std::string repeated(const char *text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

} // namespace

std::string statement_of(const shape &grown, int members) {
    const std::string member = grown.member;
    return grown.begin + member + repeated((grown.separator + member).c_str(), members - 1) +
           grown.end;
}

std::string statement_of(const nest &nested, int depth) {
    return nested.begin + repeated(nested.opening, depth) + nested.inner +
           repeated(nested.closing, depth);
}

} // namespace quillet_bench
