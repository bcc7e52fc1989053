#include "quillet_expressions.h"

#include "quillet_operators.h"

namespace quillet {

namespace {

using step = expression_step;

// Renders the constant, column, call, cast or CASE that is the whole of an expression, and types
// it. The order of preference is not the one of rendering; a column stands even without a text, and
// the types of columns and of a CASE are not known.
first_with_text render_leaf(rendering &r, node_expression *node) {
    enum preference { constant, call, column, cast, case_ };
    const std::int32_t *type = nullptr;
    first_with_text leaf(r);
    if (leaf.add(node->function_call, call))
        type = &node->function_call->sql_type;
    if (leaf.add(node->column_reference, column, true))
        type = nullptr;
    if (leaf.add(node->const_generic, constant))
        type = &node->const_generic->sql_type;
    if (leaf.add(node->cast_expression, cast))
        type = &node->cast_expression->sql_type;
    leaf.add(node->case_expression, case_);
    if (type)
        node->sql_type = *type;
    return leaf;
}

bool is_only_a_cast(const node_expression &node) {
    return node.cast_expression && node.cast_expression->expression && !node.function_call &&
           !node.column_reference && !node.const_generic && !node.case_expression &&
           !node.expression_1 && !node.expression_2 && !node.operator_;
}

// Begins an expression: renders it whole and stores its outcome, or writes what stands before its
// first operand, says in begun how it goes on, and returns that operand.
node_expression *begin_expression(rendering &r, step &begun, outcome &whole) {
    node_expression *node = begun.node;
    begun.begin = r.out.here();
    if (is_only_a_cast(*node)) {
        if (const dialect *home = r.home_of(&builder::build_cast_expression)) {
            begun.kind = step::type_cast;
            begun.use.home = home;
            home->cast->begin(r, *node->cast_expression);
            return node->cast_expression->expression;
        }
    }

    const first_with_text leaf = render_leaf(r, node);
    whole = {true, leaf.has_text(), leaf.status()};
    if (leaf.is_decided())
        return nullptr;

    if (!node->operator_) {
        if (node->expression_2)
            return nullptr;
        if (!node->expression_1) {
            if (!whole.status)
                whole = r.lacks(node);
            return nullptr;
        }
        r.out.append('(');
        begun.kind = step::parentheses;
        begun.status = whole.status;
        return node->expression_1;
    }

    const int index = operator_index(node->operator_);
    if (index == no_operator)
        return nullptr;
    const auto slot = operator_slots[index];
    if (const dialect *home = r.home_of(slot)) {
        begun.kind = step::application;
        begun.use = {home, index};
        if (begins_with_operand(begun.use, *node)) {
            begin_operator(r, begun.use);
            return node->expression_1;
        }
        whole = render_operator(r, begun.use, node, nullptr);
    } else {
        whole = r.call(r.self->*slot, node, nullptr);
        r.hold_operator(node);
    }
    return nullptr;
}

// Ends an expression whose first operand has the given outcome.
outcome end_expression(rendering &r, const step &begun, const outcome &first) {
    node_expression *node = begun.node;
    switch (begun.kind) {
    case step::application: return end_operator(r, begun.use, node, nullptr, begun.begin, first);
    case step::type_cast: {
        const cast_rule &rule = *begun.use.home->cast;
        const outcome result = rule.end(r, *node->cast_expression, begun.begin, first);
        r.remark(node->cast_expression);
        if (result.text)
            node->sql_type = node->cast_expression->sql_type;
        return result.text || result.status ? result : missing_part;
    }
    case step::parentheses:
        r.out.append(')');
        node->sql_type = node->expression_1->sql_type;
        break;
    }
    outcome result{true, true, begun.status};
    result.fail_with(first);
    return result;
}

// Puts round an expression what belongs there.
void close_frame(rendering &r, const step &begun, outcome &result) {
    if (!result.record)
        return;
    r.out.fill(begun.frame_gap, begun.frame->begin(*begun.node));
    r.out.append(begun.frame->end);
    result.text = true;
}

// How the operands of expressions are rendered: in place, with what goes round them, or by calls.
struct operand_manner {
    bool in_place;
    const expression_frame *frame;
};

operand_manner manner_of_operands(const rendering &r) {
    constexpr auto slot = &builder::build_expression;
    const dialect *home = r.home_of(slot);
    if (!home)
        return {false, nullptr};
    // A frame goes round what the parent's operation renders, which may be a host's.
    const bool in_place = !home->frame || dialect_of(slot, inherited(*r.self, slot));
    return {in_place, home->frame};
}

} // namespace

outcome render_framed_expression(rendering &r, node_expression *node,
                                 const expression_frame *frame) {
    if (r.is_exhausted())
        return refused_part;
    const operand_manner manner = manner_of_operands(r);
    walk<step> steps = r.expression_walk();
    outcome result;
    for (;;) {
        step next{.node = node, .frame = frame};
        if (frame)
            next.frame_gap = r.out.leave_gap();
        node = begin_expression(r, next, result);
        if (!node) {
            if (frame)
                close_frame(r, next, result);
            break;
        }
        steps.down(next);
        if (!manner.in_place) {
            result = r.child(node);
            break;
        }
        frame = manner.frame;
    }
    while (steps.is_down()) {
        const step last = steps.up();
        result = end_expression(r, last, result);
        if (last.frame)
            close_frame(r, last, result);
    }
    return result;
}

outcome render_cast(rendering &r, const cast_rule &rule, node_cast_expression *node) {
    if (!node->expression)
        return r.lacks(node);
    const output::place begin = r.out.here();
    rule.begin(r, *node);
    const outcome result = rule.end(r, *node, begin, r.child(node->expression));
    r.remark(node);
    return result;
}

} // namespace quillet
