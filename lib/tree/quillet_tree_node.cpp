#include "quillet_tree_node.h"

#include <cstring>
#include <vector>

#include "quillet_tree_memory.h"
#include "quillet_tree_node_kinds.h"

namespace quillet {
namespace {

struct owned_node {
    void *node;
    node_kind kind;
};

constexpr std::size_t children_of_a_node = 16; // at most

#define NODE(kind) constexpr std::size_t children_of_##kind = 0
#define CHILD(kind, type, field) +1
#define END(kind) ;
#include "quillet_nodes.def"

// Frees a tree with a stack of its own. The last child comes first, so that the stack stays short
// in lists and chains, which grow at their first field.
void free_tree(node_kind kind, void *node) {
    if (!node || _quillet_has_arena)
        return;
    std::vector<owned_node> stack(4 * children_of_a_node);
    std::size_t height = 0;
    owned_node next = {node, kind};
    for (;;) {
        if (stack.size() - height < children_of_a_node)
            stack.resize(2 * stack.size());
        owned_node *top = &stack[height];
        switch (next.kind) {
#define NODE(kind)                                                                                 \
    case kind_##kind: {                                                                            \
        static_assert(children_of_##kind <= children_of_a_node);                                   \
        auto *own = static_cast<node_##kind *>(next.node);
#define CHILD(kind, type, field)                                                                   \
    if (own->field)                                                                                \
        *top++ = {own->field, kind_##type};
#define TEXT(kind, field) _quillet_tree_give(own->field);
#define END(kind)                                                                                  \
    _quillet_tree_give(own);                                                                       \
    break;                                                                                         \
    }
#include "quillet_nodes.def"
        case node_kind_count: break;
        }
        if (top == stack.data())
            return;
        next = *--top;
        height = static_cast<std::size_t>(top - stack.data());
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
