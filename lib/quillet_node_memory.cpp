#include "quillet_node_memory.h"

#ifndef QUILLET_PLAIN_MEMORY

#include <new>

namespace quillet {

std::uintptr_t free_nodes = 0;
std::uintptr_t free_nodes_end = 0;

namespace {

node_chunk *kept = nullptr;
std::size_t kept_count = 0;

void use(node_chunk *chunk) {
    const auto begin = reinterpret_cast<std::uintptr_t>(chunk);
    free_nodes = begin + sizeof(node_chunk);
    free_nodes_end = begin + QUILLET_NODE_CHUNK_SIZE;
}

} // namespace

void begin_chunk() {
    node_chunk *chunk = kept;
    if (chunk) {
        kept = chunk->next;
        --kept_count;
    } else {
        chunk = static_cast<node_chunk *>(
            std::aligned_alloc(QUILLET_NODE_CHUNK_SIZE, QUILLET_NODE_CHUNK_SIZE));
    }
    use(new (chunk) node_chunk{nullptr, 0});
}

void end_chunk(node_chunk *chunk) {
    if (chunk == chunk_of(free_nodes_end - 1)) {
        use(chunk);
    } else if (kept_count < QUILLET_KEPT_CHUNKS_MAXIMUM) {
        chunk->next = kept;
        kept = chunk;
        ++kept_count;
    } else {
        std::free(chunk);
    }
}

} // namespace quillet

#endif
