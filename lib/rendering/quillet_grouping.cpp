#include "quillet_grouping.h"

#include <algorithm>

#include "quillet_limits.h"

namespace quillet {

namespace {

// PostgreSQL's precedence, from its documentation; what is not named there binds like "other".
constexpr binding other = 7;
constexpr operator_token postgresql_tokens[] = {
    {"OR", 1},         {"AND", 2},    {"NOT", 6, 3},  {"IS", 4},       {"=", 5},
    {"<", 5},          {">", 5},      {"<=", 5},      {">=", 5},       {"!=", 5},
    {"LIKE", 6},       {"ILIKE", 6},  {"SIMILAR", 6}, {"TO", 6},       {"BETWEEN", 6},
    {"OVERLAPS", 6},   {"FROM", 4},   {"+", 8},       {"-", 8, 11},    {"*", 9},
    {"/", 9},          {"%", 9},      {"^", 10},      {"||", other},   {"<<", other},
    {">>", other},     {"&", other},  {"|", other},   {"#", other},    {"~", other, other},
    {"~*", other},     {"!~", other}, {"!~*", other}, {"@", 0, other}, {"|/", 0, other},
    {"||/", 0, other}, {"!", other},
};

constexpr operator_grammar postgresql_grammar = {postgresql_tokens, false};

// The expressions of an operator application, and their number.
std::array<const node_expression *, 3> operands_of(const node_expression &node) {
    return {node.expression_1, node.expression_2, node.expression_3};
}

// Whether an operand stays whole beside its neighbours. Of two operators that bind alike the left
// one comes first.
bool stays_whole(const operator_form::operand_form &form, const open_sides &open) {
    return open.left > form.before && open.right >= form.behind;
}

open_sides sides_of(const operator_form &form, const open_sides (&open)[3], bool is_layered) {
    open_sides sides{held_together, held_together};
    if (is_layered)
        sides = {form.own, form.own};
    for (int i = 0; i < 3; ++i) {
        if (form.operands[i].is_first)
            sides.left = std::min({sides.left, form.own, open[i].left});
        if (form.operands[i].is_last)
            sides.right = std::min({sides.right, form.own, open[i].right});
    }
    return sides;
}

// Whether two databases rank some operators alike. One whose text is a call is out of the ranks.
bool are_ranked_alike(std::uint64_t operators, const operator_forms &a, const operator_forms &b) {
    const auto is_there = [&](std::size_t i) { return ((operators >> i) & 1) != 0; };
    const auto compared = [](binding x, binding y) { return (x > y) - (x < y); };
    for (std::size_t i = 0; i < operator_count; ++i) {
        if (!is_there(i))
            continue;
        if (b[i].own == held_together)
            return false;
        for (std::size_t j = 0; j < i; ++j)
            if (is_there(j) && compared(a[i].own, a[j].own) != compared(b[i].own, b[j].own))
                return false;
    }
    return true;
}

} // namespace

constinit const operator_forms postgresql_forms = [] {
    operator_forms forms{};
#define OPERATOR(name, marked, ...)                                                                \
    forms[operator_id_##name] = form_of(text_template(marked), postgresql_grammar);
#include "quillet_operators.def"
    return forms;
}();

operator_group operator_groups::taken(const node_expression *top, const operator_forms &target) {
    const auto found = std::find_if(groups_.rbegin(), groups_.rend(),
                                    [&](const operator_group &each) { return each.top == top; });
    if (found == groups_.rend())
        return {};
    const operator_group group = *found;
    const auto kept = groups_.rend() - found - 1;
    // What came behind it belongs to parts of it that are held together.
    for (auto each = groups_.begin() + kept + 1; each != groups_.end(); ++each)
        if (differs(*each, target))
            reported_.push_back(each->top);
    groups_.resize(static_cast<std::size_t>(kept));
    return group;
}

void operator_groups::clear() {
    groups_.clear();
    reported_.clear();
    if (groups_.capacity() > QUILLET_KEPT_STEPS_MAXIMUM)
        groups_.shrink_to_fit();
    if (reported_.capacity() > QUILLET_KEPT_STEPS_MAXIMUM)
        reported_.shrink_to_fit();
}

void operator_groups::add(const node_expression *node, int index, const operator_forms &target) {
    const auto position = static_cast<std::size_t>(index);
    const operator_form &source = postgresql_forms[position];
    const operator_form &own = target[position];
    operator_group group;
    group.top = node;
    group.operators = std::uint64_t{1} << index;
    open_sides in_statement[3];
    open_sides in_text[3];
    const auto operands = operands_of(*node);
    for (int i = 2; i >= 0; --i) {
        if (!operands[static_cast<std::size_t>(i)] ||
            !operands[static_cast<std::size_t>(i)]->operator_)
            continue;
        const operator_group below = taken(operands[static_cast<std::size_t>(i)], target);
        in_statement[i] = below.in_statement;
        in_text[i] = below.in_text;
        group.operators |= below.operators;
        group.statement_differs |=
            below.statement_differs || !stays_whole(source.operands[i], below.in_statement);
        group.text_differs |= below.text_differs || !stays_whole(own.operands[i], below.in_text);
    }
    group.in_statement = sides_of(source, in_statement, false);
    group.in_text = sides_of(own, in_text, true);
    groups_.push_back(group);
}

bool operator_groups::differs(const operator_group &group, const operator_forms &target) {
    if (group.statement_differs != group.text_differs)
        return true;
    return group.statement_differs && !are_ranked_alike(group.operators, postgresql_forms, target);
}

} // namespace quillet
