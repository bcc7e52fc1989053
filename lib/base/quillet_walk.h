/*
 * Walks over trees that need no machine stack, and the bound of the machine's stack for what still
 * does. Internal.
 *
 * A tree of ours is deep in two ways. Chains (operators along their first operands, casts, lists)
 * have any length: whoever follows one takes steps down, keeps what it needs of each step in a
 * vector, and comes back up. What is nested otherwise is as deep as the parser lets it be, or as a
 * host has built it, and is rendered with recursion, which ends where the stack does.
 *
 * The contract of a walk:
 * - Step is a record with the member node, the node that is next on the way back up.
 * - What comes up is what went down last. A walk ends with every step taken back up.
 * - A walk may begin while another one is under way in the same memory, above its steps; it must
 * end before that one goes on.
 * - References into the memory end with the next step down.
 */
#ifndef QUILLET_WALK_H
#define QUILLET_WALK_H

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quillet {

// Asks for the memory of a node in advance, and for that of its last child, which the parser lays
// right before it: a long chain or list is larger than the processor's cache.
inline void fetch(const void *node) {
    constexpr int line = 64;
    const auto address = reinterpret_cast<std::uintptr_t>(node);
    for (int offset = -9 * line; offset <= 2 * line; offset += line)
        __builtin_prefetch(
            reinterpret_cast<const void *>(address + static_cast<std::uintptr_t>(offset)));
}

// FetchedAhead is how many steps before its turn a node is asked for; 0 is never. Memory is a
// vector of steps.
template <class Step, std::size_t FetchedAhead = 6, class Memory = std::vector<Step>> class walk {
public:
    explicit walk(Memory &memory) : steps_(memory), bottom_(memory.size()) {}
    walk(const walk &) = delete;
    walk &operator=(const walk &) = delete;

    void down(const Step &step) { steps_.push_back(step); }

    // Whether there is a step to take back up.
    bool is_down() const { return steps_.size() > bottom_; }

    // The last step down, to be changed where it stands.
    Step &last() { return steps_.back(); }

    // Takes the last step back up, and asks for the node of a later one.
    Step up() {
        const Step step = steps_.back();
        steps_.pop_back();
        if (FetchedAhead != 0 && steps_.size() > bottom_ + FetchedAhead)
            fetch(steps_[steps_.size() - FetchedAhead].node);
        return step;
    }

private:
    Memory &steps_;
    const std::size_t bottom_;
};

// The bound of the machine's stack while something is rendered. The outermost rendering begins and
// ends it; what a host's operations render in between keeps to it.
class stack_bound {
public:
    bool is_set() const { return floor_ != nullptr; }

    // Sets the bound, seen from a frame, to what may be taken without asking.
    void set(const void *frame);
    void reset() { floor_ = nullptr; }

    // Whether the stack must not grow any more.
    [[gnu::always_inline]] bool is_reached() {
        const void *frame = __builtin_frame_address(0);
        return frame < floor_ && is_reached_exactly(frame);
    }

private:
    bool is_reached_exactly(const void *frame);

    const void *floor_ = nullptr; // the stack grows down to it
    const void *first_ = nullptr; // the frame that it was set from
    bool is_exact_ = false;       // whether it is what the system says
};

} // namespace quillet

#endif
