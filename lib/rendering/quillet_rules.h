/*
 * What a dialect's tables hold: how it renders an operator, a function, a node kind. Internal.
 *
 * A table is a list of rows (see quillet_mysql_slots.def). A row is a value, made by one of the
 * functions at the end of this file; a new sort of row is a new function.
 */
#ifndef QUILLET_RULES_H
#define QUILLET_RULES_H

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "quillet_build_result.h"
#include "quillet_output.h"
#include "quillet_text_template.h"
#include "quillet_tree_node.h"
#include "quillet_type_sets.h"

namespace quillet {

class rendering;

// What a renderer did: whether it made a result at all, whether it has a text, and its status.
struct outcome {
    bool record = false;
    bool text = false;
    std::int32_t status = 0;

    // Takes over a child's failure; the last one counts.
    void fail_with(const outcome &child) {
        if (child.status)
            status = child.status;
    }
};

inline constexpr outcome absent{};
inline constexpr outcome a_text{true, true, 0};
inline constexpr outcome missing_part{true, false, QUILLET_BUILD_MISSING_PART};
inline constexpr outcome refused_part{true, false, QUILLET_BUILD_CANNOT_RENDER};

// Renders a node at the end of the rendering's text. A renderer that has no text to give leaves the
// text as it found it.
template <class Node> using renderer = outcome (*)(rendering &r, Node *node, void *data);

// The text of an operator for operands of certain types, or a refusal. The second type of an
// operator with one operand is unknown.
struct typed_text {
    type_set left;
    type_set right;
    text_template text = {};
    std::int32_t type = 0;    // of the result
    std::size_t skipped = 0;  // characters at the beginning of $1 that are left out
    std::int32_t refusal = 0; // the dialect's reason, 0 for none
};

// How an operator is rendered: by its text, if nothing else is said. It needs the operands of its
// text, or without one those of the default rule's; the type of its result is the default rule's.
struct operator_rule {
    text_template text = {};
    std::int32_t refusal = 0; // it is refused, with the dialect's reason
    bool needs_all = true;    // an absent operand is a failure

    // Of a truth test: by the value that is asked for, of TRUE, FALSE and UNKNOW; none for others.
    std::array<text_template, 3> by_truth = {};

    // By the operands' types: the first row that fits; the default rule if none does.
    std::span<const typed_text> by_types = {};

    renderer<node_expression> own = nullptr; // by a function

    // Of the default rules alone: the type of the result.
    int (*type)(int left, int right) = nullptr;

    constexpr bool is_truth_test() const { return by_truth[0].count > 0; }
};

// The arguments that a function's text takes: none, the last one as $1, all of them as $1, or the
// last but one as $1 and the last one as $2.
enum class arguments : std::uint8_t { nothing, last, list, two };

// How a function is rendered: by its text, if nothing else is said. The type of the call is that of
// the default rendering.
struct function_rule {
    arguments needs = arguments::nothing;
    text_template text = {};
    renderer<node_function_call> own = nullptr; // by a function
    std::int32_t refusal = 0;                   // it is refused, with the dialect's reason
    bool is_reserved = false;                   // the slot is left to the default all the same
};

// How a node kind is rendered: by a function, or refused, perhaps only under a condition; by
// default if neither is so.
template <class Node> struct kind_rule {
    renderer<Node> own = nullptr;
    std::int32_t refusal = 0;
    bool (*is_refused)(const Node &node) = nullptr; // whether this one is; NULL: each is
};

// How a cast is rendered, in two steps round the expression, so that a chain of casts needs no
// stack. The node has an expression; end gets where the text began.
struct cast_rule {
    void (*begin)(rendering &r, const node_cast_expression &node);
    outcome (*end)(rendering &r, node_cast_expression &node, output::place begin,
                   outcome expression);
};

// What is written round every expression; begin may depend on the type found.
struct expression_frame {
    std::string_view (*begin)(const node_expression &node);
    std::string_view end;
};

// The rows.

namespace rows {

// An operator's text.
constexpr operator_rule text(std::string_view marked) { return {.text = text_template(marked)}; }

// An operator's texts by its operands' types, and by the truth value of a test.
constexpr operator_rule by_types(std::span<const typed_text> texts) { return {.by_types = texts}; }

constexpr operator_rule by_truth(std::string_view of_true, std::string_view of_false,
                                 std::string_view of_unknown) {
    return {
        .by_truth = {text_template(of_true), text_template(of_false), text_template(of_unknown)}};
}

// A function's text.
constexpr function_rule text(arguments needs, std::string_view marked) {
    return {.needs = needs, .text = text_template(marked)};
}

// Rendered by a function.
template <class Node> struct own_row {
    renderer<Node> render;

    constexpr operator operator_rule() const { return {.own = render}; }
    constexpr operator function_rule() const { return {.own = render}; }
    constexpr operator kind_rule<Node>() const { return {.own = render}; }
};

template <class Node> constexpr own_row<Node> own(renderer<Node> render) { return {render}; }

// Refused; and reserved: a function's operation refuses, but its slot is left to the default.
struct refused_row {
    std::int32_t reason;

    constexpr operator operator_rule() const { return {.refusal = reason}; }
    constexpr operator function_rule() const { return {.refusal = reason}; }
    template <class Node> constexpr operator kind_rule<Node>() const { return {.refusal = reason}; }
};

template <class Reason> constexpr refused_row refused(Reason reason) {
    return {static_cast<std::int32_t>(reason)};
}

template <class Reason> constexpr function_rule reserved(Reason reason) {
    return {.refusal = static_cast<std::int32_t>(reason), .is_reserved = true};
}

// Refused if a condition holds for the node.
template <class Condition> struct refused_if_row {
    std::int32_t reason;
    Condition condition;

    template <class Node> constexpr operator kind_rule<Node>() const {
        return {.refusal = reason, .is_refused = condition};
    }
};

template <class Reason, class Condition>
constexpr refused_if_row<Condition> refused_if(Reason reason, Condition condition) {
    return {static_cast<std::int32_t>(reason), condition};
}

} // namespace rows

} // namespace quillet

#endif
