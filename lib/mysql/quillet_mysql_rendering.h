/*
 * What the units of the builder mysql share. Internal.
 */
#ifndef QUILLET_MYSQL_RENDERING_H
#define QUILLET_MYSQL_RENDERING_H

#include <string>

#include "quillet_builder_rendering.h"
#include "quillet_date_format_parser.h"
#include "quillet_mysql_builder.h"
#include "quillet_types.h"

extern "C" {

extern int32_t mysql_error_code; // of the last refusal; nothing resets it
extern const char *const mysql_error_descriptions[40];

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

// A date expression cut off behind a field, as a new text; NULL if it cannot be.
char *_quillet_mysql_trunc_date(const char *type, const char *date_expression);

// The specifier of DATE_FORMAT for a word of a pattern, as a new text; NULL if there is none.
char *_quillet_mysql_date_format(const date_format_node *node);
}

namespace quillet {

enum mysql_error {
#define ERROR(name, code, text) mysql_error_##name = code,
#include "quillet_mysql_errors.def"
};

// Stores the reason of a refusal. A refused construct has no text, unless it says otherwise.
rendered refuse(mysql_error reason);

// Operands rendered one after the other, to be written into a text that may hold them in another
// order or several times.
class operand_texts {
public:
    explicit operand_texts(rendering &r) : r_(r), begin_(r.here()) {}

    // Renders the next operand. NULL gives an empty text.
    template <class Node> rendered add(Node *node) {
        const auto begin = r_.here();
        const rendered result = r_.child(node);
        r_.settle(begin);
        ends_[count_++] = r_.out.size();
        status_.fail_with(result);
        return result;
    }

    // The text of an operand, until something else is rendered.
    std::string_view operator[](int index) const;

    // Drops the operands.
    void drop() { r_.drop_from(begin_); }

    // Writes a text in place of the operands. A finished text must not be theirs.
    rendered write(const text_template &text);
    rendered write(std::string_view text);

    // Writes a text of the last operand alone, as $1.
    rendered write_last(const text_template &text);

    // Writes a text of the first operand and one more that was not rendered, $2.
    rendered write_with(const text_template &text, std::string_view second);

private:
    rendered fill(const text_template &text, std::initializer_list<std::string_view> operands);

    rendering &r_;
    rendering::place begin_;
    std::size_t ends_[4] = {};
    int count_ = 0;
    rendered status_;
};

// A cast in two steps round its operand, whose status is lost.
void begin_cast(rendering &r, int type);
rendered end_cast(rendering &r, int type, rendering::place begin, rendered operand);

extern const cast_rule mysql_cast;

// The arguments of a plain call, NULL for none.
inline node_expression *last_argument(const node_function_call &call) {
    return call.expressions_list ? call.expressions_list->expression : nullptr;
}

inline node_expression *previous_argument(const node_function_call &call) {
    const node_expressions_list *list = call.expressions_list;
    return list && list->expressions_list ? list->expressions_list->expression : nullptr;
}

// Without its first and last character: a literal without its quotes.
std::string_view without_quotes(std::string_view literal);

// Appends an interval literal, quotes included, in MySQL's terms.
void append_interval(text_buffer &out, std::string_view literal);

// How the builder renders a function.
enum class arguments : std::uint8_t { nothing, last, list, two };

struct function_rule {
    arguments needs = arguments::nothing;
    text_template text{""};
    int type = QUILLET_TYPE_UNKNOWN;
    rendered (*own)(rendering &r, node_function_call *call) = nullptr;
    mysql_error refused = mysql_error_NONE;
};

rendered render_function(rendering &r, const function_rule &rule, node_function_call *call);

#define KIND(kind) rendered render_##kind##_mysql(rendering &r, node_##kind *node, void *data);
#define OPERATOR_PICK(name, function) const operator_rule &function(const node_expression &node);
#define OPERATOR_CHOICE(name, function)                                                            \
    operator_choice function(const operator_rule &rule, int left, int right);
#define OPERATOR_OWN(name, function) rendered function(rendering &r, node_expression *node);
#define FUNCTION_OWN(name, function) rendered function(rendering &r, node_function_call *call);
#include "quillet_mysql_slots.def"

} // namespace quillet

#endif
