/*
 * Where a parse leaves its tree. Internal; a host takes the tree with quillet_take_root.
 */
#ifndef QUILLET_PARSE_TREE_H
#define QUILLET_PARSE_TREE_H

#include "quillet_tree_node.h"

#ifdef __cplusplus
extern "C" {
#endif

extern node_main *root; /* the tree of the last successful parse; NULL once it has been taken */

#ifdef __cplusplus
}
#endif

#endif
