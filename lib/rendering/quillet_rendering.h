/*
 * How the builders of this library render. Internal.
 *
 * The public operations of a builder return a text each. Were a tree rendered through them alone,
 * every text would be copied once per level. So every operation of this library has a renderer
 * behind it, which appends to the one growing text of a rendering; the operation itself is an
 * adapter that starts a rendering of its own (render_alone). A child whose slot still holds an
 * operation of this library is rendered by that operation's renderer in place, any other operation
 * is called and its text appended: what a host puts into a slot holds at every depth.
 */
#ifndef QUILLET_RENDERING_H
#define QUILLET_RENDERING_H

#include <bit>
#include <cstdint>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quillet_dialect.h"
#include "quillet_limits.h"
#include "quillet_output.h"
#include "quillet_remarks.h"
#include "quillet_rules.h"
#include "quillet_walk.h"

namespace quillet {

// A list node whose earlier items are being rendered.
struct list_step {
    void *node;
    void *data;
};

// An application of an operator by a dialect's rule.
struct operator_use {
    const dialect *home = nullptr;
    int index = 0;

    const operator_rule &rule() const { return home->operators[index]; }
    const operator_rule &default_rule() const { return default_dialect().operators[index]; }
};

// An expression whose first operand is being rendered.
struct expression_step {
    enum : std::uint8_t { parentheses, application, type_cast } kind = parentheses;
    std::int32_t status = 0; // of what was tried on the node before
    node_expression *node = nullptr;
    operator_use use{};                      // of an application; of a cast the dialect alone
    const expression_frame *frame = nullptr; // NULL for none
    output::gap frame_gap{};
    output::place begin{}; // of the text, after the frame's beginning
};

// What a rendering keeps for the next one, and what a rendering inside of another one shares with
// it.
struct rendering_memory {
    std::vector<list_step> lists;
    std::vector<expression_step> expressions;
    output::memory gaps;
    stack_bound stack;
    bool is_lacking = false; // whether an operation has failed for want of memory, in the outermost
    std::size_t text_limit = QUILLET_TEXT_SIZE_MAXIMUM;
    const own_slots *own = nullptr; // if the builder and the tree are the library's own
    findings *heard = nullptr;      // where what is found goes; NULL: nowhere, in the classic call
    const remark_table *remarks = nullptr; // what is looked for; likewise
    operator_groups groups;

    // Gives the scratch back.
    void release();
};

// That of the classic calls, and that of the translation under way in this thread, if one is.
extern rendering_memory kept_rendering_memory;
[[gnu::tls_model(
    "initial-exec")]] extern constinit thread_local rendering_memory *own_rendering_memory;

inline rendering_memory &rendering_memory_in_use() {
    return own_rendering_memory ? *own_rendering_memory : kept_rendering_memory;
}

// While one lives, the renderings of this thread have a memory, or with NULL that of the classic
// calls; and they know the slots of the builder, if that and the tree are the library's own.
class rendering_under_way {
public:
    rendering_under_way(rendering_memory *memory, const own_slots *own)
        : former_(std::exchange(own_rendering_memory, memory)),
          former_own_(std::exchange(rendering_memory_in_use().own, own)) {
        rendering_memory_in_use().is_lacking = false;
    }
    ~rendering_under_way() {
        rendering_memory_in_use().own = former_own_;
        own_rendering_memory = former_;
    }
    rendering_under_way(const rendering_under_way &) = delete;
    rendering_under_way &operator=(const rendering_under_way &) = delete;

private:
    rendering_memory *former_;
    const own_slots *former_own_;
};

// Whether the children of a node that fails have been rendered.
enum class seen : std::uint8_t { no, yes };

class rendering {
    rendering_memory &kept_;
    const own_slots *const own_;        // of the builder below; NULL for a host's
    const remark_table *const remarks_; // what is looked for, NULL in the classic call
    rendering_memory memory_; // what the gaps of the text below live in, so it comes first

public:
    explicit rendering(builder *renderer);
    ~rendering();
    rendering(const rendering &) = delete;
    rendering &operator=(const rendering &) = delete;

    builder *const self; // the builder whose slots render the children
    output out;

    // Scratch for the walks down a list and a chain of expressions.
    walk<list_step> list_walk() { return walk<list_step>(memory_.lists); }
    walk<expression_step> expression_walk() { return walk<expression_step>(memory_.expressions); }

    // Renders a child at the end of the text. NULL, or an empty slot, gives nothing.
    template <class Node> outcome child(Node *node, void *data = nullptr) {
        if (!node)
            return absent;
        constexpr auto slot = slot_of<Node>::operation;
        if (const dialect *home = home_of(slot))
            return (home->*slot_of<Node>::render)(*this, node, data);
        return call(self->*slot, node, data);
    }

