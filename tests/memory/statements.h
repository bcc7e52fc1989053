// The statements for which memory is lacking.
#ifndef QUILLET_TESTS_MEMORY_STATEMENTS_H
#define QUILLET_TESTS_MEMORY_STATEMENTS_H

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace quillet_tests {

inline std::string repeated(const std::string &text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

// The realistic ones of the benchmark.
inline std::vector<std::string> usual_statements() {
    std::ifstream file(STATEMENTS);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    std::vector<std::string> found;
    for (std::size_t begin = 0, end = 0; (end = text.find(';', begin)) != std::string::npos;
         begin = end + 1)
        found.push_back(text.substr(begin, end + 1 - begin));
    return found;
}

// What makes each of the library's memories grow.
inline std::vector<std::string> large_statements() {
    return {
        "select " + repeated("a, ", 3000) + "b from t",
        "select " + repeated("a + ", 3000) + "b",
        "select " + repeated("(", 500) + "a" + repeated(")", 500),
        "select " + repeated("f(", 300) + "a" + repeated(")", 300),
        "select '" + repeated("a", 100000) + "'",
        "select to_char(timestamp '2005-01-01', '" + repeated("YYYY-DD \"text\" ", 30) + "')",
        "select a is distinct from b || 'c', a is true, timestamp 'x' at time zone 'y' from t",
        "select double precision 'x' + cast(a as int) from t where b = c",
        "select date_trunc('month', d), ltrim(s, 'x'), overlay(a placing b from 1 for 2) from t",
        "select case when a then b else c end from t natural join u limit 1 offset 2",
        "insert into t (a, b) values (1, default)",
    };
}

} // namespace quillet_tests

#endif
