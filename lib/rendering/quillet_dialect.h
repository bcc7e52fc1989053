/*
 * What a dialect is: the operations of one builder of this library beside what renders for them.
 * Internal.
 */
#ifndef QUILLET_DIALECT_H
#define QUILLET_DIALECT_H

#include <cstddef>
#include <cstdint>
#include <iterator>

#include "quillet_builder.h"
#include "quillet_findings.h"
#include "quillet_operator_names.h"
#include "quillet_rules.h"

namespace quillet {

struct remark_table;

struct dialect {
    builder operations; // what it puts into the slots; NULL where it puts nothing
#define NODE(kind) renderer<node_##kind> render_##kind;
#include "quillet_nodes.def"
    const operator_rule *operators; // by index, for the slots that it fills
    const function_rule *functions; // likewise
    const cast_rule *cast;
    const expression_frame *frame;            // NULL for none
    void (*keep_reason)(std::int32_t reason); // of a refusal; NULL: it refuses nothing
    notice (*notice_of)(std::int32_t reason);
    const remark_table *remarks; // NULL for none
};

// The dialects, the default one first. They are listed where all of them are known, at the top of
// the library.
inline constexpr int dialect_count = 3;
extern const dialect *const dialects[dialect_count];

inline const dialect &default_dialect() { return *dialects[0]; }

// The slots by node type, and those of operators and functions by index.

template <class Node> using operation = build_result *(*)(builder *self, Node *node, void *data);

template <class Node> struct slot_of;
#define NODE(kind)                                                                                 \
    template <> struct slot_of<node_##kind> {                                                      \
        static constexpr auto operation = &builder::build_##kind;                                  \
        static constexpr auto render = &dialect::render_##kind;                                    \
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

enum function_id {
#define FUNCTION(name, rule) function_id_##name,
#include "quillet_functions.def"
    function_count
};

// The record is part of what hosts are compiled with.
static_assert(operator_count == 45 && function_count == 93);
static_assert(sizeof(builder) == sizeof(void *) * (1 + 193));

// The dialect to which an operation in a slot belongs; NULL for a host's own and for an empty slot.
template <class Operation> const dialect *dialect_of(Operation builder::*slot, Operation found) {
    for (const dialect *known : dialects)
        if (found && known->operations.*slot == found)
            return known;
    return nullptr;
}

// The dialects of all slots of a builder that has operations of this library alone, looked up once.
class own_slots {
public:
    constexpr own_slots() = default;
    explicit own_slots(const builder &self) : self_(&self) {
        const auto look_up = [&](auto builder::*slot) {
            homes_[index_of(self, slot)] = dialect_of(slot, self.*slot);
        };
#define NODE(kind) look_up(&builder::build_##kind);
#include "quillet_nodes.def"
        for (const auto slot : operator_slots)
            look_up(slot);
        for (const auto slot : function_slots)
            look_up(slot);
    }

    bool are_of(const builder *other) const { return self_ == other; }

    template <class Operation> const dialect *home(Operation builder::*slot) const {
        return homes_[index_of(*self_, slot)];
    }

private:
    template <class Operation>
    static std::size_t index_of(const builder &self, Operation builder::*slot) {
        const auto *begin = reinterpret_cast<const char *>(&self);
        const auto *found = reinterpret_cast<const char *>(&(self.*slot));
        return static_cast<std::size_t>(found - begin) / sizeof(void *);
    }

    const builder *self_ = nullptr;
    const dialect *homes_[sizeof(builder) / sizeof(void *)] = {};
};

// The operation that a builder's own one in a slot may defer to: its parent's, or without one what
// stands in its own slot.
template <class Operation> Operation inherited(const builder &self, Operation builder::*slot) {
    const builder *parent = self.parent;
    return parent && parent->*slot ? parent->*slot : self.*slot;
}

} // namespace quillet

#endif
