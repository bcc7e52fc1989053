/*
 * SQL types: their codes and names (listed in quillet_types.def), and the rules that give the type
 * of an operator's or a function's result.
 */
#ifndef QUILLET_TYPES_H
#define QUILLET_TYPES_H

#include "quillet_export.h"
#include "quillet_tree_node.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The types. Codes are never changed, only appended. */
enum {
#define TYPE(name, code, ...)                                                                      \
    QUILLET_TYPE_##name = code, /* its printed name, its category, its spellings: <...> */
#include "quillet_types.def"
    QUILLET_TYPE_COUNT /* one more than the last code */
};

/* Returns the code of the type that a query calls type, in any letter case; 0 for no type. The
   argument must not be NULL. */
QUILLET_API int quillet_string_to_type(const char *type);

/* Returns the printed name of a type, a constant text; "" for 0 and for what is no code. */
QUILLET_API const char *quillet_type_to_string(int type);

/* Each returns 1 if the type belongs to the category, else 0. */
QUILLET_API int quillet_is_datetime(int type); /* interval included */
QUILLET_API int quillet_is_datetime_not_interval(int type);
QUILLET_API int quillet_is_integer(int type);
QUILLET_API int quillet_is_float(int type);
QUILLET_API int quillet_is_numeric(int type); /* integer or float */

/* The type of an operator's result, from the types of its operands (0 for an unknown one). The
   operands are codes, and so is the result.

   add and sub: INT8 of two integers or two dates; a date, time or interval keeps its type with an
   integer, so does a time or interval with an interval, and a date with one is a TIMESTAMP; any
   other two of these are a TIMESTAMP added and an INTERVAL subtracted; everything else is FLOAT8.
   divide: an INTERVAL by a number is one, everything else is FLOAT8. */
QUILLET_API int quillet_get_result_type_add(int left, int right);
QUILLET_API int quillet_get_result_type_sub(int left, int right);
QUILLET_API int quillet_get_result_type_divide(int left, int right);
QUILLET_API int quillet_get_result_type_modulo(int left, int right); /* INT8 */
QUILLET_API int quillet_get_result_type_bool(int left, int right);   /* BOOL */
QUILLET_API int quillet_get_result_type_string(int left, int right); /* VARCHAR */
QUILLET_API int quillet_get_result_type_int2(int left, int right);   /* INT8 */
QUILLET_API int quillet_get_result_type_same(int type);              /* that of the operand */
QUILLET_API int quillet_get_result_type_bool_one(int type);          /* BOOL */
QUILLET_API int quillet_get_result_type_float(int type);             /* FLOAT8 */
QUILLET_API int quillet_get_result_type_int(int type);               /* INT8 */

/* The type of a function call, whose arguments have been rendered, as a code: INT8 for int, FLOAT8
   for float, BOOL for bool, VARCHAR for string and varchar, UNKNOWN for unknow, and so on. The
   call, which must not be NULL, is only read. */
QUILLET_API int quillet_get_result_type_function_int(const node_function_call *call);
QUILLET_API int quillet_get_result_type_function_float(const node_function_call *call);
QUILLET_API int quillet_get_result_type_function_bool(const node_function_call *call);
QUILLET_API int quillet_get_result_type_function_string(const node_function_call *call);
QUILLET_API int quillet_get_result_type_function_varchar(const node_function_call *call);
QUILLET_API int quillet_get_result_type_function_unknow(const node_function_call *call);
QUILLET_API int quillet_get_result_type_function_date(const node_function_call *call);
QUILLET_API int quillet_get_result_type_function_time(const node_function_call *call);
QUILLET_API int quillet_get_result_type_function_timestamp(const node_function_call *call);
QUILLET_API int quillet_get_result_type_function_timestampz(const node_function_call *call);
/* FLOAT8 for the field second, else INT8; UNKNOWN without a field. date_part compares the literal
   with its quotes, so that its result is never FLOAT8. */
QUILLET_API int quillet_get_result_type_function_date_part(const node_function_call *call);
QUILLET_API int quillet_get_result_type_function_extract(const node_function_call *call);
/* The type of the last argument, FLOAT8 if it is unknown. */
QUILLET_API int quillet_get_result_type_function_same_as_argument(const node_function_call *call);

#ifdef __cplusplus
}
#endif

#endif
