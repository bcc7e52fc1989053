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

// Renders the string of a typed literal with the type word before it and, for a date or time, the
// time zone behind it.
rendered render_typed_string(rendering &r, node_const_generic &node, rendered &zone) {
    const auto begin = r.here();
    const std::string_view word = quillet_type_to_string(node.type);
    if (!word.empty()) {
        r.out.append(word);
        r.out.append(' ');
    }
    const std::size_t behind_word = r.out.size();
    const rendered string = r.child(node.const_string);
    if (!string.text) {
        r.drop_from(begin);
        return string;
    }
    const auto behind_string = r.here();
    zone = r.spaced_child(behind_word, node.at_time_zone);
    if (!quillet_is_datetime(node.type))
        r.drop_from(behind_string);
    if (!word.empty() && r.out.size() == behind_word)
        r.out.truncate(behind_word - 1);
    return string;
}

} // namespace

rendered render_const_generic(rendering &r, node_const_generic *node, void *) {
    rendered zone;
    bool chosen = false;
    rendered result{true, true, 0};
    const auto choose = [&](rendered candidate, rendering::place begin, int type) {
        result.fail_with(candidate);
        if (chosen)
            r.drop_from(begin);
        else if (candidate.text)
            node->sql_type = type;
        chosen = chosen || candidate.text;
    };

    const int type_of_string = node->type ? node->type : int{QUILLET_TYPE_VARCHAR};
    auto begin = r.here();
    if (node->const_string)
        choose(render_typed_string(r, *node, zone), begin, type_of_string);
    begin = r.here();
    choose(r.child(node->const_boolean), begin, QUILLET_TYPE_BOOL);
    begin = r.here();
    choose(r.child(node->const_integer), begin, QUILLET_TYPE_INT8);
    begin = r.here();
    choose(r.child(node->const_floating), begin, QUILLET_TYPE_FLOAT8);
    if (!chosen) {
        r.out.append("NULL");
        node->sql_type = QUILLET_TYPE_UNKNOWN;
    }
    if (node->at_time_zone && !zone.record) {
        begin = r.here();
        zone = r.child(node->at_time_zone);
        r.drop_from(begin);
    }
    result.fail_with(zone);
    return result;
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
