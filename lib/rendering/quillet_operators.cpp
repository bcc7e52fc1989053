#include "quillet_operators.h"

#include "quillet_name_index.h"
#include "quillet_types.h"

namespace quillet {

namespace {

constexpr name_index<operator_count> indices({
#define OPERATOR(name, ...) "operator_" #name,
#include "quillet_operators.def"
});

// The text that says which operands are rendered: it need not be the one that they get.
const text_template &form_of(operator_use use) {
    const operator_rule &rule = use.rule();
    return rule.is_truth_test()    ? rule.by_truth[0]
           : rule.by_types.empty() ? rule.text
                                   : use.default_rule().text;
}

// The text, if it is known before the operands are.
const text_template *known_text(const operator_rule &rule) {
    return rule.is_truth_test() || !rule.by_types.empty() ? nullptr : &rule.text;
}

bool has_operand(const node_expression &node, operand mark) {
    switch (mark) {
    case operand::first: return node.expression_1 != nullptr;
    case operand::second: return node.expression_2 != nullptr;
    case operand::third: return node.expression_3 != nullptr;
    case operand::truth: return node.const_boolean != nullptr;
    case operand::pair_1: return node.overlaps_expression_1 != nullptr;
    case operand::pair_2: return node.overlaps_expression_2 != nullptr;
    case operand::fourth: // operators have three operands
    case operand::escape: // and may have an ESCAPE
    case operand::none: break;
    }
    return true;
}

bool is_missing_operand(operator_use use, const node_expression &node) {
    const operator_rule &rule = use.rule();
    if (!rule.needs_all)
        return false;
    const text_template &needed = known_text(rule) ? rule.text : use.default_rule().text;
    for (int i = 0; i < needed.operand_count; ++i)
        if (!has_operand(node, needed.operands[i]))
            return true;
    return false;
}

outcome add_operand(operands &all, operand mark, const node_expression &node) {
    switch (mark) {
    case operand::first: return all.add(node.expression_1);
    case operand::second: return all.add(node.expression_2);
    case operand::third: return all.add(node.expression_3);
    case operand::truth: return all.add(node.const_boolean);
    case operand::escape: return all.add_spaced(node.escape);
    case operand::pair_1: return all.add(node.overlaps_expression_1);
    case operand::pair_2: return all.add(node.overlaps_expression_2);
    case operand::fourth:
    case operand::none: break;
    }
    return absent;
}

// The type of an operand as its rendering left it.
std::int32_t type_of(const node_expression *node, const outcome &result) {
    return node && result.record ? node->sql_type : 0;
}

const typed_text *text_for(std::span<const typed_text> texts, int left, int right) {
    for (const typed_text &row : texts)
        if (row.left.has(left) && row.right.has(right))
            return &row;
    return nullptr;
}

// Gives the operands the text that their types choose, or the default one.
outcome write_by_types(rendering &r, operator_use use, node_expression *node, void *data,
                       operands &all, int left, int right) {
    if (const typed_text *chosen = text_for(use.rule().by_types, left, right)) {
        if (chosen->refusal) {
            all.drop();
            return r.refuse(*use.home, node, chosen->refusal, seen::yes);
        }
        node->sql_type = chosen->type;
        return all.write(chosen->text, chosen->skipped);
    }
    const auto slot = operator_slots[use.index];
    const auto deferred_to = inherited(*r.self, slot);
    if (!deferred_to || !dialect_of(slot, deferred_to)) {
        all.drop();
        return r.call(deferred_to, node, data);
    }
    node->sql_type = use.default_rule().type(left, right);
    return all.write(use.default_rule().text);
}

outcome write_by_truth(const operator_rule &rule, node_expression *node, operands &all) {
    const int value = node->const_boolean->value;
    node->sql_type = QUILLET_TYPE_BOOL;
    if (value >= QUILLET_TRUTH_TRUE && value <= QUILLET_TRUTH_UNKNOW)
        return all.write(rule.by_truth[static_cast<std::size_t>(value - QUILLET_TRUTH_TRUE)]);
    all.drop();
    return {true, false, all.status()};
}

// Writes the text for operands whose types are known.
outcome write(rendering &r, operator_use use, node_expression *node, void *data, operands &all,
              int left, int right) {
    const operator_rule &rule = use.rule();
    if (rule.is_truth_test())
        return write_by_truth(rule, node, all);
    if (!rule.by_types.empty())
        return write_by_types(r, use, node, data, all, left, right);
    node->sql_type = use.default_rule().type(left, right);
    return all.write(rule.text);
}

// Renders the operands from the given one on, and writes the text.
outcome complete(rendering &r, operator_use use, node_expression *node, void *data, operands &all,
                 int next, outcome first) {
    const text_template &form = form_of(use);
    outcome second;
    for (int i = next; i < form.operand_count; ++i) {
        const operand mark = form.operands[i];
        const outcome result = add_operand(all, mark, *node);
        if (mark == operand::first)
            first = result;
        else if (mark == operand::second)
            second = result;
    }
    const outcome result = write(r, use, node, data, all, type_of(node->expression_1, first),
                                 type_of(node->expression_2, second));
    r.remark_operator(use.index, node);
    return result;
}

} // namespace

// The name must match to the letter, as the parser stores it.
int operator_index(const char *name) {
    const std::size_t own = operator_of_own_name(name);
    return own < operator_count ? static_cast<int>(own) : indices.find_in_lower_case(name);
}

bool begins_with_operand(operator_use use, const node_expression &node) {
    const operator_rule &rule = use.rule();
    return !rule.refusal && !rule.own && form_of(use).begins_with_operand() && node.expression_1 &&
           !is_missing_operand(use, node);
}

void begin_operator(rendering &r, operator_use use) {
    operands(r, known_text(use.rule())).before();
}

outcome end_operator(rendering &r, operator_use use, node_expression *node, void *data,
                     output::place begin, const outcome &first) {
    operands all(r, known_text(use.rule()), begin);
    all.resume(first);
    return complete(r, use, node, data, all, 1, first);
}

outcome render_operator(rendering &r, operator_use use, node_expression *node, void *data) {
    const operator_rule &rule = use.rule();
    if (rule.refusal) {
        const outcome refused = r.refuse(*use.home, node, rule.refusal);
        r.hold_operator(node);
        return refused;
    }
    if (rule.own) {
        const outcome result = rule.own(r, node, data);
        r.remark_operator(use.index, node);
        return result;
    }
    if (is_missing_operand(use, *node))
        return r.lacks(node);
    operands all(r, known_text(rule));
    return complete(r, use, node, data, all, 0, absent);
}

build_result *render_operator_alone(operator_use use, builder *self, node_expression *node,
                                    void *data) {
    const auto render = [use](rendering &r, node_expression *own, void *own_data) {
        return render_operator(r, use, own, own_data);
    };
    return render_alone(render, self, node, data);
}

} // namespace quillet
