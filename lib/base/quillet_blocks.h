/*
 * Memory that may not be there. Internal.
 *
 * Whoever takes memory gets it or an exception, std::bad_alloc, which goes through C code as well
 * (the scanners are compiled so) and ends in the operation that a host has called. Generated code
 * cannot give back what it holds when an exception goes through it: it takes its blocks from a
 * list, which does.
 */
#ifndef QUILLET_BLOCKS_H
#define QUILLET_BLOCKS_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The blocks that generated code holds; more than it ever does. */
struct quillet_blocks {
    void *blocks[8];
};

/* Like realloc, but never returns NULL. An old block stays as it is if there is no memory. */
void *_quillet_blocks_take(struct quillet_blocks *list, void *old, size_t size);

/* Like free. */
void _quillet_blocks_give(struct quillet_blocks *list, void *block);

/* Frees what is held. */
void _quillet_blocks_give_all(struct quillet_blocks *list);

/* Like malloc, but never returns NULL. */
void *_quillet_take(size_t size);

#ifdef __cplusplus
}
#endif

#endif
