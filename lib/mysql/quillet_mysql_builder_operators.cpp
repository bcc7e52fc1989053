// The operators of the builder mysql whose text depends on more than the operator.

#include "quillet_mysql_rendering.h"

namespace quillet {

// Truth tests, by the truth value that is asked for.

namespace {

constexpr operator_rule truth_rule(const char *text) {
    return {text_template(text), true, result_type<quillet_get_result_type_bool_one>};
}

constexpr operator_rule is_rules[] = {truth_rule("IF($1 IS NULL, 0, $1 != 0)"),
                                      truth_rule("IF($1 IS NULL, 0, $1 = 0)"),
                                      truth_rule("$1 IS NULL")};

constexpr operator_rule is_not_rules[] = {truth_rule("IF($1 IS NULL, 1, $1 = 0)"),
                                          truth_rule("IF($1 IS NULL, 1, $1 != 0)"),
                                          truth_rule("$1 IS NOT NULL")};

// A test for what is no truth value has no text.
const operator_rule other_truth = {.text = {}, .instead = [](rendering &r, node_expression *node) {
                                       if (!node->expression_1 || !node->const_boolean)
                                           return missing_part;
                                       const auto begin = r.here();
                                       const rendered tested = r.child(node->expression_1);
                                       r.drop_from(begin);
                                       node->sql_type = QUILLET_TYPE_BOOL;
                                       return rendered{true, false, tested.status};
                                   }};

const operator_rule &pick_truth(const operator_rule (&rules)[3], const node_expression &node) {
    const int value = node.const_boolean ? node.const_boolean->value : 0;
    const bool known = value >= QUILLET_TRUTH_TRUE && value <= QUILLET_TRUTH_UNKNOW;
    return known ? rules[value - QUILLET_TRUTH_TRUE] : other_truth;
}

} // namespace

const operator_rule &pick_is(const node_expression &node) { return pick_truth(is_rules, node); }

const operator_rule &pick_is_not(const node_expression &node) {
    return pick_truth(is_not_rules, node);
}

// Arithmetic with dates, times and intervals. The conditions are tested in order; what none of them
// covers gets the default text.

namespace {

operator_choice no_choice(mysql_error reason) {
    refuse(reason);
    return {};
}

operator_choice by_default(const operator_rule &rule, int left, int right) {
    return {&rule.text, rule.type(left, right)};
}

bool are(int left, int right, int wanted_left, int wanted_right) {
    return left == wanted_left && right == wanted_right;
}

bool is_interval_with_time(int left, int right) {
    return are(left, right, QUILLET_TYPE_INTERVAL, QUILLET_TYPE_INTERVAL) ||
           are(left, right, QUILLET_TYPE_TIME, QUILLET_TYPE_INTERVAL) ||
           are(left, right, QUILLET_TYPE_INTERVAL, QUILLET_TYPE_TIME);
}

} // namespace

operator_choice choose_sum(const operator_rule &rule, int left, int right) {
    static constexpr text_template days_later("$1 + INTERVAL $2 DAY");
    static constexpr text_template days_earlier("$2 + INTERVAL $1 DAY");
    static constexpr text_template time_later("ADDTIME($1, $2)");
    static constexpr text_template cast_time_later("ADDTIME(CAST($1 AS DATETIME), $2)");
    static constexpr text_template time_earlier("ADDTIME($2, $1)");
    static constexpr text_template cast_time_earlier("ADDTIME(CAST($2 AS DATETIME), $1)");
    if (left == QUILLET_TYPE_DATE && quillet_is_integer(right))
        return {&days_later, QUILLET_TYPE_DATE};
    if (quillet_is_integer(left) && right == QUILLET_TYPE_DATE)
        return {&days_earlier, QUILLET_TYPE_DATE};
    if (quillet_is_datetime_not_interval(left) && right == QUILLET_TYPE_TIME)
        return {left == QUILLET_TYPE_TIMESTAMP ? &time_later : &cast_time_later,
                QUILLET_TYPE_TIMESTAMP};
    if (quillet_is_datetime_not_interval(right) && left == QUILLET_TYPE_TIME)
        return {right == QUILLET_TYPE_TIMESTAMP ? &time_earlier : &cast_time_earlier,
                QUILLET_TYPE_TIMESTAMP};
    if (is_interval_with_time(left, right))
        return no_choice(mysql_error_INTERVAL_SUM);
    return by_default(rule, left, right);
}

operator_choice choose_difference(const operator_rule &rule, int left, int right) {
    static constexpr text_template days_between("TO_DAYS($1) - TO_DAYS($2)");
    static constexpr text_template days_earlier("$1 - INTERVAL $2 DAY");
    static constexpr text_template days_swapped("$2 - INTERVAL $1 DAY"); // the mirror image of +
    if (are(left, right, QUILLET_TYPE_DATE, QUILLET_TYPE_DATE))
        return {&days_between, QUILLET_TYPE_INT8};
    if (are(left, right, QUILLET_TYPE_TIME, QUILLET_TYPE_TIME))
        return no_choice(mysql_error_INTERVAL_DIFFERENCE);
    if (left == QUILLET_TYPE_DATE && quillet_is_integer(right))
        return {&days_earlier, QUILLET_TYPE_DATE};
    if (quillet_is_integer(left) && right == QUILLET_TYPE_DATE)
        return {&days_swapped, QUILLET_TYPE_DATE};
    if (is_interval_with_time(left, right) ||
        are(left, right, QUILLET_TYPE_TIMESTAMP, QUILLET_TYPE_TIMESTAMP))
        return no_choice(mysql_error_INTERVAL_DIFFERENCE);
    return by_default(rule, left, right);
}

operator_choice choose_product(const operator_rule &rule, int left, int right) {
    if (left == QUILLET_TYPE_INTERVAL || right == QUILLET_TYPE_INTERVAL)
        return no_choice(mysql_error_INTERVAL_PRODUCT);
    return by_default(rule, left, right);
}

operator_choice choose_quotient(const operator_rule &rule, int left, int right) {
    if (left == QUILLET_TYPE_INTERVAL || right == QUILLET_TYPE_INTERVAL)
        return no_choice(mysql_error_INTERVAL_QUOTIENT);
    return by_default(rule, left, right);
}

// The minus of an interval stands behind its first word, whatever that is.
operator_choice choose_negation(const operator_rule &rule, int operand, int) {
    static constexpr std::string_view word = "INTERVAL ";
    static constexpr text_template negated("INTERVAL -$1");
    if (operand == QUILLET_TYPE_INTERVAL)
        return {&negated, QUILLET_TYPE_INTERVAL, word.size()};
    return by_default(rule, operand, 0);
}

// An interval as the end of a period is counted from its start.
rendered render_overlaps_mysql(rendering &r, node_expression *node) {
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
        return missing_part;
    operand_texts operands(r);
    const auto add = [&](node_expression *operand) {
        return operands.add(operand).record && operand->sql_type == QUILLET_TYPE_INTERVAL;
    };
    add(first->expression_1);
    const bool first_interval = add(first->expression_2);
    add(second->expression_1);
    const bool second_interval = add(second->expression_2);
    node->sql_type = QUILLET_TYPE_BOOL;
    return operands.write(texts[(first_interval ? 1 : 0) + (second_interval ? 2 : 0)]);
}

} // namespace quillet
