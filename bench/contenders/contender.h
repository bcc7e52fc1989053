// A contender of bench/compare: a program that translates the statements of a file, which NUL bytes
// separate, in one of three ways.
//
//   accepts FILE        prints 1 or 0 for each statement
//   times FILE SECONDS  translates all again and again, prints microseconds a statement
//   once FILE           translates the one statement, prints microseconds and the peak memory in
//   KiB
//
// The microseconds are those that the thread has on the processor.
// The exit status is 1 if a statement that is to be measured is refused, 2 for wrong arguments.
#ifndef QUILLET_BENCH_CONTENDER_H
#define QUILLET_BENCH_CONTENDER_H

namespace quillet_bench {

// Translates a statement and releases the text; false if it is refused.
using translation = bool (*)(const char *statement);

int run_contender(int argc, char **argv, translation translate);

} // namespace quillet_bench

#endif
