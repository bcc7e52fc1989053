/*
 * What the actions of the grammar are made of. Internal.
 */
#ifndef QUILLET_PARSER_ACTIONS_H
#define QUILLET_PARSER_ACTIONS_H

#include <cstdlib>
#include <cstring>
#include <new>
#include <string_view>

#include "quillet_operator_names.h"
#include "quillet_parsing.h"
#include "quillet_strings_tools.h"
#include "quillet_tree_memory.h"
#include "quillet_tree_node.h"
#include "quillet_types.h"

namespace quillet {

// A tree whose nodes have their places before them, where place_before finds them.
struct placed_tree {
    tree_memory &memory;
    place where;
};

inline tree_memory &memory_of(tree_memory &memory) { return memory; }
inline tree_memory &memory_of(const placed_tree &tree) { return tree.memory; }

} // namespace quillet

// new (here) node_<kind>{...} makes a node in the tree, in the room where it stays.

inline void *operator new(std::size_t size, quillet::tree_memory &memory) {
    return _quillet_tree_take(&memory, size);
}

inline void *operator new(std::size_t size, const quillet::placed_tree &tree) {
    auto *room =
        static_cast<char *>(_quillet_tree_take(&tree.memory, sizeof(quillet::place) + size));
    return new (room) quillet::place(tree.where) + 1;
}

namespace quillet {

inline node_identifier *name(auto &&here, char *text) {
    return new (here) node_identifier{.name = text};
}

// An operator's name as the tree stores it: the text of all if nobody can free it, or else a copy.
inline char *stored(auto &&here, operator_name name) {
    tree_memory &memory = memory_of(here);
    if (memory.is_the_librarys())
        return const_cast<char *>(name.text());
    const std::string_view text = name.text();
    auto *copy = static_cast<char *>(_quillet_tree_take(&memory, text.size() + 1));
    std::memcpy(copy, text.data(), text.size() + 1);
    return copy;
}

// Operator applications.

inline node_expression *apply(auto &&here, operator_name name, node_expression *first,
                              node_expression *second = nullptr, node_expression *third = nullptr) {
    return new (here) node_expression{.operator_ = stored(here, name),
                                      .expression_1 = first,
                                      .expression_2 = second,
                                      .expression_3 = third};
}

inline node_expression *truth_test(auto &&here, operator_name name, node_expression *tested,
                                   node_const_boolean *value) {
    return new (here) node_expression{
        .operator_ = stored(here, name), .expression_1 = tested, .const_boolean = value};
}

inline node_expression *match(auto &&here, operator_name name, node_expression *matched,
                              node_expression *pattern, node_escape *escape = nullptr) {
    return new (here) node_expression{.operator_ = stored(here, name),
                                      .expression_1 = matched,
                                      .expression_2 = pattern,
                                      .escape = escape};
}

inline node_expression *overlaps(auto &&here, node_overlaps_expression *first,
                                 node_overlaps_expression *second) {
    return new (here) node_expression{.operator_ = stored(here, "operator_overlaps"),
                                      .overlaps_expression_1 = first,
                                      .overlaps_expression_2 = second};
}

// Argument forms.

inline node_placing_from_for_argument *placing(auto &&here, node_expression *string,
                                               node_expression *inserted, node_expression *start,
                                               node_expression *length) {
    return new (here) node_placing_from_for_argument{.expression_1 = string,
                                                     .expression_2 = inserted,
                                                     .expression_3 = start,
                                                     .expression_4 = length};
}

inline node_trim_argument *trim(auto &&here, int mode, node_expression *characters,
                                node_expression *string) {
    return new (here)
        node_trim_argument{.mode = mode, .expression_1 = characters, .expression_2 = string};
}

// Nodes that only carry something to their parent: the code is returned, the node given back.

// The places of a tree are not given back before it.
template <class Node> void give(tree_memory &memory, Node *node) {
    if constexpr (requires { node->name; })
        memory.give(node->name);
    memory.give(node);
}

template <class Node> void give(const placed_tree &, Node *) {}

inline int taken(auto &&here, node_join_type *join) {
    const int type = join->type;
    give(here, join);
    return type;
}

inline int type_named(auto &&here, node_identifier *word) {
    const int type = quillet_string_to_type(word->name);
    give(here, word);
    return type;
}

inline int type_named(auto &&here, node_identifier *first, node_identifier *second) {
    char *words = quillet_sconcat(first->name, second->name);
    if (!words)
        throw std::bad_alloc();
    const int type = quillet_string_to_type(words);
    std::free(words);
    give(here, first);
    give(here, second);
    return type;
}

// AT zone ZONE, and AT zone ZONE form: AT TIME ZONE and AT TIME ZONE INTERVAL are known.

inline int zone_type(auto &&here, node_identifier *zone) {
    return type_named(here, zone) == QUILLET_TYPE_TIME ? QUILLET_ZONE_TIME : QUILLET_ZONE_UNKNOWN;
}

inline int zone_type(auto &&here, node_identifier *zone, node_identifier *form) {
    const bool is_time = type_named(here, zone) == QUILLET_TYPE_TIME;
    const bool is_interval = type_named(here, form) == QUILLET_TYPE_INTERVAL;
    return is_time && is_interval ? QUILLET_ZONE_TIME_INTERVAL : QUILLET_ZONE_UNKNOWN;
}

} // namespace quillet

#endif
