/*
 * How the builders of this library render. Internal.
 *
 * The public operations of a builder return a text each. Were a tree rendered through them alone,
 * every text would be copied once per level. So every operation of this library has a renderer
 * behind it, which appends to the one growing text of a rendering; the operation itself is an
 * adapter that starts a rendering of its own (render_alone). A child whose slot still holds an
 * operation of this library is rendered by that operation's renderer in place, any other operation
 * is called and its text appended: what a host puts into a slot holds at every depth.
 *
 * A renderer that has no text to give leaves the rendering's text as it found it.
 */
#ifndef QUILLET_BUILDER_RENDERING_H
#define QUILLET_BUILDER_RENDERING_H

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "quillet_build_result.h"
#include "quillet_builder.h"
#include "quillet_builder_operators.h"
#include "quillet_limits.h"
#include "quillet_text_buffer.h"

namespace quillet {

// What a renderer did: whether it made a result at all, whether it has a text, and its status.
struct rendered {
    bool record = false;
    bool text = false;
    std::int32_t status = 0;

    // Takes over a child's failure; the last one counts.
    void fail_with(const rendered &child) {
        if (child.status)
            status = child.status;
    }
};

// The outcome of a renderer: no result, a result without text, a text, a required part that is
// NULL.
inline constexpr rendered absent{};
inline constexpr rendered textless{true, false, 0};
inline constexpr rendered a_text{true, true, 0};
inline constexpr rendered missing_part{true, false, QUILLET_BUILD_MISSING_PART};

// What a dialect writes round every expression; begin may depend on the type found.
struct expression_frame {
    std::string_view (*begin)(const node_expression &node);
    std::string_view end;
};

template <class Node> using renderer = rendered (*)(rendering &, Node *, void *data);
template <class Node> using operation = build_result *(*)(builder *, Node *, void *data);

// How a dialect renders a cast, in two steps round the expression, so that a chain of casts needs
// no stack. The node has an expression; end gets where the text before the expression began.
struct cast_rule;

// The operations of one builder of this library beside the renderers behind them.
struct dialect {
    const builder *operations;
#define NODE(kind) renderer<node_##kind> render_##kind;
#include "quillet_nodes.def"
    const operator_rule *operators;
    const renderer<node_function_call> *functions;
    const cast_rule *cast;
    const expression_frame *frame;
    dialect *next; // in the list of dialects that renderings know
};

// Slots by node type, and the operator and function slots by index.
template <class Node> struct slot_of;
#define NODE(kind)                                                                                 \
    template <> struct slot_of<node_##kind> {                                                      \
        static constexpr auto operation = &builder::build_##kind;                                  \
        static constexpr auto renderer = &dialect::render_##kind;                                  \
    };
#include "quillet_nodes.def"

inline constexpr operation<node_expression> builder::*operator_slots[] = {
#define OPERATOR(name, ...) &builder::build_operator_##name,
#include "quillet_operators.def"
};

inline constexpr operation<node_function_call> builder::*function_slots[] = {
#define FUNCTION(name, rule) &builder::build_function_##name,
#include "quillet_functions.def"
};

static_assert(std::size(operator_slots) == 45);
static_assert(std::size(function_slots) == 93);
static_assert(sizeof(builder) == sizeof(void *) * (1 + 193));

inline constexpr rendered refused{true, false, QUILLET_BUILD_CANNOT_RENDER};

class rendering {
public:
    explicit rendering(builder *renderer);
    ~rendering();
    rendering(const rendering &) = delete;
    rendering &operator=(const rendering &) = delete;

    builder *const self; // the builder whose slots render the children
    text_buffer out;

    // Renders a child at the end of the text. NULL, or an empty slot, gives nothing.
    template <class Node> rendered child(Node *node, void *data = nullptr) {
        constexpr auto slot = slot_of<Node>::operation;
        if (!node || !(self->*slot))
            return absent;
        const auto own = self->*slot;
        if (const dialect *home = dialect_of(slot, own))
            return (home->*slot_of<Node>::renderer)(*this, node, data);
        return take(own(self, node, data));
    }

    // Renders a child behind what was written since start, with a blank between the two if neither
    // is empty.
    template <class Node> rendered spaced_child(std::size_t start, Node *node) {
        if (!node)
            return absent;
        const bool blank = out.size() > start;
        if (blank)
            out.append(' ');
        const std::size_t begin = out.size();
        const rendered result = child(node);
        if (blank && out.size() == begin)
            out.truncate(begin - 1);
        return result;
    }

    // Renders a child between two fixed texts, which stand there even if the child gives no text.
    template <class Node>
    rendered enclosed_child(std::string_view before, Node *node, std::string_view after = {}) {
        out.append(before);
        const rendered result = child(node);
        out.append(after);
        return {true, true, result.status};
    }

    // Renders a child behind a fixed text that goes if the child gives no text.
    template <class Node> rendered prefixed_child(std::string_view before, Node *node) {
        if (!node)
            return absent;
        const place begin = here();
        out.append(before);
        const rendered result = child(node);
        if (!result.text)
            drop_from(begin);
        return result;
    }

