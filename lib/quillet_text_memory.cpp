#include "quillet_memory.h"

#ifndef QUILLET_PLAIN_MEMORY

#include <malloc.h>

quillet_kept_block *_quillet_kept[quillet_kept_lists];
size_t _quillet_kept_count;

void _quillet_memory_give_text(char *text) {
    if (text)
        _quillet_memory_give(text, malloc_usable_size(text));
}

#endif
