// The operators of the builder mysql that no text can tell.

#include "quillet_mysql_rendering.h"
#include "quillet_operands.h"

namespace quillet::mysql {

// An interval as the end of a period is counted from its start.
outcome render_overlaps(rendering &r, node_expression *node, void *) {
    static constexpr text_template texts[] = {
        text_template("(NOT (($4 < $1) OR ($3 > $2)))"),
        text_template("(NOT (($4 < $1) OR ($3 > ($1 + $2))))"),
        text_template("(NOT ((($3 + $4) < $1) OR ($3 > $2)))"),
        text_template("(NOT ((($3 + $4) < $1) OR ($3 > ($1 + $2))))"),
    };
    const node_overlaps_expression *first = node->overlaps_expression_1;
    const node_overlaps_expression *second = node->overlaps_expression_2;
    if (!first || !second || !first->expression_1 || !first->expression_2 ||
        !second->expression_1 || !second->expression_2)
        return r.lacks(node);
    operands all(r);
    const auto add = [&](node_expression *operand) {
        return all.add(operand).record && operand->sql_type == QUILLET_TYPE_INTERVAL;
    };
    add(first->expression_1);
    const bool first_interval = add(first->expression_2);
    add(second->expression_1);
    const bool second_interval = add(second->expression_2);
    node->sql_type = QUILLET_TYPE_BOOL;
    return all.write(texts[(first_interval ? 1 : 0) + (second_interval ? 2 : 0)]);
}

} // namespace quillet::mysql
