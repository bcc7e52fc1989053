/*
 * Memory for the texts of the tree, which come and go by the hundred with every statement. Every
 * block is one from malloc: who takes a text out of a tree may free it, and what is put into a tree
 * may come from malloc. Internal.
 */
#ifndef QUILLET_TEXT_MEMORY_H
#define QUILLET_TEXT_MEMORY_H

#include <stddef.h>
#include <stdlib.h>

#include "quillet_limits.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define QUILLET_PLAIN_MEMORY
#endif
#endif

/* A sanitizer must see every block come and go, and only glibc tells the size of one. */
#if defined(__SANITIZE_ADDRESS__) || !defined(__GLIBC__)
#define QUILLET_PLAIN_MEMORY
#endif

#ifdef __cplusplus
extern "C" {
#endif

#ifdef QUILLET_PLAIN_MEMORY

static inline char *_quillet_text_take(size_t size) { return (char *)malloc(size); }
static inline void _quillet_text_give(char *text) { free(text); }

#else

/* A block that was given back. Those of a list have the same size: that of the first list is what
   malloc gives at least, and from list to list it grows by malloc's step. */
typedef struct quillet_kept_block {
    struct quillet_kept_block *next;
} quillet_kept_block;

enum { quillet_kept_smallest = 24, quillet_kept_step = 16, quillet_kept_lists = 8 };

extern quillet_kept_block *_quillet_kept[quillet_kept_lists];
extern size_t _quillet_kept_count;

/* Returns the list for blocks of a size, which may be none. */
static inline size_t _quillet_kept_list(size_t size) {
    return size <= quillet_kept_smallest
               ? 0
               : (size - quillet_kept_smallest + quillet_kept_step - 1) / quillet_kept_step;
}

/* Returns room for a text of size characters, its NUL included: a block that was given back, if
   there is one. */
static inline char *_quillet_text_take(size_t size) {
    const size_t list = _quillet_kept_list(size);
    if (list >= quillet_kept_lists || !_quillet_kept[list])
        return (char *)malloc(size);
    quillet_kept_block *block = _quillet_kept[list];
    _quillet_kept[list] = block->next;
    --_quillet_kept_count;
    return (char *)block;
}

/* Keeps the block of a text for the next one, or frees it. NULL is ignored. */
void _quillet_text_give(char *text);

#endif

#ifdef __cplusplus
}
#endif

#endif
