// The functions of the builder mysql.

#include "quillet_mysql_rendering.h"

namespace quillet {

namespace {

rendered typed(node_function_call *call, int type, rendered result) {
    call->sql_type = type;
    return result;
}

} // namespace

rendered render_function(rendering &r, const function_rule &rule, node_function_call *call) {
    if (rule.refused != mysql_error_NONE)
        return refuse(rule.refused);
    if (rule.own)
        return rule.own(r, call);
    operand_texts operands(r);
    switch (rule.needs) {
    case arguments::nothing: break;
    case arguments::last:
        if (!last_argument(*call))
            return missing_part;
        operands.add(last_argument(*call));
        break;
    case arguments::list:
        if (!call->expressions_list)
            return missing_part;
        operands.add(call->expressions_list);
        break;
    case arguments::two:
        if (!last_argument(*call) || !previous_argument(*call))
            return missing_part;
        operands.add(previous_argument(*call));
        operands.add(last_argument(*call));
        break;
    }
    return typed(call, rule.type, operands.write(rule.text));
}

// A lone argument is a number whose logarithm to the base 10 is wanted; a call with a base is
// written as it stands.
rendered render_log(rendering &r, node_function_call *call) {
    static constexpr text_template to_base_10("LOG(10, $1)");
    static constexpr text_template to_any_base("$1($2)");
    if (!last_argument(*call))
        return missing_part;
    operand_texts operands(r);
    if (!call->expressions_list->expressions_list) {
        operands.add(last_argument(*call));
        return typed(call, QUILLET_TYPE_FLOAT8, operands.write(to_base_10));
    }
    operands.add(call->function_name);
    operands.add(call->expressions_list);
    return typed(call, QUILLET_TYPE_FLOAT8, operands.write(to_any_base));
}

rendered render_trunc(rendering &r, node_function_call *call) {
    static constexpr text_template to_integer("TRUNCATE($1, 0)");
    static constexpr text_template to_decimals("TRUNCATE($1)");
    if (!last_argument(*call))
        return missing_part;
    operand_texts operands(r);
    const bool alone = !call->expressions_list->expressions_list;
    if (alone)
        operands.add(last_argument(*call));
    else
        operands.add(call->expressions_list);
    return typed(call, QUILLET_TYPE_INT8, operands.write(alone ? to_integer : to_decimals));
}

rendered render_overlay(rendering &r, node_function_call *call) {
    static constexpr text_template text("CONCAT(SUBSTR($1, 1, $3 - 1), $2, SUBSTR($1, $3 + $4))");
    const node_placing_from_for_argument *argument = call->placing_from_for_argument;
    if (!argument || !argument->expression_1 || !argument->expression_2)
        return missing_part;
    if (!argument->expression_3 || !argument->expression_4)
        return refuse(mysql_error_OVERLAY_ARGUMENTS);
    operand_texts operands(r);
    operands.add(argument->expression_1);
    operands.add(argument->expression_2);
    operands.add(argument->expression_3);
    operands.add(argument->expression_4);
    return typed(call, QUILLET_TYPE_VARCHAR, operands.write(text));
}

// A start or length that is no integer would be a pattern: that is refused, with the text in place.
rendered render_substring(rendering &r, node_function_call *call) {
    node_placing_from_for_argument *argument = call->placing_from_for_argument;
    if (!argument)
        return missing_part;
    rendered result = r.enclosed_child("SUBSTRING(", argument, ")");
    if (argument->sql_type != QUILLET_TYPE_INT8)
        result.fail_with(refuse(mysql_error_SUBSTRING_PATTERN));
    return typed(call, QUILLET_TYPE_VARCHAR, result);
}

namespace {

// The characters to trim, if they are given as a literal.
std::string_view literal_argument(const node_expression &argument) {
    const node_const_generic *constant = argument.const_generic;
    const node_const_string *string = constant ? constant->const_string : nullptr;
    return string && string->string ? string->string : std::string_view{};
}

// Trims one character by TRIM, blanks by a function, and refuses more; characters that are not a
// literal are left out.
rendered render_trim(rendering &r, node_function_call *call, const text_template &blanks,
                     const text_template &character) {
    static constexpr std::string_view blank_literal = "' '";
    node_expression *last = last_argument(*call);
    node_expression *previous = previous_argument(*call);
    if (!last)
        return missing_part;
    operand_texts operands(r);
    if (previous)
        operands.add(previous);
    operands.add(last);
    call->sql_type = QUILLET_TYPE_VARCHAR;

    const std::string_view literal = previous ? literal_argument(*last) : std::string_view{};
    if (literal.empty() || literal == blank_literal)
        return operands.write(blanks);
    if (literal.size() == blank_literal.size())
        return operands.write_with(character, literal);
    rendered result = operands.write(blanks);
    result.fail_with(refuse(mysql_error_TRIM_CHARACTERS));
    return result;
}

} // namespace

rendered render_ltrim(rendering &r, node_function_call *call) {
    static constexpr text_template blanks("LTRIM($1)");
    static constexpr text_template character("TRIM(LEADING $2 FROM $1)");
    return render_trim(r, call, blanks, character);
}

rendered render_rtrim(rendering &r, node_function_call *call) {
    static constexpr text_template blanks("RTRIM($1)");
    static constexpr text_template character("TRIM(TRAILING $2 FROM $1)");
    return render_trim(r, call, blanks, character);
}

} // namespace quillet
