/*
 * The parse tree: 55 kinds of plain records, listed with their fields in quillet_nodes.def.
 *
 * Every record begins with sql_type, a QUILLET_TYPE_ code that rendering fills in (0 before). A
 * node owns its children and its texts; an absent child is NULL. A list is a chain of list nodes
 * whose head holds the last item and points to the list of the items before it.
 */
#ifndef QUILLET_TREE_NODE_H
#define QUILLET_TREE_NODE_H

#include <stdint.h>

#include "quillet_export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The kinds of a join. */
enum {
    QUILLET_JOIN_NONE = 0,
    QUILLET_JOIN_CROSS = 1,
    QUILLET_JOIN_INNER = 2,
    QUILLET_JOIN_LEFT = 3,
    QUILLET_JOIN_RIGHT = 4,
    QUILLET_JOIN_FULL = 5
};

/* The direction of a sort key; any code but ascending is descending. */
enum { QUILLET_SORT_ASCENDING = 1, QUILLET_SORT_DESCENDING = 2 };

/* The truth values; any other code is unknown too. */
enum { QUILLET_TRUTH_TRUE = 1, QUILLET_TRUTH_FALSE = 2, QUILLET_TRUTH_UNKNOW = 3 };

/* The forms of AT ... ZONE; an unknown form is parsed and cannot be rendered. */
enum { QUILLET_ZONE_TIME = 1, QUILLET_ZONE_TIME_INTERVAL = 2, QUILLET_ZONE_UNKNOWN = 3 };

/* The side that TRIM trims. */
enum { QUILLET_TRIM_BOTH = 1, QUILLET_TRIM_LEADING = 2, QUILLET_TRIM_TRAILING = 3 };

/* The forms of an aggregate's argument. */
enum { QUILLET_AGREGATE_DISTINCT = 1, QUILLET_AGREGATE_ALL = 2, QUILLET_AGREGATE_STAR = 3 };

#define NODE(kind) typedef struct node_##kind node_##kind;
#include "quillet_nodes.def"

#define NODE(kind)                                                                                 \
    struct node_##kind {                                                                           \
        int32_t sql_type;
#define CHILD(kind, type, field) node_##type *field;
#define CODE(kind, field) int32_t field;
#define TEXT(kind, field) char *field;
#define END(kind)                                                                                  \
    }                                                                                              \
    ;
#include "quillet_nodes.def"

/*
 * For every kind:
 *
 *   node_K *quillet_node_K_create(void)     a new record, every field zero, which the caller
 *                                           owns; NULL without memory
 *   void quillet_node_K_free(node_K *node)  frees the record with its children and texts, in the
 *                                           order of its fields; NULL is ignored. Uses no stack in
 *                                           proportion to the tree
 */
#define NODE(kind)                                                                                 \
    QUILLET_API node_##kind *quillet_node_##kind##_create(void);                                   \
    QUILLET_API void quillet_node_##kind##_free(node_##kind *node);
#include "quillet_nodes.def"

#ifdef __cplusplus
}
#endif

#endif
