/*
 * The builder type_view: PostgreSQL text in which every expression shows its inferred type.
 */
#ifndef QUILLET_TYPE_VIEW_BUILDER_H
#define QUILLET_TYPE_VIEW_BUILDER_H

#include "quillet_builder.h"
#include "quillet_builder_info.h"
#include "quillet_export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The record of the builder type_view in the registry; use quillet_type_view_builder_get_info. */
extern QUILLET_API quillet_builder_info quillet_type_view_builder_info;

/* Returns the builder's record in the registry, a static one. */
QUILLET_API quillet_builder_info *quillet_type_view_builder_get_info(void);

/* Returns a new builder, which the caller owns and frees with quillet_builder_free; NULL without
   memory. */
QUILLET_API builder *quillet_type_view_builder_create(void);

/* Renders an expression by its parent's operation and puts its type before it: TYPE ( text ) .
   Returns a new record, which the caller owns; NULL without memory. */
QUILLET_API build_result *quillet_expression_type_view_builder(builder *self, node_expression *node,
                                                               void *data);

#ifdef __cplusplus
}
#endif

#endif
