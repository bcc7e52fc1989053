// Casts, typed literals and intervals of the builder mysql.

#include <memory>
#include <string>

#include "quillet_expressions.h"
#include "quillet_letter_case.h"
#include "quillet_mysql_rendering.h"
#include "quillet_text_buffer.h"

namespace quillet::mysql {

namespace {

// What a cast to a type becomes: CAST(... AS name), nothing at all, or an interval.
enum class cast_form : std::uint8_t { named, dropped, interval };

struct cast_target {
    cast_form form = cast_form::named;
    std::string_view name;
};

cast_target target_of(int type) {
    switch (type) {
    case QUILLET_TYPE_INT8:
    case QUILLET_TYPE_SERIAL:
    case QUILLET_TYPE_INT4:
    case QUILLET_TYPE_INT2:
    case QUILLET_TYPE_SERIAL4: return {cast_form::named, "SIGNED INTEGER"};
    case QUILLET_TYPE_BOOL: return {cast_form::named, "UNSIGNED INTEEGER"}; // spelt so
    case QUILLET_TYPE_VARCHAR:
    case QUILLET_TYPE_CHAR:
    case QUILLET_TYPE_TEXT: return {cast_form::named, "BINARY"};
    case QUILLET_TYPE_DATE: return {cast_form::named, "DATE"};
    case QUILLET_TYPE_TIME:
    case QUILLET_TYPE_TIMEZ: return {cast_form::named, "TIME"};
    case QUILLET_TYPE_TIMESTAMP:
    case QUILLET_TYPE_TIMESTAMPZ: return {cast_form::named, "DATETIME"};
    case QUILLET_TYPE_FLOAT8:
    case QUILLET_TYPE_DECIMAL:
    case QUILLET_TYPE_FLOAT: return {cast_form::dropped, {}};
    case QUILLET_TYPE_INTERVAL: return {cast_form::interval, {}};
    default: return {};
    }
}

cast_target target_of(int type_from, int type_to) {
    return type_from == type_to ? cast_target{cast_form::dropped, {}} : target_of(type_to);
}

// What the type of an expression is taken for that is to be cast in any case.
constexpr int uncast_type = -1;

constexpr std::string_view cast_begin = "CAST(";
constexpr std::string_view interval_begin = "INTERVAL ";

template <class Output> void append_cast_end(Output &out, const cast_target &target) {
    out.append(" AS ");
    out.append(target.name);
    out.append(')');
}

// Appends an interval literal in MySQL's terms: without its quotes, a plural unit without its s,
// and every number but the first at the beginning of a new term.
template <class Output> void append_interval(Output &out, std::string_view literal) {
    const std::string_view text = without_quotes(literal);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const char next = i + 1 < text.size() ? text[i + 1] : '\0';
        if (lower_case(c) == 's' && (next == '\0' || next == ' '))
            continue;
        out.append(c);
        if (c == ' ' && next >= '0' && next <= '9')
            out.append("+ INTERVAL ");
    }
}

// A cast in two steps round its operand.

void begin_cast(rendering &r, int type) {
    if (target_of(uncast_type, type).form == cast_form::named)
        r.out.append(cast_begin);
}

outcome end_cast(rendering &r, int type, output::place begin, const outcome &operand) {
    const cast_target target = target_of(uncast_type, type);
    switch (target.form) {
    case cast_form::named: append_cast_end(r.out, target); break;
    case cast_form::dropped: return {true, operand.text, 0};
    case cast_form::interval: {
        const std::string literal(r.out.settle(begin));
        r.out.cut(begin);
        r.out.append(interval_begin);
        append_interval(r.out, literal);
        break;
    }
    }
    return a_text;
}

} // namespace

const cast_rule cast = {
    [](rendering &r, const node_cast_expression &node) { begin_cast(r, node.type); },
    [](rendering &r, node_cast_expression &node, output::place begin, outcome expression) {
        node.sql_type = node.type;
        return end_cast(r, node.type, begin, expression);
    }};

outcome render_cast_expression(rendering &r, node_cast_expression *node, void *) {
    return render_cast(r, cast, node);
}

outcome render_const_generic(rendering &r, node_const_generic *node, void *data) {
    if (node->type == QUILLET_TYPE_UNKNOWN)
        return r.defer(node, data);
    if (!node->const_string)
        return r.lacks(node);
    if (node->at_time_zone)
        return refuse(r, node->at_time_zone, reason::AT_TIME_ZONE);
    const output::place begin = r.out.here();
    begin_cast(r, node->type);
    const outcome string = r.child(node->const_string);
    node->sql_type = node->type;
    r.remark(node);
    return end_cast(r, node->type, begin, string);
}

} // namespace quillet::mysql

using namespace quillet;

char *_quillet_mysql_extract_interval(char *interval) {
    const std::unique_ptr<char, freed> consumed(interval);
    text_buffer out;
    mysql::append_interval(out, interval ? interval : "");
    return out.release();
}

build_result *_quillet_mysql_cast(char *expression, int type_from, int type_to) {
    build_result *result = quillet_build_result_create();
    const mysql::cast_target target = mysql::target_of(type_from, type_to);
    if (target.form == mysql::cast_form::dropped) {
        result->query = expression;
        return result;
    }
    const std::unique_ptr<char, freed> consumed(expression);
    const std::string_view text(expression ? expression : "");
    text_buffer out;
    if (target.form == mysql::cast_form::interval) {
        out.append(mysql::interval_begin);
        mysql::append_interval(out, text);
    } else {
        out.append(mysql::cast_begin);
        out.append(text);
        mysql::append_cast_end(out, target);
    }
    result->query = out.release();
    return result;
}
