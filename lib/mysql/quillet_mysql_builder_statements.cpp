// Clauses, names and truth values of the builder mysql.

#include "quillet_mysql_rendering.h"
#include "quillet_operands.h"

namespace quillet::mysql {

outcome render_const_boolean(rendering &r, node_const_boolean *node, void *) {
    r.out.append(node->value == QUILLET_TRUTH_TRUE    ? "1"
                 : node->value == QUILLET_TRUTH_FALSE ? "0"
                                                      : "NULL");
    node->sql_type = QUILLET_TYPE_BOOL;
    return a_text;
}

// MySQL takes the offset first.
outcome render_limit_clausule(rendering &r, node_limit_clausule *node, void *) {
    static constexpr text_template count_alone("LIMIT $1");
    static constexpr text_template count_and_offset("LIMIT $2,$1");
    operands both(r);
    const outcome count = both.add(node->const_integer_1);
    const outcome offset = node->const_integer_2 ? both.add(node->const_integer_2) : absent;
    if (!count.text) {
        both.drop();
        return refuse(r, node, reason::OFFSET_ALONE, seen::yes);
    }
    return both.write(offset.text ? count_and_offset : count_alone);
}

// A truth value is shown as PostgreSQL shows it, as a word.
outcome render_select_item(rendering &r, node_select_item *node, void *) {
    const output::gap before = r.out.leave_gap();
    outcome expression = r.child(node->expression);
    if (expression.record && node->expression->sql_type == QUILLET_TYPE_BOOL) {
        r.out.fill(before, "IF(");
        r.out.append(", 'TRUE', 'FALSE')");
        expression.text = true;
    }
    const outcome result = complete_select_item(r, node->identifier, expression);
    r.remark(node);
    return result;
}

// A double quote at either end becomes a backquote.
outcome render_identifier(rendering &r, node_identifier *node, void *) {
    if (!node->name)
        return r.lacks(node);
    const output::place begin = r.out.here();
    r.append_of_tree(node->name);
    r.out.replace_at_ends(begin, '"', '`');
    return a_text;
}

// DEFAULT needs the name of its column, which the list of values hands over as data.
outcome render_expression_or_default_item(rendering &r, node_expression_or_default_item *node,
                                          void *data) {
    if (node->expression)
        return r.defer(node, data);
    const auto *column = static_cast<const node_identifier *>(data);
    if (!column || !column->name)
        return refuse(r, node, reason::DEFAULT_VALUE);
    r.out.append("DEFAULT(");
    r.out.append(column->name);
    r.out.append(')');
    return a_text;
}

} // namespace quillet::mysql
