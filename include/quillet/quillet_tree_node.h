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
    QUILLET_JOIN_NONE = 0,  /* of no join that was parsed */
    QUILLET_JOIN_CROSS = 1, /* CROSS JOIN */
    QUILLET_JOIN_INNER = 2, /* [INNER] JOIN */
    QUILLET_JOIN_LEFT = 3,  /* LEFT [OUTER] JOIN, OUTER JOIN */
    QUILLET_JOIN_RIGHT = 4, /* RIGHT [OUTER] JOIN */
    QUILLET_JOIN_FULL = 5   /* FULL [OUTER] JOIN */
};

/* The direction of a sort key; any code but ascending is descending. */
enum {
    QUILLET_SORT_ASCENDING = 1, /* ASC, or nothing */
    QUILLET_SORT_DESCENDING = 2 /* DESC */
};

/* The truth values; any other code is unknown too. */
enum {
    QUILLET_TRUTH_TRUE = 1,  /* TRUE */
    QUILLET_TRUTH_FALSE = 2, /* FALSE */
    QUILLET_TRUTH_UNKNOW = 3 /* UNKNOW, as the dialect spells it */
};

/* The forms of AT ... ZONE; an unknown form is parsed and cannot be rendered. */
enum {
    QUILLET_ZONE_TIME = 1,          /* AT TIME ZONE 'name' */
    QUILLET_ZONE_TIME_INTERVAL = 2, /* AT TIME ZONE INTERVAL 'offset' */
    QUILLET_ZONE_UNKNOWN = 3        /* another word than TIME */
};

/* The side that TRIM trims. */
enum {
    QUILLET_TRIM_BOTH = 1,    /* BOTH, or nothing */
    QUILLET_TRIM_LEADING = 2, /* LEADING */
    QUILLET_TRIM_TRAILING = 3 /* TRAILING */
};

/* The forms of an aggregate's argument. */
enum {
    QUILLET_AGREGATE_DISTINCT = 1, /* DISTINCT expression */
    QUILLET_AGREGATE_ALL = 2,      /* ALL expression */
    QUILLET_AGREGATE_STAR = 3      /* a star, as in count(*) */
};

#define NODE(kind) typedef struct node_##kind node_##kind;
#include "quillet_nodes.def"

#define NODE(kind)                                                                                 \
    /* A node of the kind <kind>, as in the list: */                                               \
    struct node_##kind {                                                                           \
        int32_t sql_type;                            /* a QUILLET_TYPE_ code, 0 before rendering */
#define CHILD(kind, type, field) node_##type *field; /* owned; NULL when absent */
#define CODE(kind, field) int32_t field;             /* a code or flag; see the record */
#define TEXT(kind, field) char *field; /* owned, released with free; NULL when absent */
#define END(kind)                                                                                  \
    }                                                                                              \
    ;
#include "quillet_nodes.def"

/* For every kind K: quillet_node_K_create and quillet_node_K_free. */
#define NODE(kind)                                                                                 \
    /* Returns a new record, every field zero, which the caller owns; NULL without memory. */      \
    QUILLET_API node_##kind *quillet_node_##kind##_create(void);                                   \
    /* Frees the record with its children and texts, in the order of its fields; NULL is ignored.  \
       Uses no stack in proportion to the tree. */                                                 \
    QUILLET_API void quillet_node_##kind##_free(node_##kind *node);
#include "quillet_nodes.def"

#ifdef __cplusplus
}
#endif

#endif
