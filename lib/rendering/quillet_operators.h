/*
 * Rendering of operators by a dialect's rules. Internal.
 */
#ifndef QUILLET_OPERATORS_H
#define QUILLET_OPERATORS_H

#include "quillet_operands.h"

namespace quillet {

inline constexpr int no_operator = -1;

// Returns the index of an operator by the name that an expression stores, no_operator for an
// unknown one.
int operator_index(const char *name);

// Renders an operator application by a dialect's rule, whatever its slot holds.
outcome render_operator(rendering &r, operator_use use, node_expression *node, void *data);

// The same in two halves round the first operand, which somebody else renders in between.

// Whether the rendering has two halves.
bool begins_with_operand(operator_use use, const node_expression &node);
// Writes what stands before the first operand.
void begin_operator(rendering &r, operator_use use);
// Renders the rest. The text began at begin; first is the outcome of the first operand.
outcome end_operator(rendering &r, operator_use use, node_expression *node, void *data,
                     output::place begin, const outcome &first);

// The body of an operator's public operation.
build_result *render_operator_alone(operator_use use, builder *self, node_expression *node,
                                    void *data);

} // namespace quillet

#endif
