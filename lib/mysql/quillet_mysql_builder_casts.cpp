// Casts and typed literals of the builder mysql, and how its texts are put together.

#include <memory>

#include "quillet_letter_case.h"
#include "quillet_mysql_rendering.h"

namespace quillet {

namespace {

enum class cast_form : std::uint8_t { named, dropped, interval };

// What a cast to a type becomes: CAST(... AS name), nothing at all, or an interval.
struct cast_target {
    cast_form form = cast_form::named;
    std::string_view end = " AS )";
};

cast_target target_of(int type) {
    switch (type) {
    case QUILLET_TYPE_INT8:
    case QUILLET_TYPE_SERIAL:
    case QUILLET_TYPE_INT4:
    case QUILLET_TYPE_INT2:
    case QUILLET_TYPE_SERIAL4: return {cast_form::named, " AS SIGNED INTEGER)"};
    case QUILLET_TYPE_BOOL: return {cast_form::named, " AS UNSIGNED INTEEGER)"}; // spelt so
    case QUILLET_TYPE_VARCHAR:
    case QUILLET_TYPE_CHAR:
    case QUILLET_TYPE_TEXT: return {cast_form::named, " AS BINARY)"};
    case QUILLET_TYPE_DATE: return {cast_form::named, " AS DATE)"};
    case QUILLET_TYPE_TIME:
    case QUILLET_TYPE_TIMEZ: return {cast_form::named, " AS TIME)"};
    case QUILLET_TYPE_TIMESTAMP:
    case QUILLET_TYPE_TIMESTAMPZ: return {cast_form::named, " AS DATETIME)"};
    case QUILLET_TYPE_FLOAT8:
    case QUILLET_TYPE_DECIMAL:
    case QUILLET_TYPE_FLOAT: return {cast_form::dropped, {}};
    case QUILLET_TYPE_INTERVAL: return {cast_form::interval, {}};
    default: return {};
    }
}

constexpr std::string_view cast_begin = "CAST(";
constexpr std::string_view interval_begin = "INTERVAL ";

} // namespace

void begin_cast(rendering &r, int type) {
    if (target_of(type).form == cast_form::named)
        r.out.append(cast_begin);
}

rendered end_cast(rendering &r, int type, rendering::place begin, rendered operand) {
    const cast_target target = target_of(type);
    switch (target.form) {
    case cast_form::named: r.out.append(target.end); break;
    case cast_form::dropped: return {true, operand.text, 0};
    case cast_form::interval: {
        r.settle(begin);
        const std::string literal(r.out.from(begin.size));
        r.drop_from(begin);
        r.out.append(interval_begin);
        append_interval(r.out, literal);
        break;
    }
    }
    return a_text;
}

const cast_rule mysql_cast = {
    [](rendering &r, const node_cast_expression &node) { begin_cast(r, node.type); },
    [](rendering &r, node_cast_expression &node, rendering::place begin, rendered operand) {
        node.sql_type = node.type;
        return end_cast(r, node.type, begin, operand);
    }};

rendered render_cast_expression_mysql(rendering &r, node_cast_expression *node, void *) {
    return render_cast(r, mysql_cast, node);
}

rendered render_const_generic_mysql(rendering &r, node_const_generic *node, void *data) {
    if (node->type == QUILLET_TYPE_UNKNOWN)
        return render_const_generic(r, node, data);
    if (!node->const_string)
        return missing_part;
    if (node->at_time_zone)
        return refuse(mysql_error_AT_TIME_ZONE);
    const auto begin = r.here();
    begin_cast(r, node->type);
    const rendered string = r.child(node->const_string);
    node->sql_type = node->type;
    return end_cast(r, node->type, begin, string);
}

rendered render_at_time_zone_mysql(rendering &, node_at_time_zone *, void *) {
    return refuse(mysql_error_AT_TIME_ZONE);
}

// Texts in another order.

std::string_view operand_texts::operator[](int index) const {
    const std::size_t begin = index ? ends_[index - 1] : begin_.size;
    return r_.out.from(begin).substr(0, ends_[index] - begin);
}

rendered operand_texts::fill(const text_template &text,
                             std::initializer_list<std::string_view> operands) {
    drop();
    if (!r_.has_room_for(filled_size(text, operands)))
        return refused;
    append_filled(r_.out, text, operands);
    return {true, true, status_.status};
}

rendered operand_texts::write(const text_template &text) {
    std::string copies[4];
    for (int i = 0; i < count_; ++i)
        copies[i] = (*this)[i];
    return fill(text, {copies[0], copies[1], copies[2], copies[3]});
}

rendered operand_texts::write_last(const text_template &text) {
    return fill(text, {std::string((*this)[count_ - 1])});
}

rendered operand_texts::write_with(const text_template &text, std::string_view second) {
    return fill(text, {std::string((*this)[0]), second});
}

rendered operand_texts::write(std::string_view text) {
    drop();
    if (!r_.has_room_for(text.size()))
        return refused;
    r_.out.append(text);
    return {true, true, status_.status};
}

std::string_view without_quotes(std::string_view literal) {
    return literal.size() > 2 ? literal.substr(1, literal.size() - 2) : std::string_view{};
}

// A plural unit loses its s, and every number but the first begins a new term.
void append_interval(text_buffer &out, std::string_view literal) {
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

} // namespace quillet

using namespace quillet;

char *_quillet_mysql_extract_interval(char *interval) {
    const std::unique_ptr<char, freed> consumed(interval);
    text_buffer out;
    append_interval(out, interval ? interval : "");
    return out.release();
}

build_result *_quillet_mysql_cast(char *expression, int type_from, int type_to) {
    build_result *result = quillet_build_result_create();
    const cast_target target = target_of(type_to);
    if (type_from == type_to || target.form == cast_form::dropped) {
        result->query = expression;
        return result;
    }
    const std::unique_ptr<char, freed> consumed(expression);
    const std::string_view text(expression ? expression : "");
    text_buffer out;
    if (target.form == cast_form::interval) {
        out.append(interval_begin);
        append_interval(out, text);
    } else {
        out.append(cast_begin);
        out.append(text);
        out.append(target.end);
    }
    result->query = out.release();
    return result;
}
