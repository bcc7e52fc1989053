/*
 * Memory for the nodes of the tree, which come by the hundred with every statement and go all at
 * once. They are laid side by side in chunks; a chunk is used anew when its last node has gone.
 * Internal.
 */
#ifndef QUILLET_NODE_MEMORY_H
#define QUILLET_NODE_MEMORY_H

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "quillet_limits.h"
#include "quillet_text_memory.h"

namespace quillet {

#ifdef QUILLET_PLAIN_MEMORY

inline void *take_node(std::size_t size) { return std::malloc(size); }
inline void give_node(void *node) { std::free(node); }

#else

// Stands at the beginning of a chunk, whose address is a multiple of its size.
struct node_chunk {
    node_chunk *next; // of those that are kept
    std::size_t nodes;
};

// The free part of the chunk in use.
extern std::uintptr_t free_nodes;
extern std::uintptr_t free_nodes_end;

void begin_chunk();
void end_chunk(node_chunk *chunk);

inline node_chunk *chunk_of(std::uintptr_t address) {
    return reinterpret_cast<node_chunk *>(address & ~std::uintptr_t{QUILLET_NODE_CHUNK_SIZE - 1});
}

// Returns room for a node.
inline void *take_node(std::size_t size) {
    size = (size + alignof(void *) - 1) & ~(alignof(void *) - 1);
    if (free_nodes_end - free_nodes < size)
        begin_chunk();
    const std::uintptr_t node = free_nodes;
    free_nodes += size;
    ++chunk_of(node)->nodes;
    return reinterpret_cast<void *>(node);
}

// Takes back the room of a node.
inline void give_node(void *node) {
    node_chunk *chunk = chunk_of(reinterpret_cast<std::uintptr_t>(node));
    if (--chunk->nodes == 0)
        end_chunk(chunk);
}

#endif

} // namespace quillet

#endif
