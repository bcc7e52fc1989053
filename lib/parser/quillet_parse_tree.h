/*
 * What a parse of quillet_parse works with besides the scanner, and where it leaves its tree.
 * Internal; a host takes the tree with quillet_take_root.
 */
#ifndef QUILLET_PARSE_TREE_H
#define QUILLET_PARSE_TREE_H

#include "quillet_tree_node.h"

#ifdef __cplusplus
extern "C" {
#endif

extern node_main *root; /* the tree of the last successful parse; NULL once it has been taken */

int yy_quillet_parse(void);

#ifdef __cplusplus
}

#include "quillet_tree_memory.h"

namespace quillet {

// Where the trees of the process go that are no translation of quillet_translate's.
extern tree_memory classic_tree_memory;

// The same as quillet_parse, but the tree, which is in root, lies in the memory, in which one must
// be under way.
int parse_query(const char *query, tree_memory &memory);

} // namespace quillet
#endif

#endif
