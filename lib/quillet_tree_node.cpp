#include "quillet_tree_node.h"

#include <cstring>

#include "quillet_memory.h"
#include "quillet_tree_node_kinds.h"

namespace quillet {
namespace {

// Frees a tree without a stack. On the way down a node keeps, in the field that was followed, the
// way back to its parent, and in sql_type its own kind and the field's index.
void free_tree(node_kind kind, void *node) {
    if (!node)
        return;
    void *parent = nullptr;
    int next = 0;
    for (;;) {
        const node_field &field = fields_of[kind][next];
        if (field.role == field_role::end) {
            _quillet_memory_give(node);
            if (!parent)
                return;
            node = parent;
            const auto place = *static_cast<std::int32_t *>(node);
            kind = static_cast<node_kind>(place & 0xff);
            next = place >> 8;
            parent = field_value<void *>(node, fields_of[kind][next++]);
            continue;
        }
        if (field.role == field_role::text)
            _quillet_memory_give(field_value<void *>(node, field));
        void *child = field.role == field_role::child ? field_value<void *>(node, field) : nullptr;
        if (!child) {
            ++next;
            continue;
        }
        set_field_value(node, field, parent);
        *static_cast<std::int32_t *>(node) = kind | next << 8;
        parent = node;
        node = child;
        kind = field.kind;
        next = 0;
    }
}

} // namespace
} // namespace quillet

// quillet_node_<kind>_create and quillet_node_<kind>_free for every kind.
#define NODE(kind)                                                                                 \
    node_##kind *quillet_node_##kind##_create(void) {                                              \
        void *memory = _quillet_memory_take(sizeof(node_##kind));                                  \
        return static_cast<node_##kind *>(std::memset(memory, 0, sizeof(node_##kind)));            \
    }                                                                                              \
    void quillet_node_##kind##_free(node_##kind *node) {                                           \
        quillet::free_tree(quillet::kind_##kind, node);                                            \
    }
#include "quillet_nodes.def"
