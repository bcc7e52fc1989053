// The functions of the builder mysql that no text can tell.

#include "quillet_function_rules.h"
#include "quillet_mysql_rendering.h"
#include "quillet_operands.h"

namespace quillet::mysql {

namespace {

outcome typed(node_function_call *call, int type, const outcome &result) {
    call->sql_type = type;
    return result;
}

bool has_one_argument(const node_function_call &call) {
    return !call.expressions_list->expressions_list;
}

} // namespace

// A lone argument is a number whose logarithm to the base 10 is wanted; a call with a base is
// written as it stands.
outcome render_log(rendering &r, node_function_call *call, void *) {
    static constexpr text_template to_base_10("LOG(10, $1)");
    static constexpr text_template to_any_base("$1($2)");
    if (!last_argument(*call))
        return r.lacks(call);
    if (has_one_argument(*call)) {
        operands all(r, &to_base_10);
        all.add(last_argument(*call));
        return typed(call, QUILLET_TYPE_FLOAT8, all.write(to_base_10));
    }
    operands all(r, &to_any_base);
    all.add(call->function_name);
    all.add(call->expressions_list);
    return typed(call, QUILLET_TYPE_FLOAT8, all.write(to_any_base));
}

outcome render_trunc(rendering &r, node_function_call *call, void *) {
    static constexpr text_template to_integer("TRUNCATE($1, 0)");
    static constexpr text_template to_decimals("TRUNCATE($1)");
    if (!last_argument(*call))
        return r.lacks(call);
    const text_template &text = has_one_argument(*call) ? to_integer : to_decimals;
    operands all(r, &text);
    if (has_one_argument(*call))
        all.add(last_argument(*call));
    else
        all.add(call->expressions_list);
    return typed(call, QUILLET_TYPE_INT8, all.write(text));
}

outcome render_overlay(rendering &r, node_function_call *call, void *) {
    static constexpr text_template text("CONCAT(SUBSTR($1, 1, $3 - 1), $2, SUBSTR($1, $3 + $4))");
    const node_placing_from_for_argument *argument = call->placing_from_for_argument;
    if (!argument || !argument->expression_1 || !argument->expression_2)
        return r.lacks(call);
    if (!argument->expression_3 || !argument->expression_4)
        return refuse(r, call, reason::OVERLAY_ARGUMENTS);
    operands all(r, &text);
    all.add(argument->expression_1);
    all.add(argument->expression_2);
    all.add(argument->expression_3);
    all.add(argument->expression_4);
    return typed(call, QUILLET_TYPE_VARCHAR, all.write(text));
}

// A start or length that is no integer would be a pattern: that is refused, with the text in place.
outcome render_substring(rendering &r, node_function_call *call, void *) {
    node_placing_from_for_argument *argument = call->placing_from_for_argument;
    if (!argument)
        return r.lacks(call);
    outcome result = r.enclosed_child("SUBSTRING(", argument, ")");
    if (argument->sql_type != QUILLET_TYPE_INT8)
        result.fail_with(refuse(r, call, reason::SUBSTRING_PATTERN, seen::yes));
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
outcome render_trim(rendering &r, node_function_call *call, const text_template &blanks,
                    const text_template &character) {
    static constexpr std::string_view blank_literal = "' '";
    node_expression *last = last_argument(*call);
    node_expression *previous = previous_argument(*call);
    if (!last)
        return r.lacks(call);
    operands all(r);
    std::string_view trimmed = blank_literal;
    if (previous) {
        all.add(previous);
        std::string dropped;
        all.fail_with(r.taken_child(last, dropped));
        if (const std::string_view literal = literal_argument(*last); !literal.empty())
            trimmed = literal;
    } else {
        all.add(last);
    }
    call->sql_type = QUILLET_TYPE_VARCHAR;

    if (trimmed != blank_literal && trimmed.size() == blank_literal.size()) {
        all.add_text(trimmed);
        return all.write(character);
    }
    outcome result = all.write(blanks);
    if (trimmed != blank_literal)
        result.fail_with(refuse(r, call, reason::TRIM_CHARACTERS, seen::yes));
    return result;
}

} // namespace

outcome render_ltrim(rendering &r, node_function_call *call, void *) {
    static constexpr text_template blanks("LTRIM($1)");
    static constexpr text_template character("TRIM(LEADING $2 FROM $1)");
    return render_trim(r, call, blanks, character);
}

outcome render_rtrim(rendering &r, node_function_call *call, void *) {
    static constexpr text_template blanks("RTRIM($1)");
    static constexpr text_template character("TRIM(TRAILING $2 FROM $1)");
    return render_trim(r, call, blanks, character);
}

} // namespace quillet::mysql