    // Appends the text of an operation's result and frees both.
    rendered take(build_result *result);

    // A place in the text to which it can be cut back.
    struct place {
        std::size_t size;
        std::size_t insertions;
    };

    place here() const { return {out.size(), insertions_.size()}; }

    void drop_from(place begin) {
        out.truncate(begin.size);
        insertions_.resize(begin.insertions);
    }

    // Takes out the text between two places, the second of which is not before the first.
    void drop_between(place begin, place end);

    // Keeps a place for a text that is known only when what follows has been rendered.
    std::size_t reserve_insertion() {
        insertions_.push_back({out.size(), {}});
        return insertions_.size() - 1;
    }

    // Fills a reserved place. The text must outlive the rendering.
    void insert(std::size_t index, std::string_view text) { insertions_[index].text = text; }

    // Puts the insertions behind a place into the text.
    void settle(place begin);

    // Scratch for the walks down a chain, so that they need no stack of their own.
    struct link {
        void *node;
        void *data;
    };

    // An expression whose first operand is being rendered.
    struct expression_step {
        enum : std::uint8_t { parentheses, operation, type_cast } kind = parentheses;
        std::int32_t status = 0; // of what was tried on the node before
        node_expression *node = nullptr;
        const operator_rule *rule = nullptr;
        const expression_frame *frame = nullptr;
        place begin{}; // behind the frame's beginning, which is an insertion
        const cast_rule *cast = nullptr;
    };

    std::vector<link> links;
    std::vector<expression_step> steps;

    // Whether a limit has been reached. Nothing more is rendered then, and the rendering fails.
    bool is_exhausted() {
        if (__builtin_frame_address(0) < stack_floor)
            exhausted_ = true;
        return exhausted_;
    }

    // Whether more characters fit in. If they do not, a limit has been reached.
    bool has_room_for(std::size_t more) {
        if (out.size() + more > QUILLET_TEXT_SIZE_MAXIMUM)
            exhausted_ = true;
        return !exhausted_;
    }

    // The dialect to which an operation in a slot belongs, NULL for a host's own and for an empty
    // slot.
    template <class Operation>
    static const dialect *dialect_of(Operation builder::*slot, Operation found) {
        const dialect *candidate = found ? &first_dialect : nullptr;
        while (candidate && candidate->operations->*slot != found)
            candidate = candidate->next;
        return candidate;
    }

    // Makes a dialect's operations known, so that they are rendered in place.
    static void know(dialect &own);

private:
    struct insertion {
        std::size_t position;
        std::string_view text;
    };

    static const void *stack_floor; // of the outermost rendering, NULL outside of one
    const bool outermost_;
    bool exhausted_ = false;

    static dialect &first_dialect; // the default one, which most slots are of

    std::vector<insertion> insertions_; // in the order of their places

    // The memory of the scratch, which the outermost rendering takes over from the one before.
    void exchange_scratch();
    static std::vector<link> kept_links;
    static std::vector<expression_step> kept_steps;
    static std::vector<insertion> kept_insertions;
};

struct cast_rule {
    void (*begin)(rendering &r, const node_cast_expression &node);
    rendered (*end)(rendering &r, node_cast_expression &node, rendering::place begin,
                    rendered operand);
};

// Renders a cast by a rule.
rendered render_cast(rendering &r, const cast_rule &rule, node_cast_expression *node);

extern const cast_rule default_cast;

// Asks for the memory of a node in advance, and for that of its last child, which the parser lays
// right before it: a long chain or list is larger than the processor's cache. The walks do so some
// nodes ahead.
inline constexpr std::size_t fetched_ahead = 6;

inline void fetch(const void *node) {
    constexpr int line = 64;
    const auto address = reinterpret_cast<std::uintptr_t>(node);
    for (int offset = -9 * line; offset <= 2 * line; offset += line)
        __builtin_prefetch(
            reinterpret_cast<const void *>(address + static_cast<std::uintptr_t>(offset)));
}

// The outcome of a rendering as a public operation returns it.
build_result *finished(rendering &r, rendered result);

// The body of a public operation: a rendering of one node.
template <class Node>
build_result *render_alone(renderer<Node> render, builder *self, Node *node, void *data) {
    rendering alone(self);
    return finished(alone, render(alone, node, data));
}

build_result *render_operator_alone(const operator_rule &rule, builder *self,
                                    node_expression *node);

// The default renderers, render_<kind>.
#define NODE(kind) rendered render_##kind(rendering &r, node_##kind *node, void *data);
#include "quillet_nodes.def"

// Renders an expression with all its operands; frame, if any, goes round it.
rendered render_expression_framed(rendering &r, node_expression *node,
                                  const expression_frame *frame);

// Renders what follows the expression of a select item: its alias, or the name and star of an item
// whose expression gave no text.
rendered complete_select_item(rendering &r, node_identifier *identifier, rendered expression);

// Renders an operator application by a rule, whatever its slot holds.
rendered render_by_rule(rendering &r, const operator_rule &rule, node_expression *node);

} // namespace quillet

#endif
