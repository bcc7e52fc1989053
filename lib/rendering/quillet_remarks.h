/*
 * What a dialect remarks on the constructs that it writes: that its database answers otherwise than
 * the statement's, or may do so. Internal.
 *
 * A remark never changes a text or a code. It is made where the construct has been rendered, so
 * that the types of its parts are known, and only where somebody listens.
 */
#ifndef QUILLET_REMARKS_H
#define QUILLET_REMARKS_H

#include <array>

#include "quillet_dialect.h"
#include "quillet_grouping.h"

namespace quillet {

template <class Node> using remark = void (*)(rendering &r, Node *node);

// By operator, by function and by node kind; NULL where there is nothing to remark.
struct remark_table {
    std::array<remark<node_expression>, operator_count> operators{};
    std::array<remark<node_function_call>, function_count> functions{};
    const operator_forms *forms = nullptr; // of its texts
    const notice *grouped_otherwise = nullptr;
    bool is_frequent = false;          // whether most statements are remarked on
    const notice *lost_type = nullptr; // a word before a string that is not in the tree
    remark<node_function_call> other_functions = nullptr; // that have no slot
#define NODE(kind) remark<node_##kind> on_##kind = nullptr;
#include "quillet_nodes.def"
};

template <class Node> struct remark_of;
#define NODE(kind)                                                                                 \
    template <> struct remark_of<node_##kind> {                                                    \
        static constexpr auto member = &remark_table::on_##kind;                                   \
    };
#include "quillet_nodes.def"

} // namespace quillet

#endif
