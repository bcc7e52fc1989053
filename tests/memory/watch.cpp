// The linker leads the library's calls of malloc and its kin here; operators new and delete are our
// own.

#include "watch.h"

#include <cstddef>
#include <new>

// The linker gives the names.
// NOLINTBEGIN(bugprone-reserved-identifier)

extern "C" {
void *__real_malloc(std::size_t size);
void *__real_calloc(std::size_t count, std::size_t size);
void *__real_realloc(void *block, std::size_t size);
void *__real_aligned_alloc(std::size_t alignment, std::size_t size);
void __real_free(void *block);
}

namespace quillet_tests {

volatile bool is_watching = false;
long live_blocks = 0;
long allocations = 0;
long failing_allocation = 0;
bool has_failed = false;
bool can_do_without = false;

namespace {

bool is_allowed() {
    if (!is_watching)
        return true;
    if (++allocations != failing_allocation)
        return true;
    has_failed = true;
    return false;
}

void *counted(void *block) {
    if (is_watching && block)
        ++live_blocks;
    return block;
}

void discount(const void *block) {
    if (is_watching && block)
        --live_blocks;
}

} // namespace

} // namespace quillet_tests

using namespace quillet_tests;

extern "C" {

void *__wrap_malloc(std::size_t size) {
    return is_allowed() ? counted(__real_malloc(size)) : nullptr;
}

void *__wrap_calloc(std::size_t count, std::size_t size) {
    return is_allowed() ? counted(__real_calloc(count, size)) : nullptr;
}

void *__wrap_realloc(void *block, std::size_t size) {
    if (!is_allowed())
        return nullptr;
    void *moved = __real_realloc(block, size);
    return block ? moved : counted(moved);
}

void *__wrap_aligned_alloc(std::size_t alignment, std::size_t size) {
    return is_allowed() ? counted(__real_aligned_alloc(alignment, size)) : nullptr;
}

void __wrap_free(void *block) {
    discount(block);
    __real_free(block);
}
}

void *operator new(std::size_t size) {
    void *block = is_allowed() ? counted(__real_malloc(size)) : nullptr;
    if (!block)
        throw std::bad_alloc();
    return block;
}

// For those that can do without, such as a sort that is faster with more memory.
void *operator new(std::size_t size, const std::nothrow_t &) noexcept {
    if (is_allowed())
        return counted(__real_malloc(size));
    can_do_without = true;
    return nullptr;
}

void operator delete(void *block) noexcept {
    discount(block);
    __real_free(block);
}

void operator delete(void *block, std::size_t) noexcept { operator delete(block); }

// NOLINTEND(bugprone-reserved-identifier)
