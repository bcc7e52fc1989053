/*
 * The builder tree: the parse tree, one node a line.
 *
 * The data argument of its operations is the indentation of the node's line, a number.
 */
#ifndef QUILLET_TREE_VIEW_BUILDER_H
#define QUILLET_TREE_VIEW_BUILDER_H

#include "quillet_builder.h"
#include "quillet_builder_info.h"
#include "quillet_export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The record of the builder tree in the registry; use quillet_tree_view_builder_get_info. */
extern QUILLET_API quillet_builder_info quillet_tree_view_builder_info;

/* Returns the builder's record in the registry, a static one. */
QUILLET_API quillet_builder_info *quillet_tree_view_builder_get_info(void);

/* Returns a new builder, which the caller owns and frees with quillet_builder_free; NULL without
   memory. */
QUILLET_API builder *quillet_tree_view_builder_create(void);

/* Returns a new text, which the caller releases with free: indentation blanks, the label, the
   number in brackets and a newline. NULL without memory. */
QUILLET_API char *quillet_print(int indentation, const char *label, int number);

/* The operations, quillet_<kind>_tree_view: data is the indentation, a number in the pointer. Each
   returns a new record, which the caller owns; NULL without memory. */
#define NODE(kind)                                                                                 \
    /* Writes a line for a node of the kind <kind> and each below it; the caller owns it. */       \
    QUILLET_API build_result *quillet_##kind##_tree_view(builder *self, node_##kind *node,         \
                                                         void *data);
#include "quillet_nodes.def"

#ifdef __cplusplus
}
#endif

#endif
