// Clauses, names and truth values of the builder mysql.

#include "quillet_mysql_rendering.h"

namespace quillet {

rendered render_const_boolean_mysql(rendering &r, node_const_boolean *node, void *) {
    r.out.append(node->value == QUILLET_TRUTH_TRUE    ? "1"
                 : node->value == QUILLET_TRUTH_FALSE ? "0"
                                                      : "NULL");
    node->sql_type = QUILLET_TYPE_BOOL;
    return a_text;
}

// MySQL takes the offset first.
rendered render_limit_clausule_mysql(rendering &r, node_limit_clausule *node, void *) {
    static constexpr text_template count_alone("LIMIT $1");
    static constexpr text_template count_and_offset("LIMIT $2,$1");
    operand_texts operands(r);
    const rendered count = operands.add(node->const_integer_1);
    const rendered offset = operands.add(node->const_integer_2);
    if (!count.text) {
        operands.drop();
        return refuse(mysql_error_OFFSET_ALONE);
    }
    return operands.write(offset.text ? count_and_offset : count_alone);
}

// A truth value is shown as PostgreSQL shows it, as a word.
rendered render_select_item_mysql(rendering &r, node_select_item *node, void *) {
    const std::size_t before = r.reserve_insertion();
    rendered expression = r.child(node->expression);
    if (expression.record && node->expression->sql_type == QUILLET_TYPE_BOOL) {
        r.insert(before, "IF(");
        r.out.append(", 'TRUE', 'FALSE')");
        expression.text = true;
    }
    return complete_select_item(r, node->identifier, expression);
}

rendered render_identifier_mysql(rendering &r, node_identifier *node, void *) {
    if (!node->name)
        return missing_part;
    const std::size_t begin = r.out.size();
    r.out.append(node->name);
    if (r.out.size() == begin)
        return a_text;
    for (char *quote : {r.out.at(begin), r.out.at(r.out.size() - 1)})
        if (*quote == '"')
            *quote = '`';
    return a_text;
}

// DEFAULT needs the name of its column, which the list of values hands over as data.
rendered render_expression_or_default_item_mysql(rendering &r,
                                                 node_expression_or_default_item *node,
                                                 void *data) {
    if (node->expression)
        return render_expression_or_default_item(r, node, data);
    const auto *column = static_cast<const node_identifier *>(data);
    if (!column || !column->name)
        return refuse(mysql_error_DEFAULT_VALUE);
    r.out.append("DEFAULT(");
    r.out.append(column->name);
    r.out.append(')');
    return a_text;
}

} // namespace quillet
