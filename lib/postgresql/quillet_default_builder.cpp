// The default builder, which renders PostgreSQL text.

#include <cstdlib>

#include "quillet_builder_rendering.h"

using namespace quillet;

// The default operations: quillet_<kind>_default_builder and
// quillet_operator_<name>_default_builder.
#define NODE(kind)                                                                                 \
    build_result *quillet_##kind##_default_builder(builder *self, node_##kind *node, void *data) { \
        return render_alone(render_##kind, self, node, data);                                      \
    }
#include "quillet_nodes.def"
#define OPERATOR(name, ...)                                                                        \
    build_result *quillet_operator_##name##_default_builder(builder *self, node_expression *node,  \
                                                            void *) {                              \
        return render_operator_alone(default_operators[operator_id_##name], self, node);           \
    }
#include "quillet_operators.def"

namespace {

constexpr builder default_operations = {
    .parent = nullptr,
#define NODE(kind) .build_##kind = quillet_##kind##_default_builder,
#include "quillet_nodes.def"
#define OPERATOR(name, ...) .build_operator_##name = quillet_operator_##name##_default_builder,
#include "quillet_operators.def"
#define FUNCTION(name, rule) .build_function_##name = nullptr,
#include "quillet_functions.def"
};

dialect default_dialect = {
    .operations = &default_operations,
#define NODE(kind) .render_##kind = render_##kind,
#include "quillet_nodes.def"
    .operators = default_operators,
    .functions = nullptr,
    .cast = &default_cast,
    .frame = nullptr,
    .next = nullptr,
};

} // namespace

dialect &rendering::first_dialect = default_dialect;

builder *quillet_default_builder_create(void) {
    auto *created = static_cast<builder *>(std::malloc(sizeof(builder)));
    *created = default_operations;
    return created;
}
