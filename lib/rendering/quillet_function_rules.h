/*
 * Rendering of function calls by a dialect's rules. Internal.
 */
#ifndef QUILLET_FUNCTION_RULES_H
#define QUILLET_FUNCTION_RULES_H

#include "quillet_operands.h"

namespace quillet {

// Renders a function call by a dialect's rule, whatever its slot holds.
outcome render_function(rendering &r, const dialect &home, int index, node_function_call *call);

// The body of a function's public operation.
build_result *render_function_alone(const dialect &home, int index, builder *self,
                                    node_function_call *call);

// The type of a call by the default rule of its function.
int default_type_of(int function, const node_function_call &call);

// The arguments of a plain call, NULL for none.

inline node_expression *last_argument(const node_function_call &call) {
    return call.expressions_list ? call.expressions_list->expression : nullptr;
}

inline node_expression *previous_argument(const node_function_call &call) {
    const node_expressions_list *list = call.expressions_list;
    return list && list->expressions_list ? list->expressions_list->expression : nullptr;
}

} // namespace quillet

#endif
