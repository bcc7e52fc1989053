/*
 * Memory for the nodes of a tree and for their texts. Internal.
 *
 * A tree that nobody but the library sees lies in an arena and goes all at once. One that a host
 * may take over consists of blocks from malloc, each of which is freed on its own; until then it
 * goes all at once as well.
 */
#ifndef QUILLET_TREE_MEMORY_H
#define QUILLET_TREE_MEMORY_H

#include <stddef.h>

#include "quillet_limits.h"

#ifdef __cplusplus
extern "C" {
#endif

/* What is taken from while a tree grows; a quillet::tree_memory. */
struct quillet_tree_memory {
    char *free_begin; /* the free part of the arena's chunk in use; empty where there is no arena */
    char *free_end;
};

/* Returns room from a new chunk of the arena, or from malloc where there is no arena; throws
   as _quillet_tree_take does. */
void *_quillet_tree_take_more(struct quillet_tree_memory *memory, size_t size);

/* Returns room for a node or a text; throws without memory, or if the tree becomes too large. */
static inline void *_quillet_tree_take(struct quillet_tree_memory *memory, size_t size) {
    const size_t step = sizeof(void *);
    const size_t needed = (size + step - 1) / step * step;
    if ((size_t)(memory->free_end - memory->free_begin) < needed)
        return _quillet_tree_take_more(memory, needed);
    void *room = memory->free_begin;
    memory->free_begin += needed;
    return room;
}

#ifdef __cplusplus
}

#include <cstdint>
#include <new>
#include <vector>

namespace quillet {

// A tree takes more than it may.
struct tree_is_too_large : std::bad_alloc {};

// What becomes of a tree: it stays in the library, or a host may take it over.
enum class tree_owner : std::uint8_t { library, host };

// Memory for one tree at a time, and what is kept of it for the next one. While there is no tree,
// what is taken are blocks that are on their own.
class tree_memory : public quillet_tree_memory {
public:
    constexpr tree_memory() : quillet_tree_memory{nullptr, nullptr} {}
    ~tree_memory() { release(); }
    tree_memory(const tree_memory &) = delete;
    tree_memory &operator=(const tree_memory &) = delete;

    // Begins a tree, which may take so many bytes.
    void begin(tree_owner owner, std::size_t limit);

    // Whether the tree under way stays in the library.
    bool is_the_librarys() const {
        return state_ != state::no_tree && owner_ == tree_owner::library;
    }

    // Frees the tree, unless it has been kept, and ends it.
    void end();

    // Begins anew, without what there is of the tree.
    void begin_again() {
        end();
        begin(owner_, limit_);
    }

    // Leaves the blocks of the tree to somebody else. Returns whether that is possible.
    bool keep();

    // Frees a part of the tree, at the latest with all of it. NULL is ignored.
    void give(void *room);

    // Gives back what is kept of earlier trees. There must be none.
    void release();

    void *take_more(std::size_t size);

private:
    // The arena, chunk by chunk, each of twice the size of the last one.
    struct chunk {
        char *begin = nullptr;
        std::size_t size = 0;
    };

    enum class state : std::uint8_t { no_tree, arena, blocks };

    static std::size_t usual_size(std::size_t index);
    static chunk new_chunk(std::size_t size);
    static void free_chunk(chunk &freed);
    static void free_all(std::vector<void *> &blocks);

    void begin_chunk(std::size_t room);
    void take_from_limit(std::size_t size);
    void *take_block(std::size_t size);
    void end_arena();

    state state_ = state::no_tree;
    tree_owner owner_ = tree_owner::library;
    bool is_incomplete_ = false; // whether there was no memory for one of the given blocks
    std::size_t limit_ = 0;
    std::size_t left_ = 0;        // of the limit, besides what is free in the chunk in use
    std::size_t made_chunks_ = 0; // those with memory are among the first so many
    std::size_t used_chunks_ = 0;
    chunk chunks_[QUILLET_ARENA_CHUNKS_MAXIMUM] = {};
    std::vector<void *> taken_; // the blocks of the tree
    std::vector<void *> given_; // some of them, which are to be freed
};

// A tree from its beginning to its end.
class tree_under_way {
public:
    tree_under_way(tree_memory &memory, tree_owner owner,
                   std::size_t limit = QUILLET_TREE_SIZE_MAXIMUM)
        : memory_(memory) {
        memory_.begin(owner, limit);
    }
    ~tree_under_way() { memory_.end(); }
    tree_under_way(const tree_under_way &) = delete;
    tree_under_way &operator=(const tree_under_way &) = delete;

private:
    tree_memory &memory_;
};

} // namespace quillet
#endif

#endif
