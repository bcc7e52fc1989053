#include "quillet_tree_memory.h"

#include <algorithm>
#include <cstdlib>

#include <sys/mman.h>

#include "quillet_blocks.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define QUILLET_WITHOUT_ARENA
#endif
#endif

#if defined(__SANITIZE_ADDRESS__)
#define QUILLET_WITHOUT_ARENA // every block is seen to come and go
#endif

void *_quillet_tree_take_more(quillet_tree_memory *memory, size_t size) {
    return static_cast<quillet::tree_memory *>(memory)->take_more(size);
}

namespace quillet {

std::size_t tree_memory::usual_size(std::size_t index) {
    std::size_t size = QUILLET_ARENA_CHUNK_SIZE;
    while (index-- > 0 && size < QUILLET_ARENA_CHUNK_SIZE_MAXIMUM)
        size *= 2;
    return size;
}

void tree_memory::free_chunk(chunk &freed) {
    std::free(freed.begin);
    freed = {};
}

// A large chunk asks for large pages, which spare it most of the page faults.
tree_memory::chunk tree_memory::new_chunk(std::size_t size) {
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

void tree_memory::free_all(std::vector<void *> &blocks) {
    for (void *block : blocks)
        std::free(block);
    blocks.clear();
}

void tree_memory::begin(tree_owner owner, std::size_t limit) {
    limit_ = left_ = limit;
    owner_ = owner;
#ifndef QUILLET_WITHOUT_ARENA
    if (owner == tree_owner::library) {
        state_ = state::arena;
        return;
    }
#endif
    state_ = state::blocks;
    is_incomplete_ = false;
}

void tree_memory::end() {
    free_all(taken_);
    given_.clear();
    end_arena();
    state_ = state::no_tree;
}

bool tree_memory::keep() {
    if (is_incomplete_)
        return false;
    free_all(given_);
    taken_.clear();
    return true;
}

// What is given by a host's tree is freed later, so that none of it comes twice; the library's goes
// all at once.
void tree_memory::give(void *room) {
    if (state_ == state::no_tree)
        std::free(room);
    if (state_ != state::blocks || owner_ == tree_owner::library)
        return;
    try {
        given_.push_back(room);
    } catch (const std::bad_alloc &) {
        is_incomplete_ = true;
    }
}

void tree_memory::release() {
    for (; made_chunks_ > 0; --made_chunks_)
        free_chunk(chunks_[made_chunks_ - 1]);
    std::vector<void *>().swap(taken_);
    std::vector<void *>().swap(given_);
}

void *tree_memory::take_more(std::size_t size) {
    if (state_ == state::no_tree)
        return _quillet_take(size);
    if (state_ == state::blocks)
        return take_block(size);
    begin_chunk(size);
    return _quillet_tree_take(this, size);
}

void tree_memory::take_from_limit(std::size_t size) {
    if (size > left_)
        throw tree_is_too_large();
    left_ -= size;
}

void *tree_memory::take_block(std::size_t size) {
    take_from_limit(size);
    taken_.push_back(nullptr); // which may find no memory itself
    return taken_.back() = _quillet_take(size);
}

// Begins the next chunk, which has room for at least so much. What stays free in the last one is
// not counted, and no more of the new one is used than the limit allows.
void tree_memory::begin_chunk(std::size_t room) {
    left_ += static_cast<std::size_t>(free_end - free_begin);
    free_begin = free_end = nullptr;
    take_from_limit(room);
    chunk &next = chunks_[used_chunks_];
    if (next.size < room) {
        free_chunk(next);
        next = new_chunk(std::max(room, usual_size(used_chunks_)));
    }
    made_chunks_ = std::max(made_chunks_, ++used_chunks_);
    const std::size_t more = std::min(next.size - room, left_);
    left_ -= more;
    free_begin = next.begin;
    free_end = next.begin + room + more;
}

// What a large statement took is kept for the next one, and freed then if that is a small one.
void tree_memory::end_arena() {
    free_begin = free_end = nullptr;
    const std::size_t kept = std::clamp<std::size_t>(used_chunks_, QUILLET_ARENA_KEPT_CHUNKS,
                                                     QUILLET_ARENA_KEPT_CHUNKS_MAXIMUM);
    for (; made_chunks_ > kept; --made_chunks_)
        free_chunk(chunks_[made_chunks_ - 1]);
    for (std::size_t i = 0; i < used_chunks_; ++i)
        if (chunks_[i].size > usual_size(i))
            free_chunk(chunks_[i]);
    used_chunks_ = 0;
}

} // namespace quillet
