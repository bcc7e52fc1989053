// The default rendering of function calls and their arguments.

#include "quillet_default_rendering.h"
#include "quillet_function_rules.h"
#include "quillet_lists.h"
#include "quillet_name_index.h"
#include "quillet_types.h"

namespace quillet {

namespace {

constexpr name_index<function_count> function_names({
#define FUNCTION(name, rule) #name,
#include "quillet_functions.def"
});

} // namespace

outcome render_function_call(rendering &r, node_function_call *node, void *) {
    if (!node->function_name)
        return r.lacks(node);
    const output::place begin = r.out.here();
    outcome result = r.child(node->function_name);
    const int index = result.text ? function_names.find(r.out.text_since(begin)) : -1;
    if (index >= 0) {
        const auto slot = function_slots[index];
        if (const auto own = r.self->*slot) {
            r.out.cut(begin);
            const dialect *home = r.home_of(slot);
            if (!home)
                return r.call(own, node, nullptr);
            const outcome call = render_function(r, *home, index, node);
            r.remark_function(index, node);
            return call;
        }
    }
    r.out.append('(');
    first_with_text argument(r);
    argument.add(node->expressions_list);
    argument.add(node->agregate_expression);
    argument.add(node->using_argument);
    argument.add(node->placing_from_for_argument);
    argument.add(node->in_argument);
    argument.add(node->from_for_argument);
    argument.add(node->trim_argument);
    r.out.append(')');
    node->sql_type = index >= 0 ? default_type_of(index, *node) : int{QUILLET_TYPE_UNKNOWN};
    r.remark_function(index, node);
    return {true, true, argument.status() ? argument.status() : result.status};
}

outcome render_expressions_list(rendering &r, node_expressions_list *node, void *data) {
    return render_list<&node_expressions_list::expressions_list,
                       &node_expressions_list::expression>(r, node, data, comma);
}

outcome render_agregate_expression(rendering &r, node_agregate_expression *node, void *) {
    const output::place begin = r.out.here();
    r.out.append(node->type == QUILLET_AGREGATE_DISTINCT ? "DISTINCT " : "ALL ");
    const outcome expression = r.child(node->expression);
    switch (node->type) {
    case QUILLET_AGREGATE_DISTINCT:
    case QUILLET_AGREGATE_ALL: return {true, true, expression.status};
    default: break;
    }
    r.out.cut(begin);
    if (node->type == QUILLET_AGREGATE_STAR)
        r.out.append('*');
    return {true, node->type == QUILLET_AGREGATE_STAR, expression.status};
}

outcome render_using_argument(rendering &r, node_using_argument *node, void *) {
    if (!node->expression || !node->identifier)
        return r.lacks(node);
    outcome result = r.enclosed_child("", node->expression, " USING ");
    result.fail_with(r.child(node->identifier));
    return result;
}

outcome render_in_argument(rendering &r, node_in_argument *node, void *) {
    if (!node->expression_1 || !node->expression_2)
        return r.lacks(node);
    outcome result = r.enclosed_child("", node->expression_1, " IN ");
    result.fail_with(r.child(node->expression_2));
    return result;
}

outcome render_from_for_argument(rendering &r, node_from_for_argument *node, void *) {
    if (!node->expression_1 || !node->expression_2)
        return r.lacks(node);
    outcome result = r.enclosed_child("", node->expression_1, " FROM ");
    result.fail_with(r.child(node->expression_2));
    result.fail_with(r.prefixed_child(" FOR ", node->expression_3));
    return result;
}

outcome render_placing_from_for_argument(rendering &r, node_placing_from_for_argument *node,
                                         void *) {
    if (!node->expression_1 || !node->expression_2)
        return r.lacks(node);
    outcome result = r.enclosed_child("", node->expression_1, " PLACING ");
    result.fail_with(r.child(node->expression_2));
    const outcome from = r.prefixed_child(" FROM ", node->expression_3);
    const outcome length = r.prefixed_child(" FOR ", node->expression_4);
    result.fail_with(from);
    result.fail_with(length);
    const bool integers = (!from.text || node->expression_3->sql_type == QUILLET_TYPE_INT8) &&
                          (!length.text || node->expression_4->sql_type == QUILLET_TYPE_INT8);
    node->sql_type = integers ? QUILLET_TYPE_INT8 : QUILLET_TYPE_UNKNOWN;
    return result;
}

outcome render_trim_argument(rendering &r, node_trim_argument *node, void *) {
    if (!node->expression_2)
        return r.lacks(node);
    const std::string_view side = node->mode == QUILLET_TRIM_BOTH       ? "BOTH"
                                  : node->mode == QUILLET_TRIM_LEADING  ? "LEADING"
                                  : node->mode == QUILLET_TRIM_TRAILING ? "TRAILING"
                                                                        : "";
    r.out.append(side);
    const outcome characters = r.prefixed_child(side.empty() ? "" : " ", node->expression_1);
    outcome result{true, true, characters.status};
    result.fail_with(r.enclosed_child(" FROM ", node->expression_2));
    return result;
}

} // namespace quillet