    // The dialect to which the operation in a slot of the builder belongs; NULL for a host's own.
    template <class Operation>
    [[gnu::always_inline]] const dialect *home_of(Operation builder::*slot) const {
        return own_ ? own_->home(slot) : dialect_of(slot, self->*slot);
    }

    // Appends a text of the tree, which the library has laid into whole words if the tree is its
    // own.
    void append_of_tree(const char *text) {
        constexpr bool words_begin_low = std::endian::native == std::endian::little;
        if (own_ && words_begin_low)
            out.append_words(text);
        else
            out.append(text);
    }

    // Renders a node by the operation that the builder's own one in its slot defers to.
    template <class Node> outcome defer(Node *node, void *data) {
        constexpr auto slot = slot_of<Node>::operation;
        const auto deferred_to = inherited(*self, slot);
        if (deferred_to && dialect_of(slot, deferred_to))
            return (default_dialect().*slot_of<Node>::render)(*this, node, data);
        return call(deferred_to, node, data);
    }

    // Renders a node by a dialect's rule for its kind.
    template <class Node>
    outcome by_rule(const kind_rule<Node> &rule, const dialect &home, Node *node, void *data) {
        if (rule.own)
            return rule.own(*this, node, data);
        if (!rule.refusal || (rule.is_refused && !rule.is_refused(*node)))
            return defer(node, data);
        return refuse(home, node, rule.refusal);
    }

    // Renders a child after what was written since a place, with a blank between the two if neither
    // is empty.
    template <class Node> outcome spaced_child(output::place start, Node *node) {
        if (!node)
            return absent;
        const output::place begin = out.here();
        if (!out.has_grown_since(start))
            return child(node);
        out.append(' ');
        const output::place after_blank = out.here();
        const outcome result = child(node);
        if (!out.has_grown_since(after_blank))
            out.cut(begin);
        return result;
    }

    // Renders a child between two fixed texts, which stand there even if the child gives no text.
    template <class Node>
    outcome enclosed_child(std::string_view before, Node *node, std::string_view after = {}) {
        out.append(before);
        const outcome result = child(node);
        out.append(after);
        return {true, true, result.status};
    }

    // Renders a child after a fixed text that goes if the child gives no text.
    template <class Node> outcome prefixed_child(std::string_view before, Node *node) {
        if (!node)
            return absent;
        const output::place begin = out.here();
        out.append(before);
        const outcome result = child(node);
        if (!result.text)
            out.cut(begin);
        return result;
    }

    // Renders a child and takes its text out again.
    template <class Node> outcome taken_child(Node *node, std::string &text) {
        const output::place begin = out.here();
        const outcome result = child(node);
        text = out.settle(begin);
        out.cut(begin);
        return result;
    }

    // Renders a node by a host's operation; NULL gives nothing.
    template <class Node> outcome call(operation<Node> found, Node *node, void *data) {
        if (!found)
            return absent;
        const std::size_t found_before = kept_.heard ? kept_.heard->list.size() : 0;
        const outcome result = take(found(self, node, data));
        if (kept_.heard && result.status && kept_.heard->list.size() == found_before)
            kept_.heard->add_of_host(result.status, node, kind_of<Node>);
        return result;
    }

    // Fails with a node that lacks a part.
    template <class Node>
    [[gnu::noinline, gnu::cold]] outcome lacks(Node *node, seen children = seen::no) {
        if (kept_.heard)
            hear(missing_part_of(kind_of<Node>), node, children);
        return missing_part;
    }

    // Refuses a node, with a reason of a dialect.
    template <class Node>
    outcome refuse(const dialect &home, Node *node, std::int32_t reason, seen children = seen::no) {
        home.keep_reason(reason);
        if (kept_.heard)
            hear(home.notice_of(reason), node, children);
        return refused_part;
    }

    // The same for a node whose children have been rendered, with another notice than the reason's.
    template <class Node>
    outcome refuse(const dialect &home, Node *node, std::int32_t reason, const notice &what) {
        home.keep_reason(reason);
        if (kept_.heard)
            hear(what, node, seen::yes);
        return refused_part;
    }

    // Takes note of something about a node. What is to be found in its children would be lost if
    // they were not rendered; that ends with the first limit that it reaches.
    template <class Node>
    [[gnu::noinline, gnu::cold]] void hear(const notice &what, Node *node, seen children) {
        kept_.heard->add(what, node, kind_of<Node>);
        if (children == seen::yes || kept_.heard->is_exhausted || is_exhausted())
            return;
        for_each_child(*node, [&](auto *unseen) {
            const output::place begin = out.here();
            child(unseen);
            out.cut(begin);
        });
        kept_.heard->is_exhausted = is_exhausted();
        exhausted_ = exhaustion::none;
    }

