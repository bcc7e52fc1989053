#include "quillet_mysql_builder.h"

#include <array>
#include <iterator>

#include "quillet_mysql_rendering.h"

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

// The reasons.

int32_t mysql_error_code = mysql_error_NONE;

const char *const mysql_error_descriptions[40] = {
#define ERROR(name, code, text) text,
#include "quillet_mysql_errors.def"
};

int32_t quillet_mysql_get_error_code(void) { return mysql_error_code; }

const char *quillet_mysql_get_error_description(void) {
    const std::int64_t index = -static_cast<std::int64_t>(mysql_error_code);
    const bool known = index >= 0 && index < std::int64_t{std::size(mysql_error_descriptions)};
    return known ? mysql_error_descriptions[index] : "";
}

rendered quillet::refuse(mysql_error reason) {
    mysql_error_code = reason;
    return refused;
}

// The rules.

namespace {

enum function_id {
#define FUNCTION(name, rule) function_id_##name,
#include "quillet_functions.def"
    function_count
};

// The default rules, and over them those of this builder.
constexpr auto operators = [] {
    std::array<operator_rule, operator_count> rules = std::to_array(default_operators);
#define OPERATOR_TEXT(name, text, rule)                                                            \
    rules[operator_id_##name] = {text_template(text), true,                                        \
                                 result_type<quillet_get_result_type_##rule>};
#define OPERATOR_PICK(name, function) rules[operator_id_##name].pick = function;
#define OPERATOR_CHOICE(name, function) rules[operator_id_##name].choose = function;
#define OPERATOR_OWN(name, function) rules[operator_id_##name].instead = function;
#define OPERATOR_REFUSED(name, error)                                                              \
    rules[operator_id_##name].instead = [](rendering &, node_expression *) {                       \
        return refuse(mysql_error_##error);                                                        \
    };
#include "quillet_mysql_slots.def"
    return rules;
}();

constexpr auto functions = [] {
    std::array<function_rule, function_count> rules{};
#define FUNCTION_TEXT(name, needs, text, type)                                                     \
    rules[function_id_##name] = {arguments::needs, text_template(text), QUILLET_TYPE_##type};
#define FUNCTION_OWN(name, function) rules[function_id_##name].own = function;
#define FUNCTION_REFUSED(name, error) rules[function_id_##name].refused = mysql_error_##error;
#define FUNCTION_RESERVED(name, error) rules[function_id_##name].refused = mysql_error_##error;
#include "quillet_mysql_slots.def"
    return rules;
}();

template <function_id Id> rendered render_listed(rendering &r, node_function_call *call, void *) {
    return render_function(r, functions[Id], call);
}

} // namespace

// The operations: quillet_<kind>_mysql_builder, quillet_operator_<name>_mysql_builder and
// quillet_function_<name>_mysql_builder.
#define KIND(kind)                                                                                 \
    build_result *quillet_##kind##_mysql_builder(builder *self, node_##kind *node, void *data) {   \
        return render_alone(render_##kind##_mysql, self, node, data);                              \
    }
#define MYSQL_OPERATOR(name)                                                                       \
    build_result *quillet_operator_##name##_mysql_builder(builder *self, node_expression *node,    \
                                                          void *) {                                \
        return render_operator_alone(operators[operator_id_##name], self, node);                   \
    }
#define MYSQL_FUNCTION(name)                                                                       \
    build_result *quillet_function_##name##_mysql_builder(builder *self, node_function_call *node, \
                                                          void *data) {                            \
        return render_alone(render_listed<function_id_##name>, self, node, data);                  \
    }
#include "quillet_mysql_operations.def"

namespace {

// The slots that the builder replaces.
constexpr builder operations = [] {
    builder own{};
#define KIND(kind) own.build_##kind = quillet_##kind##_mysql_builder;
#define MYSQL_OPERATOR(name) own.build_operator_##name = quillet_operator_##name##_mysql_builder;
#define MYSQL_FUNCTION(name) own.build_function_##name = quillet_function_##name##_mysql_builder;
#define FUNCTION_RESERVED(name, error)
#include "quillet_mysql_operations.def"
    return own;
}();

constexpr auto function_renderers = [] {
    std::array<renderer<node_function_call>, function_count> renderers{};
#define MYSQL_FUNCTION(name) renderers[function_id_##name] = render_listed<function_id_##name>;
#include "quillet_mysql_operations.def"
    return renderers;
}();

dialect mysql = [] {
    dialect own{};
    own.operations = &operations;
#define KIND(kind) own.render_##kind = render_##kind##_mysql;
#include "quillet_mysql_slots.def"
    own.operators = operators.data();
    own.functions = function_renderers.data();
    own.cast = &mysql_cast;
    return own;
}();

} // namespace

builder *quillet_mysql_builder_create(void) {
    rendering::know(mysql);
    builder *created = quillet_default_builder_create();
    created->parent = quillet_default_builder_create();
#define KIND(kind) created->build_##kind = operations.build_##kind;
#define MYSQL_OPERATOR(name) created->build_operator_##name = operations.build_operator_##name;
#define MYSQL_FUNCTION(name) created->build_function_##name = operations.build_function_##name;
#define FUNCTION_RESERVED(name, error)
#include "quillet_mysql_operations.def"
    return created;
}
