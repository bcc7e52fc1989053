#include "quillet_blocks.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <new>
#include <utility>

namespace {

void *or_throw(void *block) {
    if (!block)
        throw std::bad_alloc();
    return block;
}

// Where a block stands in a list, or for NULL a free place; NULL if there is none.
void **place_of(quillet_blocks &list, const void *block) {
    void **place = std::find(std::begin(list.blocks), std::end(list.blocks), block);
    return place != std::end(list.blocks) ? place : nullptr;
}

} // namespace

void *_quillet_blocks_take(quillet_blocks *list, void *old, size_t size) {
    void **place = place_of(*list, old);
    void *block = or_throw(std::realloc(old, size));
    if (place)
        *place = block;
    return block;
}

void _quillet_blocks_give(quillet_blocks *list, void *block) {
    if (!block)
        return;
    if (void **place = place_of(*list, block))
        *place = nullptr;
    std::free(block);
}

void _quillet_blocks_give_all(quillet_blocks *list) {
    for (void *&block : list->blocks)
        if (block)
            std::free(std::exchange(block, nullptr));
}

void *_quillet_take(size_t size) { return or_throw(std::malloc(size)); }
