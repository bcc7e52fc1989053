#include "quillet_tree_memory.h"

#include <algorithm>
#include <cstdlib>
#include <new>

#include <sys/mman.h>

#include "quillet_blocks.h"
#include "quillet_limits.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define QUILLET_WITHOUT_ARENA
#endif
#endif

#if defined(__SANITIZE_ADDRESS__)
#define QUILLET_WITHOUT_ARENA // every block is seen to come and go
#endif

namespace {

using chunk = quillet_tree_memory::quillet_arena_chunk;

std::size_t usual_size(std::size_t index) {
    std::size_t size = QUILLET_ARENA_CHUNK_SIZE;
    while (index-- > 0 && size < QUILLET_ARENA_CHUNK_SIZE_MAXIMUM)
        size *= 2;
    return size;
}

void free_chunk(chunk &freed) {
    std::free(freed.begin);
    freed = {};
}

// A large chunk asks for large pages, which spare it most of the page faults.
chunk new_chunk(std::size_t size) {
    constexpr std::size_t large_page = 2UL * 1024 * 1024;
    if (size < large_page)
        return {static_cast<char *>(_quillet_take(size)), size};
    size = (size + large_page - 1) / large_page * large_page;
    void *begin = std::aligned_alloc(large_page, size);
    if (!begin)
        throw std::bad_alloc();
#ifdef MADV_HUGEPAGE
    madvise(begin, size, MADV_HUGEPAGE);
#endif
    return {static_cast<char *>(begin), size};
}

// Begins the next chunk, which has room for at least so much.
void begin_chunk(std::size_t room) {
    quillet_tree_memory &memory = _quillet_tree_memory;
    chunk &next = memory.chunks[memory.used_chunks];
    if (next.size < room) {
        free_chunk(next);
        next = new_chunk(std::max(room, usual_size(memory.used_chunks)));
    }
    memory.made_chunks = std::max(memory.made_chunks, ++memory.used_chunks);
    memory.used_size += next.size;
    memory.next = next.begin;
    memory.end = next.begin + next.size;
}

void *take_block(std::size_t size) {
    quillet::tree_record &record = quillet::recorded_blocks;
    if (!record.is_on)
        return _quillet_take(size);
    record.taken.push_back(nullptr); // which may find no memory itself
    return record.taken.back() = _quillet_take(size);
}

void free_all(std::vector<void *> &blocks) {
    for (void *block : blocks)
        std::free(block);
    blocks.clear();
}

} // namespace

// What is recorded is freed later, so that none of it comes twice.
void _quillet_tree_give_block(void *block) {
    quillet::tree_record &record = quillet::recorded_blocks;
    if (!record.is_on) {
        std::free(block);
        return;
    }
    try {
        record.given.push_back(block);
    } catch (const std::bad_alloc &) {
        record.is_incomplete = true;
    }
}

void *_quillet_tree_take_more(size_t size) {
    if (!_quillet_tree_memory.has_arena)
        return take_block(size);
    begin_chunk(size);
    return _quillet_tree_take(size);
}

int _quillet_tree_is_too_large(void) {
    return _quillet_tree_memory.used_size > QUILLET_TREE_SIZE_MAXIMUM;
}

namespace quillet {

tree_arena::tree_arena() {
#ifndef QUILLET_WITHOUT_ARENA
    begin_chunk(1);
    _quillet_tree_memory.has_arena = 1;
#endif
}

// What a large statement took is kept for the next one, and freed then if that is a small one.
tree_arena::~tree_arena() {
    quillet_tree_memory &memory = _quillet_tree_memory;
    memory.has_arena = 0;
    memory.next = memory.end = nullptr;
    const std::size_t kept = std::clamp<std::size_t>(memory.used_chunks, QUILLET_ARENA_KEPT_CHUNKS,
                                                     QUILLET_ARENA_KEPT_CHUNKS_MAXIMUM);
    for (; memory.made_chunks > kept; --memory.made_chunks)
        free_chunk(memory.chunks[memory.made_chunks - 1]);
    for (std::size_t i = 0; i < memory.used_chunks; ++i)
        if (memory.chunks[i].size > usual_size(i))
            free_chunk(memory.chunks[i]);
    memory.used_chunks = memory.used_size = 0;
}

recorded_tree::recorded_tree() { record_.is_on = !_quillet_tree_memory.has_arena; }

recorded_tree::~recorded_tree() {
    free_all(record_.taken);
    record_ = {};
}

bool recorded_tree::keep() {
    if (record_.is_incomplete)
        return false;
    free_all(record_.given);
    record_.taken.clear();
    return true;
}

void release_arena_memory() {
    quillet_tree_memory &memory = _quillet_tree_memory;
    for (; !memory.has_arena && memory.made_chunks > 0; --memory.made_chunks)
        free_chunk(memory.chunks[memory.made_chunks - 1]);
}

} // namespace quillet
