#include "quillet_builder.h"

#include <cstdlib>

#include "quillet_builder_rendering.h"
#include "quillet_types.h"

using namespace quillet;

// The three dispatch operations of every slot: quillet_implements_<slot>,
// quillet_call_build_<slot> and quillet_call_parent_build_<slot>.
#define DISPATCH(slot, node_type)                                                                  \
    int quillet_implements_##slot(builder *self) { return self->build_##slot != nullptr; }         \
    build_result *quillet_call_build_##slot(builder *self, node_type *node, void *data) {          \
        return self->build_##slot ? self->build_##slot(self, node, data) : nullptr;                \
    }                                                                                              \
    build_result *quillet_call_parent_build_##slot(builder *self, node_type *node, void *data) {   \
        const builder *parent = self->parent;                                                      \
        return parent && parent->build_##slot ? parent->build_##slot(self, node, data)             \
                                              : quillet_call_build_##slot(self, node, data);       \
    }
#define NODE(kind) DISPATCH(kind, node_##kind)
#include "quillet_nodes.def"
#define OPERATOR(name, ...) DISPATCH(operator_##name, node_expression)
#include "quillet_operators.def"
#define FUNCTION(name, rule) DISPATCH(function_##name, node_function_call)
#include "quillet_functions.def"
#undef DISPATCH

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

void quillet_builder_free(builder *self) {
    while (self) {
        builder *parent = self->parent;
        std::free(self);
        self = parent;
    }
}
