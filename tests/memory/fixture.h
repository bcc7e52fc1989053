// Tests for want of memory.
#ifndef QUILLET_TESTS_MEMORY_FIXTURE_H
#define QUILLET_TESTS_MEMORY_FIXTURE_H

#include <gtest/gtest.h>

#include "quillet.h"
#include "watch.h"

extern "C" int yy_quillet_lex_destroy(void);

namespace quillet_tests {

// As at the beginning of the process.
inline void forget() {
    watched([] {
        yy_quillet_lex_destroy();
        quillet_release_memory();
        return 0;
    });
}

// Each begins as a process does, and leaves nothing.
class Memory : public testing::Test {
protected:
    void SetUp() override {
        quillet_init();
        forget();
        live_blocks = 0;
    }

    void TearDown() override {
        forget();
        EXPECT_EQ(live_blocks, 0);
    }
};

} // namespace quillet_tests

#endif
