// The default rendering of literals.

#include "quillet_builder_rendering.h"
#include "quillet_types.h"

namespace quillet {

namespace {

// Renders a literal that stands in the tree as it was written.
rendered render_literal(rendering &r, const char *text, std::int32_t &sql_type, int type) {
    if (!text)
        return missing_part;
    r.out.append(text);
    sql_type = type;
    return a_text;
}

// Renders a form of a literal, which counts if none before it had a text.
template <class Form>
void render_form(rendering &r, node_const_generic &node, Form *form, int type, rendered &chosen) {
    const auto begin = r.here();
    const rendered result = r.child(form);
    chosen.fail_with(result);
    if (chosen.text)
        r.drop_from(begin);
    else if (result.text)
        node.sql_type = type;
    chosen.text = chosen.text || result.text;
}

} // namespace

// A type word stands before a string alone, and only a date or time shows its time zone. A literal
// without any form is NULL.
rendered render_const_generic(rendering &r, node_const_generic *node, void *) {
    const auto begin = r.here();
    rendered value{true, false, 0};
    const std::string_view word = quillet_type_to_string(node->type);
    if (node->const_string && !word.empty()) {
        r.out.append(word);
        r.out.append(' ');
    }
    const std::size_t behind_word = r.out.size();
    render_form(r, *node, node->const_string, node->type ? node->type : int{QUILLET_TYPE_VARCHAR},
                value);
    const bool is_string = value.text;
    if (!is_string)
        r.drop_from(begin);
    render_form(r, *node, node->const_boolean, QUILLET_TYPE_BOOL, value);
    render_form(r, *node, node->const_integer, QUILLET_TYPE_INT8, value);
    render_form(r, *node, node->const_floating, QUILLET_TYPE_FLOAT8, value);
    if (!value.text) {
        r.out.append("NULL");
        node->sql_type = QUILLET_TYPE_UNKNOWN;
    }

    const auto behind_value = r.here();
    const std::size_t value_begin = is_string ? behind_word : begin.size;
    value.fail_with(r.spaced_child(value_begin, node->at_time_zone));
    if (!is_string || !quillet_is_datetime(node->type))
        r.drop_from(behind_value);
    if (!word.empty() && is_string && r.out.size() == behind_word)
        r.out.truncate(behind_word - 1); // the string was empty
    return {true, true, value.status};
}

rendered render_at_time_zone(rendering &r, node_at_time_zone *node, void *) {
    if (!node->const_string)
        return missing_part;
    const auto begin = r.here();
    const rendered result = r.enclosed_child(
        node->type == QUILLET_ZONE_TIME_INTERVAL ? "AT TIME ZONE INTERVAL " : "AT TIME ZONE ",
        node->const_string);
    if (node->type == QUILLET_ZONE_TIME || node->type == QUILLET_ZONE_TIME_INTERVAL)
        return result;
    r.drop_from(begin);
    return missing_part;
}

rendered render_const_string(rendering &r, node_const_string *node, void *) {
    return render_literal(r, node->string, node->sql_type, QUILLET_TYPE_VARCHAR);
}

rendered render_const_integer(rendering &r, node_const_integer *node, void *) {
    return render_literal(r, node->integer, node->sql_type, QUILLET_TYPE_INT8);
}

rendered render_const_floating(rendering &r, node_const_floating *node, void *) {
    return render_literal(r, node->floating, node->sql_type, QUILLET_TYPE_FLOAT8);
}

rendered render_escape(rendering &r, node_escape *node, void *) {
    if (!node->string)
        return missing_part;
    r.out.append("ESCAPE ");
    r.out.append(node->string);
    return a_text;
}

rendered render_const_boolean(rendering &r, node_const_boolean *node, void *) {
    r.out.append(node->value == QUILLET_TRUTH_TRUE    ? "TRUE"
                 : node->value == QUILLET_TRUTH_FALSE ? "FALSE"
                                                      : "UNKNOW");
    node->sql_type = QUILLET_TYPE_BOOL;
    return a_text;
}

} // namespace quillet
