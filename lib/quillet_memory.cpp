#include "quillet_memory.h"

#include <cstdlib>

#include "quillet_limits.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define QUILLET_PLAIN_MEMORY
#endif
#endif

// A sanitizer must see every block come and go, and only glibc tells the size of one.
#if defined(__SANITIZE_ADDRESS__) || !defined(__GLIBC__)
#define QUILLET_PLAIN_MEMORY
#endif

#ifdef QUILLET_PLAIN_MEMORY

void *_quillet_memory_take(size_t size) { return std::malloc(size); }

void _quillet_memory_give(void *block) { std::free(block); }

#else

#include <malloc.h>

#include <new>

namespace {

// A kept block; all of a list have at least the same size.
struct kept_block {
    kept_block *next;
};

constexpr std::size_t smallest = 24; // what malloc gives at least, and the step to the next size
constexpr std::size_t step = 16;
constexpr std::size_t list_count = 8;

kept_block *kept[list_count];
std::size_t kept_count;

} // namespace

void *_quillet_memory_take(size_t size) {
    const std::size_t list = size <= smallest ? 0 : (size - smallest + step - 1) / step;
    if (list >= list_count || !kept[list])
        return std::malloc(size);
    kept_block *block = kept[list];
    kept[list] = block->next;
    --kept_count;
    return block;
}

void _quillet_memory_give(void *block) {
    if (!block)
        return;
    const std::size_t list = (malloc_usable_size(block) - smallest) / step;
    if (list >= list_count || kept_count >= QUILLET_KEPT_BLOCKS_MAXIMUM) {
        std::free(block);
        return;
    }
    kept[list] = ::new (block) kept_block{kept[list]};
    ++kept_count;
}

#endif
