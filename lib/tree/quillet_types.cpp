#include "quillet_types.h"

#include <iterator>
#include <string_view>

#include "quillet_letter_case.h"

namespace quillet {
namespace {

constexpr const char *printed_names[] = {
#define TYPE(name, code, printed, ...) printed,
#include "quillet_types.def"
};

static_assert(std::size(printed_names) == 19 && QUILLET_TYPE_TIMESTAMPZ == 18);

struct type_spelling {
    int code;
    std::string_view spellings[3]; // as many as there are, the rest is empty
};

constexpr type_spelling type_spellings[] = {
#define TYPE(name, code, printed, categories, ...) {code, {__VA_ARGS__}},
#include "quillet_types.def"
};

// The common rule of + and -, which differ in what two dates or times give.
int sum_or_difference(int left, int right, int of_datetimes) {
    const bool left_interval = left == QUILLET_TYPE_INTERVAL;
    const bool right_interval = right == QUILLET_TYPE_INTERVAL;
    if (quillet_is_integer(left) && quillet_is_integer(right))
        return QUILLET_TYPE_INT8;
    if (left_interval && right_interval)
        return QUILLET_TYPE_INTERVAL;
    if (left_interval && quillet_is_numeric(right))
        return QUILLET_TYPE_INTERVAL;
    if (quillet_is_datetime(left) && quillet_is_integer(right))
        return left;
    if (left == QUILLET_TYPE_TIME && right_interval)
        return QUILLET_TYPE_TIME;
    if (right == QUILLET_TYPE_TIME && left_interval)
        return QUILLET_TYPE_TIME;
    if (quillet_is_datetime(left) && right_interval)
        return QUILLET_TYPE_TIMESTAMP;
    if (quillet_is_datetime(right) && quillet_is_integer(left))
        return right;
    if (quillet_is_datetime(right) && left_interval)
        return QUILLET_TYPE_TIMESTAMP;
    if (left == QUILLET_TYPE_DATE && right == QUILLET_TYPE_DATE)
        return QUILLET_TYPE_INT8;
    if (quillet_is_datetime(left) && quillet_is_datetime(right))
        return of_datetimes;
    return QUILLET_TYPE_FLOAT8;
}

// The type of what a field word extracts; field is NULL when the call has none.
int type_of_field(const char *field) {
    if (!field)
        return QUILLET_TYPE_UNKNOWN;
    return equal_ignoring_case(field, "second") ? QUILLET_TYPE_FLOAT8 : QUILLET_TYPE_INT8;
}

} // namespace
} // namespace quillet

using namespace quillet;

int quillet_string_to_type(const char *type) {
    const std::string_view wanted(type);
    if (wanted.empty())
        return QUILLET_TYPE_UNKNOWN;
    for (const type_spelling &candidate : type_spellings)
        for (const std::string_view spelling : candidate.spellings)
            if (equal_ignoring_case(spelling, wanted))
                return candidate.code;
    return QUILLET_TYPE_UNKNOWN;
}

const char *quillet_type_to_string(int type) {
    return type >= 0 && type < QUILLET_TYPE_COUNT ? printed_names[type] : "";
}

int quillet_get_result_type_add(int left, int right) {
    return sum_or_difference(left, right, QUILLET_TYPE_TIMESTAMP);
}

int quillet_get_result_type_sub(int left, int right) {
    return sum_or_difference(left, right, QUILLET_TYPE_INTERVAL);
}

int quillet_get_result_type_divide(int left, int right) {
    return left == QUILLET_TYPE_INTERVAL && quillet_is_numeric(right) ? QUILLET_TYPE_INTERVAL
                                                                      : QUILLET_TYPE_FLOAT8;
}

int quillet_get_result_type_modulo(int, int) { return QUILLET_TYPE_INT8; }
int quillet_get_result_type_bool(int, int) { return QUILLET_TYPE_BOOL; }
int quillet_get_result_type_string(int, int) { return QUILLET_TYPE_VARCHAR; }
int quillet_get_result_type_int2(int, int) { return QUILLET_TYPE_INT8; }
int quillet_get_result_type_same(int type) { return type; }
int quillet_get_result_type_bool_one(int) { return QUILLET_TYPE_BOOL; }
int quillet_get_result_type_float(int) { return QUILLET_TYPE_FLOAT8; }
int quillet_get_result_type_int(int) { return QUILLET_TYPE_INT8; }

int quillet_get_result_type_function_int(const node_function_call *) { return QUILLET_TYPE_INT8; }
int quillet_get_result_type_function_float(const node_function_call *) {
    return QUILLET_TYPE_FLOAT8;
}
int quillet_get_result_type_function_bool(const node_function_call *) { return QUILLET_TYPE_BOOL; }
int quillet_get_result_type_function_string(const node_function_call *) {
    return QUILLET_TYPE_VARCHAR;
}
int quillet_get_result_type_function_varchar(const node_function_call *) {
    return QUILLET_TYPE_VARCHAR;
}
int quillet_get_result_type_function_unknow(const node_function_call *) {
    return QUILLET_TYPE_UNKNOWN;
}
int quillet_get_result_type_function_date(const node_function_call *) { return QUILLET_TYPE_DATE; }
int quillet_get_result_type_function_time(const node_function_call *) { return QUILLET_TYPE_TIME; }
int quillet_get_result_type_function_timestamp(const node_function_call *) {
    return QUILLET_TYPE_TIMESTAMP;
}
int quillet_get_result_type_function_timestampz(const node_function_call *) {
    return QUILLET_TYPE_TIMESTAMPZ;
}

int quillet_get_result_type_function_date_part(const node_function_call *call) {
    const node_expressions_list *last = call->expressions_list;
    const node_expressions_list *previous = last ? last->expressions_list : nullptr;
    const node_expression *field = previous ? previous->expression : nullptr;
    const node_const_generic *constant = field ? field->const_generic : nullptr;
    const node_const_string *string = constant ? constant->const_string : nullptr;
    return type_of_field(string ? string->string : nullptr);
}

int quillet_get_result_type_function_extract(const node_function_call *call) {
    const node_from_for_argument *argument = call->from_for_argument;
    const node_expression *field = argument ? argument->expression_1 : nullptr;
    const node_column_reference *column = field ? field->column_reference : nullptr;
    const node_identifier *word = column ? column->column_name : nullptr;
    return type_of_field(word ? word->name : nullptr);
}

int quillet_get_result_type_function_same_as_argument(const node_function_call *call) {
    const node_expressions_list *last = call->expressions_list;
    const node_expression *argument = last ? last->expression : nullptr;
    return argument && argument->sql_type ? argument->sql_type : int{QUILLET_TYPE_FLOAT8};
}
