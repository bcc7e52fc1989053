// Fields and truncation of dates and times in the builder mysql.

#include <iterator>
#include <string>

#include "quillet_function_rules.h"
#include "quillet_mysql_rendering.h"
#include "quillet_name_index.h"
#include "quillet_operands.h"
#include "quillet_text_buffer.h"

namespace quillet::mysql {

namespace {

struct date_field {
    text_template text;
    text_template interval_text; // empty if no interval has the field
    std::string_view mask;       // empty if nothing can be cut off after it
};

constexpr date_field date_fields[] = {
#define FIELD(name, text, interval_text, mask)                                                     \
    {text_template(text), text_template(interval_text), mask},
#include "quillet_mysql_fields.def"
};

enum field_id {
#define FIELD(name, ...) field_id_##name,
#include "quillet_mysql_fields.def"
};

constexpr name_index<std::size(date_fields)> field_names({
#define FIELD(name, ...) #name,
#include "quillet_mysql_fields.def"
});

const date_field *field_named(std::string_view name) {
    const int index = field_names.find(name);
    return index >= 0 ? &date_fields[index] : nullptr;
}

// The text that extracts a field, NULL for an unknown field and one that no interval has.
const text_template *extraction(const date_field *field, int type) {
    if (!field)
        return nullptr;
    const text_template &text = type == QUILLET_TYPE_INTERVAL ? field->interval_text : field->text;
    return text.count > 0 ? &text : nullptr;
}

// The text of a field of a date expression of a type, NULL if there is none.
char *extracted(const date_field *field, const char *date_expression, int type) {
    const text_template *text = extraction(field, type);
    if (!text)
        return nullptr;
    const std::string_view operands[] = {date_expression ? date_expression : ""};
    text_buffer out;
    append_filled(out, *text, operands);
    return out.release();
}

// The text of a date that is cut off after the field with a mask.
constexpr text_template truncation("DATE_FORMAT($1, '$2')");

// EXTRACT and DATE_PART, the name of whose field has been rendered.
outcome render_field(rendering &r, node_function_call *call, std::string_view name,
                     const outcome &rendered_name, node_expression *source) {
    operands all(r);
    all.fail_with(rendered_name);
    const int type = all.add(source).record ? source->sql_type : 0;
    call->sql_type = equal_ignoring_case(name, "second") ? QUILLET_TYPE_FLOAT8 : QUILLET_TYPE_INT8;
    if (const text_template *text = extraction(field_named(name), type))
        return all.write(*text);
    all.drop();
    return refuse(r, call, reason::EXTRACT_FIELD, seen::yes);
}

} // namespace

outcome render_date_part(rendering &r, node_function_call *call, void *) {
    node_expression *field = previous_argument(*call);
    node_expression *source = last_argument(*call);
    if (!field || !source)
        return r.lacks(call);
    std::string name;
    const outcome rendered_name = r.taken_child(field, name);
    return render_field(r, call, without_quotes(name), rendered_name, source);
}

outcome render_extract(rendering &r, node_function_call *call, void *) {
    const node_from_for_argument *argument = call->from_for_argument;
    const node_expression *field = argument ? argument->expression_1 : nullptr;
    const node_column_reference *column = field ? field->column_reference : nullptr;
    if (!column || !column->column_name || !argument->expression_2)
        return r.lacks(call);
    std::string name;
    const outcome rendered_name = r.taken_child(column->column_name, name);
    return render_field(r, call, name, rendered_name, argument->expression_2);
}

outcome render_date_trunc(rendering &r, node_function_call *call, void *) {
    node_expression *field = previous_argument(*call);
    node_expression *source = last_argument(*call);
    if (!field || !source)
        return r.lacks(call);
    std::string name;
    operands all(r);
    all.fail_with(r.taken_child(field, name));
    const bool is_interval = all.add(source).record && source->sql_type == QUILLET_TYPE_INTERVAL;
    call->sql_type = QUILLET_TYPE_TIMESTAMP;
    const date_field *found = field_named(without_quotes(name));
    if (is_interval || !found || found->mask.empty()) {
        all.drop();
        return refuse(r, call, is_interval ? reason::TRUNC_INTERVAL : reason::TRUNC_FIELD,
                      seen::yes);
    }
    all.add_text(found->mask);
    return all.write(truncation);
}

} // namespace quillet::mysql

using namespace quillet;
using namespace quillet::mysql;

// _quillet_mysql_extract_date_<field> for every field.
#define FIELD(name, ...)                                                                           \
    char *_quillet_mysql_extract_date_##name(const char *date_expression,                          \
                                             int date_expression_type) {                           \
        return extracted(&date_fields[field_id_##name], date_expression, date_expression_type);    \
    }
#include "quillet_mysql_fields.def"

char *_quillet_mysql_extract_date(const char *type, const char *date_expression,
                                  int date_expression_type) {
    return extracted(field_named(type), date_expression, date_expression_type);
}

char *_quillet_mysql_trunc_date(const char *type, const char *date_expression) {
    const date_field *field = field_named(type);
    if (!field || field->mask.empty())
        return nullptr;
    const std::string_view operands[] = {date_expression ? date_expression : "", field->mask};
    text_buffer out;
    append_filled(out, truncation, operands);
    return out.release();
}
