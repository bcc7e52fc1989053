// When the builder postgresql remarks something.

#include "quillet_postgresql_remarks.h"

#include <initializer_list>
#include <string_view>

#include "quillet_rendering.h"

namespace quillet::postgresql {

namespace {

// The type that a text names.
void look_at_type(rendering &r, int type, const auto *node) {
    switch (type) {
    case QUILLET_TYPE_CHAR: r.say(notices::misspelt_char, node); break;
    case QUILLET_TYPE_FLOAT: r.say(notices::wider_float, node); break;
    case QUILLET_TYPE_SERIAL:
    case QUILLET_TYPE_SERIAL4:
    case QUILLET_TYPE_TIMEZ:
    case QUILLET_TYPE_TIMESTAMPZ: r.say(notices::unknown_name, node); break;
    default: break;
    }
}

void on_cast_expression(rendering &r, node_cast_expression *node) {
    if (node->type == QUILLET_TYPE_UNKNOWN)
        r.say(notices::empty_cast, node);
    else
        look_at_type(r, node->type, node);
}

void on_const_generic(rendering &r, node_const_generic *node) {
    if (node->const_string)
        look_at_type(r, node->type, node);
}

void on_distinct(rendering &r, node_distinct *node) {
    if (node->select_list)
        r.say(notices::distinct_on, node);
}

void on_clock(rendering &r, node_function_call *call) { r.say(notices::clock_call, call); }

void on_factorial(rendering &r, node_expression *node) { r.say(notices::factorial, node); }

// A prefix operator is written without a blank before its operand.
void on_prefix(rendering &r, node_expression *node) {
    const node_expression *operand = node->expression_1;
    if (!operand->operator_)
        return;
    const std::string_view name = operand->operator_;
    for (const std::string_view sign : {"operator_uminus", "operator_abs", "operator_square_root",
                                        "operator_cubic_root", "operator_bitwise_not"})
        if (name == sign)
            r.say(notices::joined_signs, node);
}

} // namespace

constinit const remark_table remarks = [] {
    remark_table all{};
    all.lost_type = &notices::lost_type;
    all.on_cast_expression = on_cast_expression;
    all.on_const_generic = on_const_generic;
    all.on_distinct = on_distinct;
    for (const function_id clock :
         {function_id_current_date, function_id_current_time, function_id_current_timestamp,
          function_id_localtime, function_id_localtimestamp})
        all.functions[clock] = on_clock;
    all.operators[operator_id_factorial] = on_factorial;
    for (const operator_id prefix : {operator_id_abs, operator_id_square_root,
                                     operator_id_cubic_root, operator_id_bitwise_not})
        all.operators[prefix] = on_prefix;
    return all;
}();

} // namespace quillet::postgresql
