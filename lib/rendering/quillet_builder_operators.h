/*
 * The texts of operators, and the lookup from the name that an expression stores. Internal.
 */
#ifndef QUILLET_BUILDER_OPERATORS_H
#define QUILLET_BUILDER_OPERATORS_H

#include <cstdint>
#include <string_view>

#include "quillet_text_template.h"
#include "quillet_tree_node.h"
#include "quillet_types.h"

namespace quillet {

inline constexpr int no_operator = -1;

// Returns the index of an operator in the list of operators, no_operator for an unknown name.
int operator_index(std::string_view name);

// The position of an operator in the list of operators.
enum operator_id {
#define OPERATOR(name, ...) operator_id_##name,
#include "quillet_operators.def"
    operator_count
};

struct rendered;
class rendering;

// The text that an operator gets once the types of its operands are known.
struct operator_choice {
    const text_template *text = nullptr; // of $1 and $2 alone; NULL: refused
    std::int32_t type = 0;
    std::size_t skipped = 0; // characters at the beginning of $1 that are left out
};

// How a dialect renders an operator: by its text, unless one of the functions says otherwise.
struct operator_rule {
    text_template text;
    bool needs_all = false; // an absent operand is a failure
    int (*type)(int left, int right) = nullptr;

    // Picks another rule by the node, before anything is rendered.
    const operator_rule &(*pick)(const node_expression &node) = nullptr;
    // Chooses the text by the operands' types, after they have been rendered.
    operator_choice (*choose)(const operator_rule &rule, int left, int right) = nullptr;
    // Renders the node in its own way.
    rendered (*instead)(rendering &r, node_expression *node) = nullptr;
};

// A result-type rule for one or two operands, called with two.
template <auto Rule> constexpr int result_type(int left, int right) {
    if constexpr (requires { Rule(left, right); })
        return Rule(left, right);
    else
        return Rule(left);
}

inline constexpr operator_rule default_operators[operator_count] = {
#define all true
#define none false
#define OPERATOR(name, text, needs, rule)                                                          \
    {text_template(text), needs, result_type<quillet_get_result_type_##rule>},
#include "quillet_operators.def"
#undef all
#undef none
};

} // namespace quillet

#endif
