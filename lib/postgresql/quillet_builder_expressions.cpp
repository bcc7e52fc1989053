// The default rendering of expressions and of what belongs to them.

#include "quillet_default_rendering.h"
#include "quillet_expressions.h"
#include "quillet_lists.h"

namespace quillet {

outcome render_expression(rendering &r, node_expression *node, void *) {
    return render_framed_expression(r, node, nullptr);
}

outcome render_overlaps_expression(rendering &r, node_overlaps_expression *node, void *) {
    if (!node->expression_1 || !node->expression_2)
        return r.lacks(node);
    outcome result = r.enclosed_child("", node->expression_1, ", ");
    result.fail_with(r.child(node->expression_2));
    return result;
}

// CASE. Its end has a blank of its own, which stays when there is no ELSE before it.

outcome render_case_expression(rendering &r, node_case_expression *node, void *) {
    if (!node->when_list)
        return r.lacks(node);
    r.remark(node);
    r.out.append("CASE ");
    const output::place begin = r.out.here();
    outcome result = a_text;
    result.fail_with(r.child(node->expression));
    result.fail_with(r.spaced_child(begin, node->when_list));
    if (r.out.has_grown_since(begin))
        r.out.append(' ');
    result.fail_with(r.child(node->else_clausule));
    r.out.append(" END");
    return result;
}

outcome render_when_list(rendering &r, node_when_list *node, void *data) {
    return render_list<&node_when_list::when_list, &node_when_list::when_item>(r, node, data,
                                                                               blank);
}

outcome render_when_item(rendering &r, node_when_item *node, void *) {
    if (!node->expression_1 || !node->expression_2)
        return r.lacks(node);
    outcome result = r.enclosed_child("WHEN ", node->expression_1, " THEN ");
    result.fail_with(r.child(node->expression_2));
    return result;
}

outcome render_else_clausule(rendering &r, node_else_clausule *node, void *) {
    if (!node->expression)
        return r.lacks(node);
    return r.enclosed_child("ELSE ", node->expression);
}

} // namespace quillet
