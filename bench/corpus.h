// The statements that are measured: realistic ones from statements.sql, and ones of any size.
#ifndef QUILLET_BENCH_CORPUS_H
#define QUILLET_BENCH_CORPUS_H

#include <cstddef>
#include <string>
#include <vector>

namespace quillet_bench {

// The statements of a file, each of which ends in ";" at the end of a line.
std::vector<std::string> read_statements(const char *path);

std::size_t size_of(const std::vector<std::string> &statements);

// What grows: begin member separator member end.
struct shape {
    const char *name;
    const char *begin;
    const char *member;
    const char *separator;
    const char *end;
};

extern const std::vector<shape> lists_and_chains;

// What nests: begin opening opening inner closing closing.
struct nest {
    const char *name;
    const char *begin;
    const char *opening;
    const char *inner;
    const char *closing;
};

extern const std::vector<nest> nests;

std::string statement_of(const shape &grown, int members);
std::string statement_of(const nest &nested, int depth);

} // namespace quillet_bench

#endif
