#include "quillet_builder.h"

#include <cstdlib>

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

void quillet_builder_free(builder *self) {
    while (self) {
        builder *parent = self->parent;
        std::free(self);
        self = parent;
    }
}
