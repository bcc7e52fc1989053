#include "quillet_tree_node.h"

#include <cstring>
#include <vector>

#include "quillet_tree_memory.h"
#include "quillet_tree_node_kinds.h"
#include "quillet_walk.h"

namespace quillet {
namespace {

struct owned_node {
    void *node;
    node_kind kind;
};

// Frees a tree. The last child comes first, so that the walk stays shallow in lists and chains,
// which grow at their first field.
void free_tree(node_kind kind, void *tree) {
    if (!tree || _quillet_tree_memory.has_arena)
        return;
    std::vector<owned_node> memory;
    memory.reserve(64);
    walk<owned_node> left(memory);
    for (left.down({tree, kind}); left.is_down();) {
        const owned_node next = left.up();
        switch (next.kind) {
#define NODE(kind)                                                                                 \
    case kind_##kind: {                                                                            \
        auto *own = static_cast<node_##kind *>(next.node);
#define CHILD(kind, type, field)                                                                   \
    if (own->field)                                                                                \
        left.down({own->field, kind_##type});
#define TEXT(kind, field) _quillet_tree_give(own->field);
#define END(kind)                                                                                  \
    _quillet_tree_give(own);                                                                       \
    break;                                                                                         \
    }
#include "quillet_nodes.def"
        case node_kind_count: break;
        }
    }
}

} // namespace
} // namespace quillet

// quillet_node_<kind>_create and quillet_node_<kind>_free for every kind.
#define NODE(kind)                                                                                 \
    node_##kind *quillet_node_##kind##_create(void) {                                              \
        void *memory = _quillet_tree_take(sizeof(node_##kind));                                    \
        return static_cast<node_##kind *>(std::memset(memory, 0, sizeof(node_##kind)));            \
    }                                                                                              \
    void quillet_node_##kind##_free(node_##kind *node) {                                           \
        quillet::free_tree(quillet::kind_##kind, node);                                            \
    }
#include "quillet_nodes.def"
