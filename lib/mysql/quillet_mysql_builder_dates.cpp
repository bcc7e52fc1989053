// Fields and truncation of dates and times in the builder mysql.

#include <cstdlib>
#include <iterator>

#include "quillet_mysql_rendering.h"
#include "quillet_name_index.h"

namespace quillet {

namespace {

struct date_field {
    text_template text;
    text_template interval_text; // empty if no interval has the field
    std::string_view mask;       // empty if nothing can be cut off behind it
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

char *extracted(const date_field *field, const char *date_expression, int type) {
    const text_template *text = extraction(field, type);
    if (!text)
        return nullptr;
    text_buffer out;
    append_filled(out, *text, {date_expression ? date_expression : ""});
    return out.release();
}

void append_truncation(text_buffer &out, const date_field &field,
                       std::string_view date_expression) {
    static constexpr text_template text("DATE_FORMAT($1, '$2')");
    append_filled(out, text, {date_expression, field.mask});
}

// EXTRACT and DATE_PART of a source that has been rendered as the last of the operands.
rendered render_field(node_function_call *call, operand_texts &operands, std::string_view name,
                      int type) {
    call->sql_type = equal_ignoring_case(name, "second") ? QUILLET_TYPE_FLOAT8 : QUILLET_TYPE_INT8;
    const text_template *text = extraction(field_named(name), type);
    if (!text) {
        operands.drop();
        return refuse(mysql_error_EXTRACT_FIELD);
    }
    return operands.write_last(*text);
}

std::int32_t type_of(const node_expression *node, rendered result) {
    return result.record ? node->sql_type : 0;
}

} // namespace

rendered render_date_part(rendering &r, node_function_call *call) {
    node_expression *field = previous_argument(*call);
    node_expression *source = last_argument(*call);
    if (!field || !source)
        return missing_part;
    operand_texts operands(r);
    operands.add(field);
    const int type = type_of(source, operands.add(source));
    return render_field(call, operands, without_quotes(operands[0]), type);
}

rendered render_extract(rendering &r, node_function_call *call) {
    const node_from_for_argument *argument = call->from_for_argument;
    const node_expression *field = argument ? argument->expression_1 : nullptr;
    const node_column_reference *column = field ? field->column_reference : nullptr;
    if (!column || !column->column_name || !argument->expression_2)
        return missing_part;
    operand_texts operands(r);
    operands.add(column->column_name);
    const int type = type_of(argument->expression_2, operands.add(argument->expression_2));
    return render_field(call, operands, operands[0], type);
}

rendered render_date_trunc(rendering &r, node_function_call *call) {
    node_expression *field = previous_argument(*call);
    node_expression *source = last_argument(*call);
    if (!field || !source)
        return missing_part;
    operand_texts operands(r);
    operands.add(field);
    const int type = type_of(source, operands.add(source));
    call->sql_type = QUILLET_TYPE_TIMESTAMP;
    const date_field *found = field_named(without_quotes(operands[0]));
    if (type == QUILLET_TYPE_INTERVAL || !found || found->mask.empty()) {
        operands.drop();
        return refuse(type == QUILLET_TYPE_INTERVAL ? mysql_error_TRUNC_INTERVAL
                                                    : mysql_error_TRUNC_FIELD);
    }
    text_buffer out;
    append_truncation(out, *found, operands[1]);
    return operands.write(out.from(0));
}

} // namespace quillet

using namespace quillet;

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
    text_buffer out;
    append_truncation(out, *field, date_expression ? date_expression : "");
    return out.release();
}
