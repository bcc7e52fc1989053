/*
 * What the units of the builder mysql share. Internal.
 */
#ifndef QUILLET_MYSQL_RENDERING_H
#define QUILLET_MYSQL_RENDERING_H

#include <string_view>

#include "quillet_date_format_parser.h"
#include "quillet_mysql_errors.h"
#include "quillet_rendering.h"

extern "C" {

// Casts a text, which is consumed, from a type to another. Returns a new result.
build_result *_quillet_mysql_cast(char *expression, int type_from, int type_to);

// Turns an interval literal, which is consumed, into MySQL's terms: '1 day 2 hours' into
// 1 day + INTERVAL 2 hour. Returns a new text.
char *_quillet_mysql_extract_interval(char *interval);

// _quillet_mysql_extract_date_<field>: the field of a date expression of a type, as a new text;
// NULL if an interval does not have the field.
#define FIELD(name, ...)                                                                           \
    char *_quillet_mysql_extract_date_##name(const char *date_expression, int date_expression_type);
#include "quillet_mysql_fields.def"

// The same for a field by its name; NULL for an unknown one too.
char *_quillet_mysql_extract_date(const char *type, const char *date_expression,
                                  int date_expression_type);

// A date expression cut off after a field, as a new text; NULL if it cannot be.
char *_quillet_mysql_trunc_date(const char *type, const char *date_expression);

// The specifier of DATE_FORMAT for a word of a pattern, as a new text; NULL if there is none.
char *_quillet_mysql_date_format(const date_format_node *node);
}

namespace quillet {

extern const dialect mysql_dialect;

namespace mysql {

// Refuses a node, which then has no text, unless it says otherwise.
template <class Node>
outcome refuse(rendering &r, Node *node, reason why, seen children = seen::no) {
    return r.refuse(mysql_dialect, node, static_cast<std::int32_t>(why), children);
}

// The renderers that the rows of quillet_mysql_slots.def name.

outcome render_select_item(rendering &r, node_select_item *node, void *);
outcome render_const_boolean(rendering &r, node_const_boolean *node, void *);
outcome render_limit_clausule(rendering &r, node_limit_clausule *node, void *);
outcome render_cast_expression(rendering &r, node_cast_expression *node, void *);
outcome render_const_generic(rendering &r, node_const_generic *node, void *data);
outcome render_expression_or_default_item(rendering &r, node_expression_or_default_item *node,
                                          void *data);
outcome render_identifier(rendering &r, node_identifier *node, void *);

outcome render_overlaps(rendering &r, node_expression *node, void *);

outcome render_log(rendering &r, node_function_call *call, void *);
outcome render_trunc(rendering &r, node_function_call *call, void *);
outcome render_overlay(rendering &r, node_function_call *call, void *);
outcome render_substring(rendering &r, node_function_call *call, void *);
outcome render_ltrim(rendering &r, node_function_call *call, void *);
outcome render_rtrim(rendering &r, node_function_call *call, void *);
outcome render_date_part(rendering &r, node_function_call *call, void *);
outcome render_extract(rendering &r, node_function_call *call, void *);
outcome render_date_trunc(rendering &r, node_function_call *call, void *);
outcome render_to_char(rendering &r, node_function_call *call, void *);

// How casts are rendered; the status of what is cast is lost.
extern const cast_rule cast;

// Without its first and last character: a literal without its quotes.
inline std::string_view without_quotes(std::string_view literal) {
    return literal.size() > 2 ? literal.substr(1, literal.size() - 2) : std::string_view{};
}

} // namespace mysql

} // namespace quillet

#endif