    // Remarks what there is to be remarked on a node that has been rendered.
    template <class Node> void remark(Node *node) {
        if (remarks_) [[unlikely]]
            look_for_remark(node);
    }
    void remark_operator(int index, node_expression *node) {
        if (remarks_) [[unlikely]]
            look_for_remark_on_operator(index, node);
    }
    // To be called for an operator that is refused, or that a host has rendered.
    void hold_operator(const node_expression *node) {
        if (remarks_) [[unlikely]]
            kept_.groups.add_held(node);
    }
    void remark_function(int index, node_function_call *node) {
        if (remarks_) [[unlikely]]
            look_for_remark_on_function(index, node);
    }

    // Says something of a node.
    template <class Node> void say(const notice &what, const Node *node) {
        kept_.heard->add(what, node, kind_of<Node>);
    }

    // Whether a limit has been reached. Nothing more is rendered then, and the rendering fails.
    [[gnu::always_inline]] bool is_exhausted() {
        if (kept_.stack.is_reached())
            exhausted_ = exhaustion::of_stack;
        return exhausted_ != exhaustion::none;
    }

    // Whether more characters fit in. If they do not, a limit has been reached.
    bool has_room_for(std::size_t more) {
        if (out.size() + more > kept_.text_limit)
            exhausted_ = exhaustion::of_text;
        return exhausted_ == exhaustion::none;
    }

    // The outcome as a public operation returns it.
    build_result *finish(outcome result);

private:
    template <class Node> [[gnu::noinline, gnu::cold]] void look_for_remark(Node *node) {
        if (const auto known = remarks_->*remark_of<Node>::member)
            known(*this, node);
    }
    void look_for_remark_on_operator(int index, node_expression *node);
    void look_for_remark_on_function(int index, node_function_call *node);

    // Appends the text of an operation's result and frees both.
    outcome take(build_result *result);

    enum class exhaustion : std::uint8_t { none, of_stack, of_text };

    bool is_outermost_;
    exhaustion exhausted_ = exhaustion::none;
};

// One of several children whose texts exclude each other: the one of the lowest rank that has a
// text, of equal ranks the first. All of them are rendered.
class first_with_text {
public:
    explicit first_with_text(rendering &r) : r_(r) {}

    // Renders a child. One that stands without a text, too, takes its place all the same. Returns
    // whether it is the one so far.
    template <class Node> bool add(Node *node, int rank = 0, bool stands_without_text = false) {
        if (!node)
            return false;
        const output::place begin = r_.out.here();
        return take(begin, r_.child(node), rank, stands_without_text);
    }

    bool is_decided() const { return is_decided_; }
    bool has_text() const { return has_text_; }
    std::int32_t status() const { return status_.status; } // of all that were rendered

private:
    bool take(output::place begin, const outcome &result, int rank, bool stands_without_text) {
        status_.fail_with(result);
        if (!result.text && !stands_without_text)
            return false;
        if (is_decided_ && !is_preferred(begin, rank))
            return false;
        if (!is_decided_)
            begin_ = begin;
        is_decided_ = true;
        has_text_ = result.text;
        rank_ = rank;
        return true;
    }

    // Keeps the text of one of two children, and says whether it is that of the later one.
    bool is_preferred(output::place begin, int rank);

    rendering &r_;
    output::place begin_{};
    outcome status_{};
    int rank_ = 0;
    bool is_decided_ = false;
    bool has_text_ = false;
};

// Renders what follows the expression of a select item: its alias, or the name and star of an item
// whose expression gave no text.
outcome complete_select_item(rendering &r, node_identifier *identifier, const outcome &expression);

// Returns a default builder with another one as its parent, which the caller owns; NULL without
// memory.
builder *create_derived_builder();

// What a public operation returns of a rendering; NULL without memory.
template <class Render> build_result *if_there_is_memory(Render render) {
    try {
        return render();
    } catch (const std::bad_alloc &) {
        rendering_memory_in_use().is_lacking = true;
        return nullptr;
    }
}

// Returns a builder that has been made. Where there was no memory for one it is NULL, of which the
// translation takes note, whatever a host's constructor makes of that.
inline builder *made_or_lacking(builder *made) {
    if (!made)
        rendering_memory_in_use().is_lacking = true;
    return made;
}

// Returns a new record, never NULL.
std::unique_ptr<build_result, freed> new_result(std::int32_t status);

// The body of all public operations: a rendering of its own, in which what is given is rendered.
build_result *render_alone(builder *self, void *given,
                           outcome (*render)(rendering &alone, void *given));

// A public operation that renders a node.
template <class Node, class Render>
build_result *render_alone(Render render, builder *self, Node *node, void *data) {
    auto given = [=](rendering &alone) { return render(alone, node, data); };
    return render_alone(self, &given, [](rendering &alone, void *own) {
        return (*static_cast<decltype(given) *>(own))(alone);
    });
}

} // namespace quillet

#endif
