#include "quillet_tree_node.h"

#include <cstring>
#include <vector>

#include "quillet_tree_memory.h"
#include "quillet_walk.h"

namespace {

// A node to be freed, and what frees it: its texts and itself; its children go into the walk.
struct owned_node {
    void *node;
    void (*free)(void *node, quillet::walk<owned_node> &left);
};

#define NODE(kind) void free_##kind(void *node, quillet::walk<owned_node> &left);
#include "quillet_nodes.def"

#define NODE(kind)                                                                                 \
    void free_##kind(void *node, [[maybe_unused]] quillet::walk<owned_node> &left) {               \
        auto *own = static_cast<node_##kind *>(node);
#define CHILD(kind, type, field)                                                                   \
    if (own->field)                                                                                \
        left.down({own->field, free_##type});
#define TEXT(kind, field) _quillet_tree_give(own->field);
#define END(kind)                                                                                  \
    _quillet_tree_give(own);                                                                       \
    }
#include "quillet_nodes.def"

// Frees a tree. The last child comes first, so that the walk stays shallow in lists and chains,
// which grow at their first field.
void free_tree(owned_node tree) {
    if (!tree.node || _quillet_tree_memory.has_arena)
        return;
    std::vector<owned_node> memory;
    memory.reserve(64);
    quillet::walk<owned_node> left(memory);
    for (left.down(tree); left.is_down();) {
        const owned_node next = left.up();
        next.free(next.node, left);
    }
}

} // namespace

// quillet_node_<kind>_create and quillet_node_<kind>_free for every kind.
#define NODE(kind)                                                                                 \
    node_##kind *quillet_node_##kind##_create(void) {                                              \
        void *memory = _quillet_tree_take(sizeof(node_##kind));                                    \
        return static_cast<node_##kind *>(std::memset(memory, 0, sizeof(node_##kind)));            \
    }                                                                                              \
    void quillet_node_##kind##_free(node_##kind *node) { free_tree({node, free_##kind}); }
#include "quillet_nodes.def"
