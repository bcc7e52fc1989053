/*
 * Memory for the nodes of the tree and their texts, which come and go by the hundred with every
 * statement. Internal.
 */
#ifndef QUILLET_MEMORY_H
#define QUILLET_MEMORY_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Returns a block of at least size bytes, as from malloc: one that was given back, if there is one.
 */
void *_quillet_memory_take(size_t size);

/* Keeps a block from malloc for the next one that asks for its size, or frees it. NULL is ignored.
 */
void _quillet_memory_give(void *block);

#ifdef __cplusplus
}
#endif

#endif
