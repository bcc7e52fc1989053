// Allocations while the library is watched: its blocks are counted, and one allocation may fail.
#ifndef QUILLET_TESTS_MEMORY_WATCH_H
#define QUILLET_TESTS_MEMORY_WATCH_H

namespace quillet_tests {

extern volatile bool is_watching; // which the compiler thinks that free does not look at
extern long live_blocks;
extern long allocations;
extern long failing_allocation; // the number of the one that fails, 0 for none
extern bool has_failed;
extern bool can_do_without; // whether what has failed was asked for as something to spare

// Watches a call of the library, in which one allocation fails.
template <class Call> auto watched(Call call, long failing = 0) {
    is_watching = true;
    allocations = 0;
    failing_allocation = failing;
    has_failed = can_do_without = false;
    auto result = call();
    is_watching = false;
    return result;
}

// Counts the blocks of a call that comes after a watched one and belongs to it.
template <class Call> void watched_on(Call call) {
    is_watching = true;
    call();
    is_watching = false;
}

} // namespace quillet_tests

#endif
