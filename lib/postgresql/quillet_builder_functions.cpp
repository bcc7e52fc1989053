// The default rendering of function calls and their arguments.

#include <iterator>

#include "quillet_builder_lists.h"
#include "quillet_name_index.h"
#include "quillet_types.h"

namespace quillet {

namespace {

constexpr name_index<std::size(function_slots)> function_names({
#define FUNCTION(name, rule) #name,
#include "quillet_functions.def"
});

constexpr int (*function_types[])(const node_function_call *) = {
#define FUNCTION(name, rule) quillet_get_result_type_function_##rule,
#include "quillet_functions.def"
};

// Renders the call by what the builder has in the function's slot.
rendered render_by_slot(rendering &r, int index, node_function_call *node) {
    const auto slot = function_slots[index];
    const auto own = r.self->*slot;
    if (const dialect *home = rendering::dialect_of(slot, own))
        return home->functions[index](r, node, nullptr);
    return r.take(own(r.self, node, nullptr));
}

// Renders an argument form; the first one with a text is the call's.
template <class Node> void render_argument(rendering &r, Node *argument, rendered &chosen) {
    if (!argument)
        return;
    const auto begin = r.here();
    const rendered result = r.child(argument);
    chosen.fail_with(result);
    if (chosen.text)
        r.drop_from(begin);
    chosen.text = chosen.text || result.text;
}

} // namespace

rendered render_function_call(rendering &r, node_function_call *node, void *) {
    if (!node->function_name)
        return missing_part;
    const auto begin = r.here();
    rendered result = r.child(node->function_name);
    const int index = result.text ? function_names.find(r.out.from(begin.size)) : -1;
    if (index >= 0 && r.self->*function_slots[index]) {
        r.drop_from(begin);
        return render_by_slot(r, index, node);
    }
    r.out.append('(');
    rendered argument = textless;
    render_argument(r, node->expressions_list, argument);
    render_argument(r, node->agregate_expression, argument);
    render_argument(r, node->using_argument, argument);
    render_argument(r, node->placing_from_for_argument, argument);
    render_argument(r, node->in_argument, argument);
    render_argument(r, node->from_for_argument, argument);
    render_argument(r, node->trim_argument, argument);
    r.out.append(')');
    node->sql_type = index >= 0 ? function_types[index](node) : int{QUILLET_TYPE_UNKNOWN};
    result.fail_with(argument);
    return {true, true, result.status};
}

rendered render_expressions_list(rendering &r, node_expressions_list *node, void *data) {
    return render_list<&node_expressions_list::expressions_list,
                       &node_expressions_list::expression>(r, node, data, comma);
}

rendered render_agregate_expression(rendering &r, node_agregate_expression *node, void *) {
    const auto begin = r.here();
    r.out.append(node->type == QUILLET_AGREGATE_DISTINCT ? "DISTINCT " : "ALL ");
    const rendered expression = r.child(node->expression);
    switch (node->type) {
    case QUILLET_AGREGATE_DISTINCT:
    case QUILLET_AGREGATE_ALL: return {true, true, expression.status};
    default: break;
    }
    r.drop_from(begin);
    if (node->type == QUILLET_AGREGATE_STAR)
        r.out.append('*');
    return {true, node->type == QUILLET_AGREGATE_STAR, expression.status};
}

rendered render_using_argument(rendering &r, node_using_argument *node, void *) {
    if (!node->expression || !node->identifier)
        return missing_part;
    rendered result = r.enclosed_child("", node->expression, " USING ");
    result.fail_with(r.child(node->identifier));
    return result;
}

rendered render_in_argument(rendering &r, node_in_argument *node, void *) {
    if (!node->expression_1 || !node->expression_2)
        return missing_part;
    rendered result = r.enclosed_child("", node->expression_1, " IN ");
    result.fail_with(r.child(node->expression_2));
    return result;
}

rendered render_from_for_argument(rendering &r, node_from_for_argument *node, void *) {
    if (!node->expression_1 || !node->expression_2)
        return missing_part;
    rendered result = r.enclosed_child("", node->expression_1, " FROM ");
    result.fail_with(r.child(node->expression_2));
    result.fail_with(r.prefixed_child(" FOR ", node->expression_3));
    return result;
}

rendered render_placing_from_for_argument(rendering &r, node_placing_from_for_argument *node,
                                          void *) {
    if (!node->expression_1 || !node->expression_2)
        return missing_part;
    rendered result = r.enclosed_child("", node->expression_1, " PLACING ");
    result.fail_with(r.child(node->expression_2));
    const rendered from = r.prefixed_child(" FROM ", node->expression_3);
    const rendered length = r.prefixed_child(" FOR ", node->expression_4);
    result.fail_with(from);
    result.fail_with(length);
    const bool integers = (!from.text || node->expression_3->sql_type == QUILLET_TYPE_INT8) &&
                          (!length.text || node->expression_4->sql_type == QUILLET_TYPE_INT8);
    node->sql_type = integers ? QUILLET_TYPE_INT8 : QUILLET_TYPE_UNKNOWN;
    return result;
}

rendered render_trim_argument(rendering &r, node_trim_argument *node, void *) {
    if (!node->expression_2)
        return missing_part;
    const std::string_view side = node->mode == QUILLET_TRIM_BOTH       ? "BOTH"
                                  : node->mode == QUILLET_TRIM_LEADING  ? "LEADING"
                                  : node->mode == QUILLET_TRIM_TRAILING ? "TRAILING"
                                                                        : "";
    r.out.append(side);
    const rendered characters = r.prefixed_child(side.empty() ? "" : " ", node->expression_1);
    rendered result{true, true, characters.status};
    result.fail_with(r.enclosed_child(" FROM ", node->expression_2));
    return result;
}

} // namespace quillet
