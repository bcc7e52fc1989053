#include "quillet_mysql_builder.h"

#include <array>
#include <iterator>

#include "quillet_function_rules.h"
#include "quillet_mysql_arithmetic.h"
#include "quillet_mysql_remarks.h"
#include "quillet_mysql_rendering.h"
#include "quillet_operators.h"

using namespace quillet;

quillet_builder_info quillet_mysql_builder_info = {
    .builder_name = "mysql",
    .builder_description = "outputs mysql statement",
    .builder_id = 0,
    .constructor = quillet_mysql_builder_create,
    .get_error_code = quillet_mysql_get_error_code,
    .get_error_description = quillet_mysql_get_error_description,
};

quillet_builder_info *quillet_mysql_builder_get_info(void) { return &quillet_mysql_builder_info; }

int32_t quillet_mysql_get_error_code(void) { return mysql::kept_reason(); }

const char *quillet_mysql_get_error_description(void) {
    const std::int64_t index = -static_cast<std::int64_t>(mysql::kept_reason());
    const bool known = index >= 0 && index < std::int64_t{std::size(mysql_error_descriptions)};
    return known ? mysql_error_descriptions[index] : "";
}

// The tables.

namespace {

using namespace quillet::mysql;
using namespace quillet::rows;
using enum quillet::arguments;
using enum quillet::mysql::reason;

#define KIND(kind, ...) constexpr kind_rule<node_##kind> rule_of_##kind = __VA_ARGS__;
#include "quillet_mysql_slots.def"

constexpr std::array<operator_rule, operator_count> operators = [] {
    std::array<operator_rule, operator_count> rules{};
#define OPERATOR(name, ...) rules[operator_id_##name] = __VA_ARGS__;
#include "quillet_mysql_slots.def"
    return rules;
}();

// MySQL's precedence, in the layers of its grammar.
constexpr operator_token mysql_tokens[] = {
    {"OR", 1},      {"AND", 3}, {"NOT", 7, 4}, {"IS", 6},  {"=", 6},    {"<", 6},
    {">", 6},       {"<=", 6},  {">=", 6},     {"!=", 6},  {"LIKE", 7}, {"REGEXP", 7},
    {"BETWEEN", 7}, {"|", 8},   {"&", 9},      {"<<", 10}, {">>", 10},  {"+", 11},
    {"-", 11, 14},  {"*", 12},  {"/", 12},     {"%", 12},  {"^", 13},   {"BINARY", 0, 15},
};

constexpr operator_grammar grammar = {mysql_tokens, true};

// The form of a row's text. By types there are several, which hold their operands as the default
// one does; a function holds them together.
constexpr operator_form form_of_row(const operator_rule &rule, const operator_form &by_default) {
    if (rule.text.count > 0)
        return form_of(rule.text, grammar);
    if (rule.is_truth_test())
        return form_of(rule.by_truth[0], grammar);
    return rule.by_types.empty() ? operator_form{} : by_default;
}

constexpr operator_forms forms_of_texts = [] {
    operator_forms list{};
#define OPERATOR(name, marked, ...)                                                                \
    list[operator_id_##name] = form_of(text_template(marked), grammar);
#include "quillet_operators.def"
#define OPERATOR(name, ...)                                                                        \
    list[operator_id_##name] = form_of_row(__VA_ARGS__, list[operator_id_##name]);
#include "quillet_mysql_slots.def"
    return list;
}();

constexpr std::array<function_rule, function_count> functions = [] {
    std::array<function_rule, function_count> rules{};
#define FUNCTION(name, ...) rules[function_id_##name] = __VA_ARGS__;
#include "quillet_mysql_slots.def"
    return rules;
}();

template <const auto &Rule, class Node> outcome render_kind(rendering &r, Node *node, void *data) {
    return r.by_rule(Rule, mysql_dialect, node, data);
}

} // namespace

// The operations: quillet_<kind>_mysql_builder, quillet_operator_<name>_mysql_builder and
// quillet_function_<name>_mysql_builder.
#define KIND(kind, ...)                                                                            \
    build_result *quillet_##kind##_mysql_builder(builder *self, node_##kind *node, void *data) {   \
        return render_alone(render_kind<rule_of_##kind, node_##kind>, self, node, data);           \
    }
#define OPERATOR(name, ...)                                                                        \
    build_result *quillet_operator_##name##_mysql_builder(builder *self, node_expression *node,    \
                                                          void *data) {                            \
        return render_operator_alone({&mysql_dialect, operator_id_##name}, self, node, data);      \
    }
#define FUNCTION(name, ...)                                                                        \
    build_result *quillet_function_##name##_mysql_builder(builder *self, node_function_call *node, \
                                                          void *) {                                \
        return render_function_alone(mysql_dialect, function_id_##name, self, node);               \
    }
#include "quillet_mysql_slots.def"

constinit const operator_forms quillet::mysql::forms = forms_of_texts;

constinit const dialect quillet::mysql_dialect = [] {
    dialect own{};
#define KIND(kind, ...)                                                                            \
    own.operations.build_##kind = quillet_##kind##_mysql_builder;                                  \
    own.render_##kind = render_kind<rule_of_##kind, node_##kind>;
#define OPERATOR(name, ...)                                                                        \
    own.operations.build_operator_##name = quillet_operator_##name##_mysql_builder;
#define FUNCTION(name, ...)                                                                        \
    if (!functions[function_id_##name].is_reserved)                                                \
        own.operations.build_function_##name = quillet_function_##name##_mysql_builder;
#include "quillet_mysql_slots.def"
    own.operators = operators.data();
    own.functions = functions.data();
    own.cast = &mysql::cast;
    own.keep_reason = mysql::keep_reason;
    own.notice_of = mysql::notice_of;
    own.remarks = &mysql::remarks;
    return own;
}();

builder *quillet_mysql_builder_create(void) {
    builder *created = create_derived_builder();
    if (!created)
        return nullptr;
    const builder &own = mysql_dialect.operations;
#define KIND(kind, ...) created->build_##kind = own.build_##kind;
#define OPERATOR(name, ...) created->build_operator_##name = own.build_operator_##name;
#define FUNCTION(name, ...) created->build_function_##name = own.build_function_##name;
#include "quillet_mysql_slots.def"
    return created;
}
