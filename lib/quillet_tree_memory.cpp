#include "quillet_tree_memory.h"

#include <cstdlib>

#include <sys/mman.h>

#include "quillet_limits.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define QUILLET_WITHOUT_ARENA
#endif
#endif

#if defined(__SANITIZE_ADDRESS__)
#define QUILLET_WITHOUT_ARENA // every block is seen to come and go
#endif

int _quillet_has_arena = 0;
char *_quillet_arena_next = nullptr;
char *_quillet_arena_end = nullptr;

namespace {

// Chunk by chunk the arena doubles. The smaller ones are kept for the next statement.
char *chunks[QUILLET_ARENA_CHUNKS_MAXIMUM];
std::size_t used_chunks = 0;

constexpr std::size_t size_of_chunk(std::size_t index) { return QUILLET_ARENA_CHUNK_SIZE << index; }

// A large chunk asks for large pages, which spare it most of the page faults.
char *new_chunk(std::size_t size) {
    constexpr std::size_t large_page = 2UL * 1024 * 1024;
    if (size < large_page)
        return static_cast<char *>(std::malloc(size));
    void *chunk = std::aligned_alloc(large_page, size);
#ifdef MADV_HUGEPAGE
    madvise(chunk, size, MADV_HUGEPAGE);
#endif
    return static_cast<char *>(chunk);
}

void begin_chunk() {
    char *&chunk = chunks[used_chunks];
    const std::size_t size = size_of_chunk(used_chunks++);
    if (!chunk)
        chunk = new_chunk(size);
    _quillet_arena_next = chunk;
    _quillet_arena_end = chunk + size;
}

} // namespace

void *_quillet_tree_take_more(size_t size) {
    if (!_quillet_has_arena)
        return std::malloc(size);
    while (size_of_chunk(used_chunks) < size)
        ++used_chunks;
    begin_chunk();
    return _quillet_tree_take(size);
}

namespace quillet {

tree_arena::tree_arena() {
#ifndef QUILLET_WITHOUT_ARENA
    _quillet_has_arena = 1;
    used_chunks = 0;
    begin_chunk();
#endif
}

tree_arena::~tree_arena() {
    _quillet_has_arena = 0;
    _quillet_arena_next = _quillet_arena_end = nullptr;
    for (std::size_t i = QUILLET_ARENA_KEPT_CHUNKS; i < used_chunks; ++i) {
        std::free(chunks[i]);
        chunks[i] = nullptr;
    }
}

} // namespace quillet
