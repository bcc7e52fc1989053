/*
 * Rendering of expressions, along their chains. Internal.
 */
#ifndef QUILLET_EXPRESSIONS_H
#define QUILLET_EXPRESSIONS_H

#include "quillet_rendering.h"

namespace quillet {

// Renders an expression with all its operands; frame goes round it, NULL for none. Goes down
// through first operands as long as they are rendered by this very operation, then completes the
// expressions on the way back up: a chain of operators or casts needs no stack.
outcome render_framed_expression(rendering &r, node_expression *node,
                                 const expression_frame *frame);

// Renders a cast by a rule.
outcome render_cast(rendering &r, const cast_rule &rule, node_cast_expression *node);

} // namespace quillet

#endif
