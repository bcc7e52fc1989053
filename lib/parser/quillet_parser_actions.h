/*
 * What the actions of the grammar are made of. Internal.
 */
#ifndef QUILLET_PARSER_ACTIONS_H
#define QUILLET_PARSER_ACTIONS_H

#include <cstdlib>
#include <cstring>
#include <new>
#include <string_view>

#include "quillet_parse_tree.h"
#include "quillet_strings_tools.h"
#include "quillet_tree_memory.h"
#include "quillet_tree_node.h"
#include "quillet_types.h"

namespace quillet {

// release(value) frees a semantic value of any type.
inline void release(char *text) { _quillet_tree_give(text); }
#define NODE(kind)                                                                                 \
    inline void release(node_##kind *node) { quillet_node_##kind##_free(node); }
#include "quillet_nodes.def"

// make(node_<kind>{...}) returns a new node with these fields.
#define NODE(kind)                                                                                 \
    inline node_##kind *make(const node_##kind &fields) {                                          \
        return new (_quillet_tree_take(sizeof(node_##kind))) node_##kind(fields);                  \
    }
#include "quillet_nodes.def"

inline node_identifier *name(char *text) { return make(node_identifier{.name = text}); }

inline char *text_copy(std::string_view text) {
    auto *copy = static_cast<char *>(_quillet_tree_take(text.size() + 1));
    std::memcpy(copy, text.data(), text.size());
    copy[text.size()] = '\0';
    return copy;
}

// Operator applications.

inline node_expression *apply(std::string_view name, node_expression *first,
                              node_expression *second = nullptr, node_expression *third = nullptr) {
    return make(node_expression{.operator_ = text_copy(name),
                                .expression_1 = first,
                                .expression_2 = second,
                                .expression_3 = third});
}

inline node_expression *truth_test(std::string_view name, node_expression *tested,
                                   node_const_boolean *value) {
    return make(node_expression{
        .operator_ = text_copy(name), .expression_1 = tested, .const_boolean = value});
}

inline node_expression *match(std::string_view name, node_expression *matched,
                              node_expression *pattern, node_escape *escape = nullptr) {
    return make(node_expression{.operator_ = text_copy(name),
                                .expression_1 = matched,
                                .expression_2 = pattern,
                                .escape = escape});
}

inline node_expression *overlaps(node_overlaps_expression *first,
                                 node_overlaps_expression *second) {
    return make(node_expression{.operator_ = text_copy("operator_overlaps"),
                                .overlaps_expression_1 = first,
                                .overlaps_expression_2 = second});
}

// Argument forms.

inline node_placing_from_for_argument *placing(node_expression *string, node_expression *inserted,
                                               node_expression *start, node_expression *length) {
    return make(node_placing_from_for_argument{.expression_1 = string,
                                               .expression_2 = inserted,
                                               .expression_3 = start,
                                               .expression_4 = length});
}

inline node_trim_argument *trim(int mode, node_expression *characters, node_expression *string) {
    return make(
        node_trim_argument{.mode = mode, .expression_1 = characters, .expression_2 = string});
}

// Nodes that only carry something to their parent: the code is returned, the node freed.

inline int taken(node_join_type *join) {
    const int type = join->type;
    release(join);
    return type;
}

inline int type_named(node_identifier *word) {
    const int type = quillet_string_to_type(word->name);
    release(word);
    return type;
}

inline int type_named(node_identifier *first, node_identifier *second) {
    char *words = quillet_sconcat(first->name, second->name);
    if (!words)
        throw std::bad_alloc();
    const int type = quillet_string_to_type(words);
    std::free(words);
    release(first);
    release(second);
    return type;
}

// AT zone ZONE, and AT zone ZONE form: AT TIME ZONE and AT TIME ZONE INTERVAL are known.

inline int zone_type(node_identifier *zone) {
    return type_named(zone) == QUILLET_TYPE_TIME ? QUILLET_ZONE_TIME : QUILLET_ZONE_UNKNOWN;
}

inline int zone_type(node_identifier *zone, node_identifier *form) {
    const bool is_time = type_named(zone) == QUILLET_TYPE_TIME;
    const bool is_interval = type_named(form) == QUILLET_TYPE_INTERVAL;
    return is_time && is_interval ? QUILLET_ZONE_TIME_INTERVAL : QUILLET_ZONE_UNKNOWN;
}

} // namespace quillet

#endif
