// The default rendering of expressions: the walk along their left spine, and the operators.

#include <algorithm>
#include <iterator>
#include <string>

#include "quillet_builder_lists.h"
#include "quillet_name_index.h"
#include "quillet_types.h"

namespace quillet {

namespace {

constexpr std::string_view operator_prefix = "operator_";

constexpr name_index<std::size(operator_slots)> operator_names({
#define OPERATOR(name, ...) #name,
#include "quillet_operators.def"
});

} // namespace

// The name must match to the letter, as the parser stores it.
int operator_index(std::string_view name) {
    if (!name.starts_with(operator_prefix))
        return no_operator;
    name.remove_prefix(operator_prefix.size());
    return operator_names.find_in_lower_case(name);
}

namespace {

std::int32_t type_of(const node_expression *node, rendered result) {
    return node && result.record ? node->sql_type : 0;
}

bool has_all_operands(const text_template &text, const node_expression &node) {
    for (int i = 0; i < text.count; ++i) {
        const bool there = [&] {
            switch (text.pieces[i].mark) {
            case operand::first: return node.expression_1 != nullptr;
            case operand::second: return node.expression_2 != nullptr;
            case operand::third: return node.expression_3 != nullptr;
            case operand::fourth: return false; // operators have three operands
            case operand::truth: return node.const_boolean != nullptr;
            case operand::pair_1: return node.overlaps_expression_1 != nullptr;
            case operand::pair_2: return node.overlaps_expression_2 != nullptr;
            case operand::escape:
            case operand::none: break;
            }
            return true;
        }();
        if (!there)
            return false;
    }
    return true;
}

// A part of the text.
struct region {
    std::size_t begin = 0;
    std::size_t size = 0;
};

// Renders what follows an operator's first operand, whose outcome is first, and types the node.
// The operation's text begins at begin.
rendered complete_by_text(rendering &r, const operator_rule &rule, node_expression *node,
                          rendering::place begin, rendered first) {
    const text_template &text = rule.text;
    rendered result{true, true, first.status};
    rendered second;
    region first_text;
    region second_text;
    const auto dropped = [&] {
        r.drop_from(begin);
        return refused;
    };
    std::size_t before_escape = 0; // where the operand begins that an ESCAPE follows
    int i = 0;
    if (text.begins_with_operand()) {
        i = 1;
        first_text.begin = begin.size + text.pieces[0].literal.size();
        if (text.repeats)
            r.settle(begin);
        first_text.size = r.out.size() - first_text.begin;
    }
    for (; i < text.count; ++i) {
        const text_template::piece &piece = text.pieces[i];
        r.out.append(piece.literal);
        if (!piece.literal.empty())
            before_escape = 0;
        switch (piece.mark) {
        case operand::first:
            if (!r.has_room_for(first_text.size))
                return dropped();
            r.out.append_copy(first_text.begin, first_text.size);
            break;
        case operand::second: {
            if (second_text.begin != 0) {
                if (!r.has_room_for(second_text.size))
                    return dropped();
                r.out.append_copy(second_text.begin, second_text.size);
                break;
            }
            const auto second_begin = r.here();
            second = r.child(node->expression_2);
            result.fail_with(second);
            if (text.repeats)
                r.settle(second_begin);
            second_text = {second_begin.size, r.out.size() - second_begin.size};
            before_escape = second_begin.size;
            break;
        }
        case operand::third: result.fail_with(r.child(node->expression_3)); break;
        case operand::truth: result.fail_with(r.child(node->const_boolean)); break;
        case operand::escape: result.fail_with(r.spaced_child(before_escape, node->escape)); break;
        case operand::pair_1: result.fail_with(r.child(node->overlaps_expression_1)); break;
        case operand::pair_2: result.fail_with(r.child(node->overlaps_expression_2)); break;
        case operand::fourth:
        case operand::none: break;
        }
    }
    node->sql_type =
        rule.type(type_of(node->expression_1, first), type_of(node->expression_2, second));
    return result;
}

bool is_in_order(const text_template &text) { return text.begins_with_operand(); }

// The same for a rule that chooses its text by the operands' types. What stands before and between
// them is put in afterwards.
rendered complete_by_choice(rendering &r, const operator_rule &rule, node_expression *node,
                            rendering::place begin, rendered first) {
    const auto before_second = r.here();
    const std::size_t between = r.reserve_insertion();
    const rendered second = r.child(node->expression_2);
    rendered result{true, true, first.status};
    result.fail_with(second);

    const operator_choice choice =
        rule.choose(rule, type_of(node->expression_1, first), type_of(node->expression_2, second));
    if (!choice.text) {
        r.drop_from(begin);
        return refused;
    }
    node->sql_type = choice.type;
    const text_template &text = *choice.text;
    if (is_in_order(text) && !choice.skipped) {
        r.insert(begin.insertions, text.pieces[0].literal);
        if (text.count > 1)
            r.insert(between, text.pieces[1].literal);
        if (text.count > 2)
            r.out.append(text.pieces[2].literal);
        return result;
    }
    r.settle(before_second);
    const std::size_t second_size = r.out.size() - before_second.size;
    r.settle(begin);
    const std::string operands(r.out.from(begin.size));
    r.drop_from(begin);
    const std::string_view both(operands);
    const std::size_t split = both.size() - second_size;
    append_filled(
        r.out, text,
        {both.substr(0, split).substr(std::min(choice.skipped, split)), both.substr(split)});
    return result;
}

// What can be the whole of an expression; an earlier one is preferred to a later one.
enum class leaf : std::uint8_t {
    const_generic,
    function_call,
    column_reference,
    cast,
    case_,
    none
};

struct chosen_leaf {
    leaf kind = leaf::none;
    bool has_text = false;
    std::int32_t status = 0;
    rendering::place begin{};
};

template <class Node> void try_leaf(rendering &r, leaf kind, Node *child, chosen_leaf &chosen) {
    if (!child)
        return;
    const rendering::place begin = r.here();
    const rendered result = r.child(child);
    if (result.status)
        chosen.status = result.status;
    if (!result.text && kind != leaf::column_reference)
        return;
    if (kind > chosen.kind) {
        r.drop_from(begin);
        return;
    }
    if (chosen.kind == leaf::none)
        chosen.begin = begin;
    else
        r.drop_between(chosen.begin, begin);
    chosen.kind = kind;
    chosen.has_text = result.text;
}

// Renders the constant, column, call, cast or CASE of an expression and types it.
rendered render_leaf(rendering &r, node_expression *node, chosen_leaf &chosen) {
    try_leaf(r, leaf::function_call, node->function_call, chosen);
    try_leaf(r, leaf::column_reference, node->column_reference, chosen);
    try_leaf(r, leaf::const_generic, node->const_generic, chosen);
    try_leaf(r, leaf::cast, node->cast_expression, chosen);
    try_leaf(r, leaf::case_, node->case_expression, chosen);
    switch (chosen.kind) {
    case leaf::const_generic: node->sql_type = node->const_generic->sql_type; break;
    case leaf::function_call: node->sql_type = node->function_call->sql_type; break;
    case leaf::cast: node->sql_type = node->cast_expression->sql_type; break;
    case leaf::column_reference: // the types of columns are not known
    case leaf::case_:
    case leaf::none: break;
    }
    return {true, chosen.has_text, chosen.status};
}

using step = rendering::expression_step;

const operator_rule &picked(const operator_rule &rule, const node_expression &node) {
    return rule.pick ? rule.pick(node) : rule;
}

// Whether a rule's rendering begins with the first operand, so that the walk can go down there.
bool goes_down(const operator_rule &rule, const node_expression &node) {
    return !rule.instead && rule.text.begins_with_operand() && node.expression_1 &&
           (!rule.needs_all || has_all_operands(rule.text, node));
}

// Writes what stands before the first operand, or keeps a place for it.
void begin_operation(rendering &r, const operator_rule &rule) {
    if (rule.choose)
        r.reserve_insertion();
    else
        r.out.append(rule.text.pieces[0].literal);
}

rendered end_operation(rendering &r, const operator_rule &rule, node_expression *node,
                       rendering::place begin, rendered first) {
    return rule.choose ? complete_by_choice(r, rule, node, begin, first)
                       : complete_by_text(r, rule, node, begin, first);
}

bool is_only_a_cast(const node_expression &node) {
    return node.cast_expression && node.cast_expression->expression && !node.function_call &&
           !node.column_reference && !node.const_generic && !node.case_expression &&
           !node.expression_1 && !node.expression_2 && !node.operator_;
}

// Begins an expression: renders it whole and returns its outcome, or writes what stands before its
// first operand, says in begun how it goes on, and returns that operand.
node_expression *begin_expression(rendering &r, step &begun, rendered &outcome) {
    node_expression *node = begun.node;
    begun.begin = r.here();
    if (is_only_a_cast(*node)) {
        constexpr auto slot = &builder::build_cast_expression;
        if (const dialect *home = rendering::dialect_of(slot, r.self->*slot)) {
            begun.kind = step::type_cast;
            begun.cast = home->cast;
            begun.cast->begin(r, *node->cast_expression);
            return node->cast_expression->expression;
        }
    }

    chosen_leaf chosen;
    outcome = render_leaf(r, node, chosen);
    if (chosen.kind != leaf::none)
        return nullptr;

    if (!node->operator_) {
        if (node->expression_2)
            return nullptr;
        if (!node->expression_1) {
            if (!outcome.status)
                outcome = missing_part;
            return nullptr;
        }
        r.out.append('(');
        begun.kind = step::parentheses;
        begun.status = outcome.status;
        return node->expression_1;
    }

    const int index = operator_index(node->operator_);
    if (index == no_operator)
        return nullptr;
    const auto slot = operator_slots[index];
    const auto own = r.self->*slot;
    if (!own) {
        outcome = absent;
        return nullptr;
    }
    const dialect *home = rendering::dialect_of(slot, own);
    if (!home) {
        outcome = r.take(own(r.self, node, nullptr));
        return nullptr;
    }
    const operator_rule &rule = picked(home->operators[index], *node);
    if (!goes_down(rule, *node)) {
        outcome = render_by_rule(r, rule, node);
        return nullptr;
    }
    begun.kind = step::operation;
    begun.rule = &rule;
    begin_operation(r, rule);
    return node->expression_1;
}

// Ends an expression whose first operand has the given outcome.
rendered end_expression(rendering &r, const step &begun, rendered first) {
    node_expression *node = begun.node;
    switch (begun.kind) {
    case step::operation: return end_operation(r, *begun.rule, node, begun.begin, first);
    case step::type_cast: {
        const rendered result = begun.cast->end(r, *node->cast_expression, begun.begin, first);
        if (result.text)
            node->sql_type = node->cast_expression->sql_type;
        return result.text || result.status ? result : missing_part;
    }
    case step::parentheses:
        r.out.append(')');
        node->sql_type = node->expression_1->sql_type;
        break;
    }
    rendered result{true, true, begun.status};
    result.fail_with(first);
    return result;
}

rendered close_frame(rendering &r, const step &begun, rendered result) {
    if (!begun.frame || !result.record)
        return result;
    r.insert(begun.begin.insertions - 1, begun.frame->begin(*begun.node));
    r.out.append(begun.frame->end);
    result.text = true;
    return result;
}

} // namespace

rendered render_by_rule(rendering &r, const operator_rule &rule, node_expression *node) {
    if (rule.pick)
        return render_by_rule(r, rule.pick(*node), node);
    if (rule.instead)
        return rule.instead(r, node);
    if (rule.needs_all && !has_all_operands(rule.text, *node))
        return missing_part;
    const auto begin = r.here();
    rendered first;
    if (rule.text.begins_with_operand()) {
        begin_operation(r, rule);
        first = r.child(node->expression_1);
    }
    return end_operation(r, rule, node, begin, first);
}

// Goes down through first operands as long as they are rendered by this very operation, then
// completes the expressions on the way back up: a chain of operators needs no stack.
rendered render_expression_framed(rendering &r, node_expression *node,
                                  const expression_frame *frame) {
    const dialect *home =
        rendering::dialect_of(&builder::build_expression, r.self->build_expression);
    const std::size_t base = r.steps.size();
    rendered result;
    if (r.is_exhausted())
        return refused;
    for (;;) {
        step next{.node = node, .frame = frame};
        if (frame)
            r.reserve_insertion();
        node = begin_expression(r, next, result);
        if (!node) {
            result = close_frame(r, next, result);
            break;
        }
        r.steps.push_back(next);
        if (!home) {
            result = r.child(node);
            break;
        }
        frame = home->frame;
    }
    while (r.steps.size() > base) {
        const step last = r.steps.back();
        r.steps.pop_back();
        if (r.steps.size() > base + fetched_ahead)
            fetch(r.steps[r.steps.size() - fetched_ahead].node);
        result = close_frame(r, last, end_expression(r, last, result));
    }
    return result;
}

rendered render_expression(rendering &r, node_expression *node, void *) {
    return render_expression_framed(r, node, nullptr);
}

const cast_rule default_cast = {
    [](rendering &r, const node_cast_expression &) { r.out.append("CAST("); },
    [](rendering &r, node_cast_expression &node, rendering::place, rendered operand) {
        r.out.append(" AS ");
        r.out.append(quillet_type_to_string(node.type));
        r.out.append(')');
        node.sql_type = node.type;
        return rendered{true, true, operand.status};
    }};

rendered render_cast(rendering &r, const cast_rule &rule, node_cast_expression *node) {
    if (!node->expression)
        return missing_part;
    const auto begin = r.here();
    rule.begin(r, *node);
    return rule.end(r, *node, begin, r.child(node->expression));
}

rendered render_cast_expression(rendering &r, node_cast_expression *node, void *) {
    return render_cast(r, default_cast, node);
}

rendered render_overlaps_expression(rendering &r, node_overlaps_expression *node, void *) {
    if (!node->expression_1 || !node->expression_2)
        return missing_part;
    rendered result = r.enclosed_child("", node->expression_1, ", ");
    result.fail_with(r.child(node->expression_2));
    return result;
}

// CASE. Its end has a blank of its own, which stays when there is no ELSE before it.

rendered render_case_expression(rendering &r, node_case_expression *node, void *) {
    if (!node->when_list)
        return missing_part;
    r.out.append("CASE ");
    const std::size_t begin = r.out.size();
    rendered result = a_text;
    result.fail_with(r.child(node->expression));
    result.fail_with(r.spaced_child(begin, node->when_list));
    if (r.out.size() > begin)
        r.out.append(' ');
    result.fail_with(r.child(node->else_clausule));
    r.out.append(" END");
    return result;
}

rendered render_when_list(rendering &r, node_when_list *node, void *data) {
    return render_list<&node_when_list::when_list, &node_when_list::when_item>(r, node, data,
                                                                               blank);
}

rendered render_when_item(rendering &r, node_when_item *node, void *) {
    if (!node->expression_1 || !node->expression_2)
        return missing_part;
    rendered result = r.enclosed_child("WHEN ", node->expression_1, " THEN ");
    result.fail_with(r.child(node->expression_2));
    return result;
}

rendered render_else_clausule(rendering &r, node_else_clausule *node, void *) {
    if (!node->expression)
        return missing_part;
    return r.enclosed_child("ELSE ", node->expression);
}

} // namespace quillet
