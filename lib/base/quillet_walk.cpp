#include "quillet_walk.h"

#include <algorithm>

#ifdef __EMSCRIPTEN__
#include <emscripten/stack.h>
#else
#include <pthread.h>
#include <sys/resource.h>
#endif

#include "quillet_limits.h"

namespace quillet {

namespace {

struct stack {
    const char *lowest = nullptr;
    const char *end = nullptr;
};

#ifdef __EMSCRIPTEN__
// What WebAssembly's own frames take besides is its host's to bound.
stack stack_of_this_thread(const void *) {
    return {reinterpret_cast<const char *>(emscripten_stack_get_end()),
            reinterpret_cast<const char *>(emscripten_stack_get_base())};
}
#else
// What may be left of the process's usual stack at a frame near its beginning.
stack usual_stack(const char *frame) {
    rlimit limit{};
    const bool is_known = getrlimit(RLIMIT_STACK, &limit) == 0;
    const auto size = is_known ? std::min<rlim_t>(limit.rlim_cur, QUILLET_STACK_SIZE_USUAL)
                               : rlim_t{QUILLET_STACK_SIZE_USUAL};
    return {frame - size / 2, frame + 1};
}

// The running thread's stack without its guard, as far down as is relied upon. The system may not
// tell, as where /proc is missing.
stack stack_of_this_thread(const void *frame) {
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0)
        return usual_stack(static_cast<const char *>(frame));
    void *lowest = nullptr;
    std::size_t size = 0;
    std::size_t guard = 0;
    pthread_attr_getstack(&attributes, &lowest, &size);
    pthread_attr_getguardsize(&attributes, &guard);
    pthread_attr_destroy(&attributes);
    const char *end = static_cast<const char *>(lowest) + size;
    return {end - std::min<std::size_t>(size - guard, QUILLET_STACK_SIZE_MAXIMUM), end};
}
#endif

const char *floor_of(stack own) {
    const auto size = static_cast<std::size_t>(own.end - own.lowest);
    return own.lowest +
           std::max<std::size_t>(size / QUILLET_STACK_RESERVE_SHARE, QUILLET_STACK_RESERVE_MINIMUM);
}

} // namespace

void stack_bound::set(const void *frame) {
    first_ = frame;
    floor_ = static_cast<const char *>(frame) - QUILLET_STACK_UNASKED;
    is_exact_ = false;
}

bool stack_bound::is_reached_exactly(const void *frame) {
    if (!is_exact_) {
        const stack own = stack_of_this_thread(first_);
        const bool is_own = own.lowest <= frame && frame < own.end;
        floor_ =
            is_own ? floor_of(own) : static_cast<const char *>(first_) - QUILLET_STACK_SIZE_FOREIGN;
        is_exact_ = true;
    }
    return frame < floor_;
}

} // namespace quillet
