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

/* A builder: its parent and its operations, a slot each, which may be NULL. One made by hand must
   start from all zeros. */
struct builder {
    builder *parent; /* owned; NULL for none */
#define NODE(kind)                                                                                 \
    /* Renders a node of the kind <kind>; the caller owns the result. */                           \
    build_result *(*build_##kind)(builder * self, node_##kind * node, void *data);
#include "quillet_nodes.def"
#define OPERATOR(name, ...)                                                                        \
    /* Renders an expression with the operator <name>; the caller owns the result. */              \
    build_result *(*build_operator_##name)(builder * self, node_expression * node, void *data);
#include "quillet_operators.def"
#define FUNCTION(name, rule)                                                                       \
    /* Renders a call of the function <name>; the caller owns the result. */                       \
    build_result *(*build_function_##name)(builder * self, node_function_call * node, void *data);
#include "quillet_functions.def"
};

/* Returns a new builder that renders PostgreSQL text: every node kind and operator has its default
   operation, the functions have none. The caller owns it. Returns NULL without memory. */
QUILLET_API builder *quillet_default_builder_create(void);

/* Frees a builder, its parent first. The argument must not be NULL. */
QUILLET_API void quillet_builder_free(builder *self);

/*
 * For every slot build_S: quillet_implements_S, quillet_call_build_S and
 * quillet_call_parent_build_S. The builder must not be NULL. The node and the data go to the
 * operation as they are, and its result, NULL or not, belongs to the caller.
 */
#define DISPATCH(slot, node_type)                                                                  \
    /* Returns 1 if the slot build_<slot> is filled, else 0. */                                    \
    QUILLET_API int quillet_implements_##slot(builder *self);                                      \
    /* Returns what the operation in build_<slot> returns, which the caller owns; NULL if the      \
       slot is empty. */                                                                           \
    QUILLET_API build_result *quillet_call_build_##slot(builder *self, node_type *node,            \
                                                        void *data);                               \
    /* Returns what the operation in the parent's build_<slot> returns for self, node and data;    \
       without a parent or with an empty slot there, the builder's own one; the caller owns it. */ \
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
 * The default operations: quillet_<kind>_default_builder for every node kind and
 * quillet_operator_<name>_default_builder for every operator. A host may put them into slots, or
 * call them; neither builder nor node may be NULL, and data is passed on. Each returns a new
 * record, which the caller owns; NULL without memory.
 */
#define NODE(kind)                                                                                 \
    /* Renders a node of the kind <kind> as PostgreSQL text, which the caller owns. */             \
    QUILLET_API build_result *quillet_##kind##_default_builder(builder *self, node_##kind *node,   \
                                                               void *data);
#include "quillet_nodes.def"
#define OPERATOR(name, ...)                                                                        \
    /* Renders an expression with the operator <name>; the caller owns the PostgreSQL text. */     \
    QUILLET_API build_result *quillet_operator_##name##_default_builder(                           \
        builder *self, node_expression *node, void *data);
#include "quillet_operators.def"

#ifdef __cplusplus
}
#endif

#endif
