// The default builder, which renders PostgreSQL text.

#include <cstdlib>

#include "quillet_builder.h"
#include "quillet_default_rendering.h"
#include "quillet_expressions.h"
#include "quillet_operators.h"
#include "quillet_postgresql_remarks.h"
#include "quillet_types.h"

using namespace quillet;

namespace {

// A result-type rule for one or two operands, called with two.
template <auto Rule> int result_type(int left, int right) {
    if constexpr (requires { Rule(left, right); })
        return Rule(left, right);
    else
        return Rule(left);
}

constexpr operator_rule operators[operator_count] = {
#define all true
#define none false
#define OPERATOR(name, marked, needs, rule)                                                        \
    {.text = text_template(marked),                                                                \
     .needs_all = needs,                                                                           \
     .type = result_type<quillet_get_result_type_##rule>},
#include "quillet_operators.def"
#undef all
#undef none
};

constexpr cast_rule cast = {
    [](rendering &r, const node_cast_expression &) { r.out.append("CAST("); },
    [](rendering &r, node_cast_expression &node, output::place, outcome expression) {
        r.out.append(" AS ");
        r.out.append(quillet_type_to_string(node.type));
        r.out.append(')');
        node.sql_type = node.type;
        return outcome{true, true, expression.status};
    }};

} // namespace

// The operations: quillet_<kind>_default_builder and quillet_operator_<name>_default_builder.
#define NODE(kind)                                                                                 \
    build_result *quillet_##kind##_default_builder(builder *self, node_##kind *node, void *data) { \
        return render_alone(render_##kind, self, node, data);                                      \
    }
#include "quillet_nodes.def"
#define OPERATOR(name, ...)                                                                        \
    build_result *quillet_operator_##name##_default_builder(builder *self, node_expression *node,  \
                                                            void *data) {                          \
        return render_operator_alone({&postgresql_dialect, operator_id_##name}, self, node, data); \
    }
#include "quillet_operators.def"

constinit const dialect quillet::postgresql_dialect = {
    .operations =
        {
            .parent = nullptr,
#define NODE(kind) .build_##kind = quillet_##kind##_default_builder,
#include "quillet_nodes.def"
#define OPERATOR(name, ...) .build_operator_##name = quillet_operator_##name##_default_builder,
#include "quillet_operators.def"
#define FUNCTION(name, rule) .build_function_##name = nullptr,
#include "quillet_functions.def"
        },
#define NODE(kind) .render_##kind = render_##kind,
#include "quillet_nodes.def"
    .operators = operators,
    .functions = nullptr,
    .cast = &cast,
    .frame = nullptr,
    .keep_reason = nullptr,
    .notice_of = nullptr,
    .remarks = &postgresql::remarks,
};

builder *quillet_default_builder_create(void) {
    auto *created = made_or_lacking(static_cast<builder *>(std::malloc(sizeof(builder))));
    if (created)
        *created = postgresql_dialect.operations;
    return created;
}

outcome quillet::render_cast_expression(rendering &r, node_cast_expression *node, void *) {
    return render_cast(r, cast, node);
}
