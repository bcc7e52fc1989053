#include "quillet_translation_context.h"

#include "quillet_globals.h"

namespace quillet {

// Taking and giving back are single steps that no other thread can divide. There is no lock: a
// process that is forked at any time finds none held.

borrowed_context::borrowed_context() {
    for (std::atomic<translation_context *> &idle : idle_contexts)
        if ((context_ = idle.exchange(nullptr)))
            return;
    context_ = new translation_context;
}

borrowed_context::~borrowed_context() {
    for (std::atomic<translation_context *> &idle : idle_contexts) {
        translation_context *none = nullptr;
        if (idle.compare_exchange_strong(none, context_))
            return;
    }
    delete context_; // there are enough
}

void release_idle_contexts() {
    for (std::atomic<translation_context *> &idle : idle_contexts)
        delete idle.exchange(nullptr);
}

} // namespace quillet
