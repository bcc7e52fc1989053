#include "quillet_text_memory.h"

#ifndef QUILLET_PLAIN_MEMORY

#include <malloc.h>

#include <new>

quillet_kept_block *_quillet_kept[quillet_kept_lists];
size_t _quillet_kept_count;

void _quillet_text_give(char *text) {
    if (!text)
        return;
    const size_t list = _quillet_kept_list(malloc_usable_size(text));
    if (list >= quillet_kept_lists || _quillet_kept_count >= QUILLET_KEPT_BLOCKS_MAXIMUM) {
        std::free(text);
        return;
    }
    _quillet_kept[list] = ::new (text) quillet_kept_block{_quillet_kept[list]};
    ++_quillet_kept_count;
}

#endif
