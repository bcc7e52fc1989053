/*
 * The node kinds as data, for the walks that treat all kinds alike. Internal.
 */
#ifndef QUILLET_TREE_NODE_KINDS_H
#define QUILLET_TREE_NODE_KINDS_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

#include "quillet_tree_node.h"

namespace quillet {

enum node_kind : std::uint8_t {
#define NODE(kind) kind_##kind,
#include "quillet_nodes.def"
    node_kind_count
};

static_assert(node_kind_count == 55);

enum class field_role : std::uint8_t { end, child, code, text };

struct node_field {
    field_role role = field_role::end;
    node_kind kind = node_kind_count; // of a child
    std::uint16_t offset = 0;
};

// The fields of one kind after sql_type, in order; the last one has the role end.
#define NODE(kind) inline constexpr node_field fields_of_##kind[] = {
#define CHILD(kind, type, field) {field_role::child, kind_##type, offsetof(node_##kind, field)},
#define CODE(kind, field) {field_role::code, node_kind_count, offsetof(node_##kind, field)},
#define TEXT(kind, field) {field_role::text, node_kind_count, offsetof(node_##kind, field)},
#define END(kind)                                                                                  \
    {}                                                                                             \
    }                                                                                              \
    ;
#include "quillet_nodes.def"

inline constexpr const node_field *fields_of[node_kind_count] = {
#define NODE(kind) fields_of_##kind,
#include "quillet_nodes.def"
};

// The kind of a node's type.
template <class Node> inline constexpr node_kind kind_of = node_kind_count;
#define NODE(kind) template <> inline constexpr node_kind kind_of<node_##kind> = kind_##kind;
#include "quillet_nodes.def"

// Visits the children that a node has, in order.
#define NODE(kind)                                                                                 \
    template <class Visit>                                                                         \
    void for_each_child([[maybe_unused]] const node_##kind &node, [[maybe_unused]] Visit visit) {
#define CHILD(kind, type, field)                                                                   \
    if (node.field)                                                                                \
        visit(node.field);
#define END(kind) }
#include "quillet_nodes.def"

// The value of a field, read where its offset says.
template <class Value> Value field_value(const void *node, const node_field &field) {
    Value value;
    std::memcpy(&value, static_cast<const char *>(node) + field.offset, sizeof value);
    return value;
}

// Visits a node and all below it, with their kinds, until a visit returns false.
template <class Visit> void visit_tree(const void *top, node_kind kind_of_top, Visit visit) {
    std::vector<std::pair<const void *, node_kind>> left{{top, kind_of_top}};
    while (!left.empty()) {
        const auto [node, kind] = left.back();
        left.pop_back();
        if (!visit(node, kind))
            return;
        for (const node_field *field = fields_of[kind]; field->role != field_role::end; ++field)
            if (field->role == field_role::child)
                if (const void *child = field_value<const void *>(node, *field))
                    left.emplace_back(child, field->kind);
    }
}

} // namespace quillet

#endif
