/*
 * The builder: one rendering operation for every node kind, operator and function, with a parent
 * that an operation can fall back to.
 *
 * An operation takes the builder, a node and a data argument whose meaning the caller and the
 * operation agree on (mostly NULL), and returns a new build_result that the caller owns, or NULL.
 * Our own operations also return NULL without memory, and the translation then fails.
 * It renders its children through the builder that it got, so that a replaced operation applies at
 * every depth.
 */
#ifndef QUILLET_BUILDER_H
#define QUILLET_BUILDER_H

#include "quillet_build_result.h"
#include "quillet_export.h"
#include "quillet_tree_node.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct builder builder;

/* A slot may be NULL. A builder made by hand must start from all zeros. */
struct builder {
    builder *parent; /* owned; NULL for none */
#define NODE(kind) build_result *(*build_##kind)(builder * self, node_##kind * node, void *data);
#include "quillet_nodes.def"
#define OPERATOR(name, ...)                                                                        \
    build_result *(*build_operator_##name)(builder * self, node_expression * node, void *data);
#include "quillet_operators.def"
#define FUNCTION(name, rule)                                                                       \
    build_result *(*build_function_##name)(builder * self, node_function_call * node, void *data);
#include "quillet_functions.def"
};

/* Returns a new builder that renders PostgreSQL text: every node kind and operator has its default
   operation, the functions have none. The caller owns it. Returns NULL without memory. */
QUILLET_API builder *quillet_default_builder_create(void);

/* Frees a builder, its parent first. The argument must not be NULL. */
QUILLET_API void quillet_builder_free(builder *self);

/*
 * For every slot build_S:
 *
 *   int quillet_implements_S(builder *self)
 *       1 if the slot is filled, else 0
 *   build_result *quillet_call_build_S(builder *self, node, void *data)
 *       what the slot's operation returns, NULL if the slot is empty
 *   build_result *quillet_call_parent_build_S(builder *self, node, void *data)
 *       what the operation of the parent's slot returns for self, node and data; without a parent
 *       or with an empty slot there, the builder's own slot is called
 */
#define DISPATCH(slot, node_type)                                                                  \
    QUILLET_API int quillet_implements_##slot(builder *self);                                      \
    QUILLET_API build_result *quillet_call_build_##slot(builder *self, node_type *node,            \
                                                        void *data);                               \
    QUILLET_API build_result *quillet_call_parent_build_##slot(builder *self, node_type *node,     \
                                                               void *data);
#define NODE(kind) DISPATCH(kind, node_##kind)
#include "quillet_nodes.def"
#define OPERATOR(name, ...) DISPATCH(operator_##name, node_expression)
#include "quillet_operators.def"
#define FUNCTION(name, rule) DISPATCH(function_##name, node_function_call)
#include "quillet_functions.def"
#undef DISPATCH

/*
 * The default operations, quillet_<kind>_default_builder for every node kind and
 * quillet_operator_<name>_default_builder for every operator.
 */
#define NODE(kind)                                                                                 \
    QUILLET_API build_result *quillet_##kind##_default_builder(builder *self, node_##kind *node,   \
                                                               void *data);
#include "quillet_nodes.def"
#define OPERATOR(name, ...)                                                                        \
    QUILLET_API build_result *quillet_operator_##name##_default_builder(                           \
        builder *self, node_expression *node, void *data);
#include "quillet_operators.def"

#ifdef __cplusplus
}
#endif

#endif
