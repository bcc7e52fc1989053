/*
 * What a call of quillet_translate works with. Internal.
 */
#ifndef QUILLET_TRANSLATION_CONTEXT_H
#define QUILLET_TRANSLATION_CONTEXT_H

#include "quillet_own_builders.h"
#include "quillet_rendering.h"
#include "quillet_tree_memory.h"

namespace quillet {

// What one call leaves to a later one, perhaps in another thread: memory, but nothing that could
// be seen.
struct translation_context {
    tree_memory tree;
    rendering_memory rendering;
    own_builders builders;
};

// A context while a call has it. Calls that are under way at the same time, in several threads or
// inside of each other, have one each.
class borrowed_context {
public:
    borrowed_context();
    ~borrowed_context();
    borrowed_context(const borrowed_context &) = delete;
    borrowed_context &operator=(const borrowed_context &) = delete;

    translation_context *operator->() const { return context_; }

private:
    translation_context *context_;
};

// Frees the contexts that no call has.
void release_idle_contexts();

} // namespace quillet

#endif
