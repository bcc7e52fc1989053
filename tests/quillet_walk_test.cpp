// Walks without a stack, and the bound of the stack for what needs one.

#include "quillet_walk.h"

#include <gtest/gtest.h>
#include <pthread.h>
#include <ucontext.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <vector>

#include "quillet_limits.h"

namespace {

using quillet::stack_bound;

struct step {
    const void *node;
    int number;
};

using walk = quillet::walk<step>;

TEST(Walk, ComesUpInTheReverseOrder) {
    std::vector<step> memory;
    walk steps(memory);
    EXPECT_FALSE(steps.is_down());
    for (int i = 0; i < 100; ++i)
        steps.down({nullptr, i});
    for (int i = 100; i-- > 0;) {
        ASSERT_TRUE(steps.is_down());
        EXPECT_EQ(steps.up().number, i);
    }
    EXPECT_FALSE(steps.is_down());
    EXPECT_TRUE(memory.empty());
}

TEST(Walk, GoesOnBelowAnotherOne) {
    std::vector<step> memory;
    walk outer(memory);
    outer.down({nullptr, 1});
    outer.down({nullptr, 2});
    {
        walk inner(memory);
        EXPECT_FALSE(inner.is_down());
        for (int i = 0; i < 20; ++i)
            inner.down({nullptr, 10 + i});
        for (int i = 20; i-- > 0;)
            EXPECT_EQ(inner.up().number, 10 + i);
        EXPECT_FALSE(inner.is_down());
    }
    EXPECT_TRUE(outer.is_down());
    EXPECT_EQ(outer.up().number, 2);
    EXPECT_EQ(outer.up().number, 1);
    EXPECT_FALSE(outer.is_down());
}

TEST(Walk, ChangesItsLastStepWhereItStands) {
    std::vector<step> memory;
    walk steps(memory);
    steps.down({nullptr, 1});
    steps.down({nullptr, 2});
    ++steps.last().number;
    EXPECT_EQ(steps.up().number, 3);
    EXPECT_EQ(steps.last().number, 1);
    steps.up();
}

TEST(StackBound, IsNotReachedBeforeItIsSet) {
    stack_bound bound;
    EXPECT_FALSE(bound.is_set());
    EXPECT_FALSE(bound.is_reached());
    bound.set(__builtin_frame_address(0));
    EXPECT_TRUE(bound.is_set());
    EXPECT_FALSE(bound.is_reached());
    bound.reset();
    EXPECT_FALSE(bound.is_set());
    EXPECT_FALSE(bound.is_reached());
}

// Takes stack by the kilobyte until the bound is reached, and returns how much.
[[gnu::noinline]] std::size_t taken_until(stack_bound &bound, const char *begin) {
    volatile std::size_t frame[128] = {};
    frame[0] = 1;
    const auto *here = static_cast<const char *>(__builtin_frame_address(0));
    if (bound.is_reached())
        return static_cast<std::size_t>(begin - here) + (frame[0] - 1);
    return taken_until(bound, begin) + (frame[0] - 1);
}

struct measurement {
    std::size_t stack_size;
    std::size_t taken;
};

void *measure(void *argument) {
    auto &measured = *static_cast<measurement *>(argument);
    stack_bound bound;
    const auto *begin = static_cast<const char *>(__builtin_frame_address(0));
    bound.set(begin);
    measured.taken = taken_until(bound, begin);
    return nullptr;
}

// The reserve is what is left, the rest has been taken but for what the thread began with.
TEST(StackBound, IsThatOfTheRunningThread) {
#if defined(__SANITIZE_ADDRESS__)
    constexpr std::size_t least = 512UL * 1024; // the sanitizer takes some itself
#else
    constexpr std::size_t least = 64UL * 1024;
#endif
    for (std::size_t size = least; size <= 16384UL * 1024; size *= 2) {
        pthread_attr_t attributes;
        pthread_t thread{};
        measurement measured{size, 0};
        ASSERT_EQ(pthread_attr_init(&attributes), 0);
        // A stack of our own: the system may give one that an earlier thread has left, of any size.
        constexpr std::size_t page = 4096;
        const std::unique_ptr<void, decltype(&std::free)> stack(std::aligned_alloc(page, size),
                                                                &std::free);
        ASSERT_EQ(pthread_attr_setstack(&attributes, stack.get(), size), 0);
        ASSERT_EQ(pthread_create(&thread, &attributes, measure, &measured), 0);
        pthread_join(thread, nullptr);
        pthread_attr_destroy(&attributes);
        const std::size_t reserve = std::max<std::size_t>(size / QUILLET_STACK_RESERVE_SHARE,
                                                          QUILLET_STACK_RESERVE_MINIMUM);
        EXPECT_LE(measured.taken, size - reserve + 4096) << size;
        EXPECT_GE(measured.taken, size - reserve - 32UL * 1024) << size;
    }
}

// On another stack than the thread's, as a coroutine has one, little is relied upon.

ucontext_t main_context;
measurement of_coroutine;

void measure_in_coroutine() { measure(&of_coroutine); }

TEST(StackBound, IsNearOnAForeignStack) {
    std::vector<char> stack(256UL * 1024);
    ucontext_t coroutine;
    ASSERT_EQ(getcontext(&coroutine), 0);
    coroutine.uc_stack.ss_sp = stack.data();
    coroutine.uc_stack.ss_size = stack.size();
    coroutine.uc_link = &main_context;
    makecontext(&coroutine, measure_in_coroutine, 0);
    of_coroutine = {stack.size(), 0};
    ASSERT_EQ(swapcontext(&main_context, &coroutine), 0);
    EXPECT_GE(of_coroutine.taken, QUILLET_STACK_SIZE_FOREIGN);
    EXPECT_LE(of_coroutine.taken, QUILLET_STACK_SIZE_FOREIGN + 8192);
}

} // namespace
