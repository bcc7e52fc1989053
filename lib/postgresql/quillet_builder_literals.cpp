// The default rendering of literals.

#include "quillet_default_rendering.h"
#include "quillet_types.h"

namespace quillet {

namespace {

// Renders a literal that stands in the tree as it was written.
template <class Node> outcome render_literal(rendering &r, Node *node, const char *text, int type) {
    if (!text)
        return r.lacks(node);
    r.append_of_tree(text);
    node->sql_type = type;
    return a_text;
}

} // namespace

// A type word stands before a string alone, and only a date or time shows its time zone. A literal
// without any form is NULL.
outcome render_const_generic(rendering &r, node_const_generic *node, void *) {
    const std::string_view word = node->const_string ? quillet_type_to_string(node->type) : "";
    const output::place begin = r.out.here();
    r.out.append(word);
    const output::place after_word = r.out.here();
    if (!word.empty())
        r.out.append(' ');
    const output::place after_blank = r.out.here();

    first_with_text value(r);
    if (value.add(node->const_string))
        node->sql_type = node->type ? node->type : int{QUILLET_TYPE_VARCHAR};
    const bool is_string = value.has_text();
    if (!is_string)
        r.out.cut(begin);
    if (value.add(node->const_boolean))
        node->sql_type = QUILLET_TYPE_BOOL;
    if (value.add(node->const_integer))
        node->sql_type = QUILLET_TYPE_INT8;
    if (value.add(node->const_floating))
        node->sql_type = QUILLET_TYPE_FLOAT8;
    if (!value.has_text()) {
        r.out.append("NULL");
        node->sql_type = QUILLET_TYPE_UNKNOWN;
    }

    outcome result{true, true, value.status()};
    if (node->at_time_zone) {
        const output::place after_value = r.out.here();
        result.fail_with(r.spaced_child(is_string ? after_blank : begin, node->at_time_zone));
        if (!is_string || !quillet_is_datetime(node->type))
            r.out.cut(after_value);
    }
    r.remark(node);
    if (is_string && !r.out.has_grown_since(after_blank))
        r.out.cut(after_word); // the string was empty
    return result;
}

outcome render_at_time_zone(rendering &r, node_at_time_zone *node, void *) {
    if (!node->const_string)
        return r.lacks(node);
    const output::place begin = r.out.here();
    const outcome result = r.enclosed_child(
        node->type == QUILLET_ZONE_TIME_INTERVAL ? "AT TIME ZONE INTERVAL " : "AT TIME ZONE ",
        node->const_string);
    if (node->type == QUILLET_ZONE_TIME || node->type == QUILLET_ZONE_TIME_INTERVAL)
        return result;
    r.out.cut(begin);
    return r.lacks(node, seen::yes);
}

outcome render_const_string(rendering &r, node_const_string *node, void *) {
    return render_literal(r, node, node->string, QUILLET_TYPE_VARCHAR);
}

outcome render_const_integer(rendering &r, node_const_integer *node, void *) {
    return render_literal(r, node, node->integer, QUILLET_TYPE_INT8);
}

outcome render_const_floating(rendering &r, node_const_floating *node, void *) {
    return render_literal(r, node, node->floating, QUILLET_TYPE_FLOAT8);
}

outcome render_escape(rendering &r, node_escape *node, void *) {
    if (!node->string)
        return r.lacks(node);
    r.out.append("ESCAPE ");
    r.out.append(node->string);
    return a_text;
}

outcome render_const_boolean(rendering &r, node_const_boolean *node, void *) {
    r.out.append(node->value == QUILLET_TRUTH_TRUE    ? "TRUE"
                 : node->value == QUILLET_TRUTH_FALSE ? "FALSE"
                                                      : "UNKNOW");
    node->sql_type = QUILLET_TYPE_BOOL;
    return a_text;
}

} // namespace quillet
