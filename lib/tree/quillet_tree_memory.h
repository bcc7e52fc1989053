/*
 * Memory for the nodes of trees and for their texts: blocks from malloc, each of which is freed on
 * its own, or, for the tree of a translation, parts of an arena that go all at once. Internal.
 */
#ifndef QUILLET_TREE_MEMORY_H
#define QUILLET_TREE_MEMORY_H

#include <stddef.h>
#include <stdlib.h>

#include "quillet_limits.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The arena, chunk by chunk, each of twice the size of the last one. */
struct quillet_tree_memory {
    int has_arena;
    char *next; /* the free part of the chunk in use; empty while there is no arena */
    char *end;
    struct quillet_arena_chunk {
        char *begin; /* NULL for none */
        size_t size;
    } chunks[QUILLET_ARENA_CHUNKS_MAXIMUM];
    size_t made_chunks; /* those with memory are among the first so many */
    size_t used_chunks;
    size_t used_size;
};

extern struct quillet_tree_memory _quillet_tree_memory;

/* Returns room from a new chunk of the arena, or from malloc while there is no arena; throws
   without memory, as _quillet_tree_take does. */
void *_quillet_tree_take_more(size_t size);

/* Whether the arena holds more than a tree may take. Nothing more is to be put into it then. */
int _quillet_tree_is_too_large(void);

/* Returns room for a node or a text. */
static inline void *_quillet_tree_take(size_t size) {
    const size_t step = sizeof(void *);
    const size_t needed = (size + step - 1) / step * step;
    if ((size_t)(_quillet_tree_memory.end - _quillet_tree_memory.next) < needed)
        return _quillet_tree_take_more(needed);
    void *room = _quillet_tree_memory.next;
    _quillet_tree_memory.next += needed;
    return room;
}

/* Frees a block of a tree's from malloc. NULL is ignored. */
void _quillet_tree_give_block(void *block);

/* Frees a node's or a text's room; in an arena it goes with the arena. NULL is ignored. */
static inline void _quillet_tree_give(void *room) {
    if (!_quillet_tree_memory.has_arena)
        _quillet_tree_give_block(room);
}

#ifdef __cplusplus
}

#include <vector>

namespace quillet {

// While one lives, nodes and texts are parts of an arena, which goes with it: nobody else may take
// them over, and to free one of them does nothing. One at a time.
class tree_arena {
public:
    tree_arena();
    ~tree_arena();
    tree_arena(const tree_arena &) = delete;
    tree_arena &operator=(const tree_arena &) = delete;
};

// The blocks from malloc that the trees under way consist of, while they are recorded.
struct tree_record {
    bool is_on = false;
    bool is_incomplete = false; // whether there was no memory for one of the given blocks
    std::vector<void *> taken;
    std::vector<void *> given; // some of them, which are to be freed
};

extern tree_record recorded_blocks;

// While one lives, and there is no arena, what is taken for trees is recorded: unless keep is
// called all of it is freed at the end. One at a time.
class recorded_tree {
public:
    recorded_tree();
    ~recorded_tree();
    recorded_tree(const recorded_tree &) = delete;
    recorded_tree &operator=(const recorded_tree &) = delete;

    // Leaves the tree to somebody else. Returns whether that is possible.
    bool keep();

private:
    tree_record &record_ = recorded_blocks;
};

// Gives back what is kept of earlier arenas, unless there is one.
void release_arena_memory();

} // namespace quillet
#endif

#endif
