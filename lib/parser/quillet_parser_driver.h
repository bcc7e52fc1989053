/*
 * The parser of a statement where it stands, over bison's tables. Internal.
 *
 * It does what bison's own driver does, step by step, in about half the instructions: a row has
 * all that a state or a rule asks for, an action stands beside what it is checked by, and there is
 * one stack.
 */
#ifndef QUILLET_PARSER_DRIVER_H
#define QUILLET_PARSER_DRIVER_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <utility>

#include "quillet_frequent_tokens.h"
#include "quillet_limits.h"
#include "quillet_parser_symbols.h"
#include "quillet_parsing.h"

namespace quillet {

// The tables of a grammar, made of those that bison writes.
template <class Grammar> struct parser_tables {
    // What a state does at a token, and where it goes after a construct: by the first cell of the
    // state or of the construct's rule, and the number of the token or of the state before it. That
    // number must be in the cell, or else the default holds.
    struct cell {
        std::uint16_t number = UINT16_MAX;
        std::uint16_t action = 0; // a state, or from first_rule on a rule to reduce by
    };

    struct state_row {
        std::uint16_t cells = no_cells;
        std::uint16_t rule; // by default; 0: an error
    };

    struct rule_row {
        std::uint16_t cells;
        std::uint16_t state; // by default
        std::uint32_t length;
    };

    static constexpr std::uint16_t no_cells = UINT16_MAX; // whatever follows
    static constexpr std::size_t state_count = std::size(Grammar::pact);
    static constexpr std::size_t first_rule = state_count;

    // The first cell of all: bison's tables may begin before theirs and end after it.
    static constexpr int first = [] {
        int least = *std::min_element(std::begin(Grammar::pgoto), std::end(Grammar::pgoto));
        for (const int cells : Grammar::pact)
            if (cells != Grammar::no_action)
                least = std::min(least, cells);
        return least;
    }();
    static constexpr std::size_t cell_count = [] {
        const int most =
            std::max(*std::max_element(std::begin(Grammar::pgoto), std::end(Grammar::pgoto)) +
                         int{state_count},
                     *std::max_element(std::begin(Grammar::pact), std::end(Grammar::pact)) +
                         Grammar::token_count);
        return static_cast<std::size_t>(std::max(most, int{std::size(Grammar::table)}) - first);
    }();

    static constexpr std::uint16_t cells_at(int cells) {
        return static_cast<std::uint16_t>(cells - first);
    }

    static constexpr std::array<cell, cell_count> cells = [] {
        std::array<cell, cell_count> all{};
        for (std::size_t i = 0; i < std::size(Grammar::table); ++i) {
            const int action = Grammar::table[i];
            const int coded =
                action > 0 ? action : int{first_rule} + (action == Grammar::error ? 0 : -action);
            all[i - first] = {static_cast<std::uint16_t>(Grammar::check[i]),
                              static_cast<std::uint16_t>(coded)};
        }
        return all;
    }();

    static constexpr std::array<state_row, state_count> states = [] {
        std::array<state_row, state_count> all{};
        for (std::size_t i = 0; i < all.size(); ++i) {
            all[i].rule = static_cast<std::uint16_t>(Grammar::defact[i]);
            if (Grammar::pact[i] != Grammar::no_action)
                all[i].cells = cells_at(Grammar::pact[i]);
        }
        return all;
    }();

    static constexpr std::array<rule_row, std::size(Grammar::r1)> rules = [] {
        std::array<rule_row, std::size(Grammar::r1)> all{};
        for (std::size_t i = 1; i < all.size(); ++i) {
            const int made = Grammar::r1[i] - Grammar::token_count;
            all[i] = {cells_at(Grammar::pgoto[made]),
                      static_cast<std::uint16_t>(Grammar::defgoto[made]),
                      static_cast<std::uint32_t>(Grammar::r2[i])};
        }
        return all;
    }();
};

// Puts a construct in the place of its parts, by the row of its rule. Returns where, and the state
// after it.
template <class Grammar, class Symbol>
[[gnu::always_inline]] inline Symbol *put(const typename parser_tables<Grammar>::rule_row &row,
                                          Symbol *before, quillet_value made, place where,
                                          std::size_t &state) {
    const auto found = parser_tables<Grammar>::cells[row.cells + before->state];
    state = found.number == before->state ? found.action : row.state;
    before[1].set(made, where, state);
    return before + 1;
}

// The construct that a rule makes of the last symbols. What there is to know of the rule is
// constant here, so that the processor goes on from the state before the construct, and does not
// wait for what led to the rule.
template <class Grammar, class Symbol, std::size_t rule> class construct {
    static constexpr auto row = parser_tables<Grammar>::rules[rule];
    Symbol *const before_;

public:
    explicit construct(Symbol *last)
        : before_(last - row.length), where(Symbol::place_of_all(before_, row.length)) {}

    Symbol *end(std::size_t &state) const { return put<Grammar>(row, before_, made, where, state); }

    const place where;
    quillet_value made;
};

// The same by a rule without an action: the first part, if there is one.
template <class Grammar, class Symbol>
[[gnu::noinline]] Symbol *put_first_part(std::size_t rule, Symbol *last, std::size_t &state) {
    const auto row = parser_tables<Grammar>::rules[rule];
    Symbol *before = last - row.length;
    const place where = Symbol::place_of_all(before, row.length);
    const quillet_value made = row.length ? before[1].value : quillet_value{};
    return put<Grammar>(row, before, made, where, state);
}

// The stack of a parse. A usual statement needs no more than stands in it.
template <class Symbol> class parser_stack {
public:
    parser_stack() : begin_(usual_), limit_(usual_ + std::size(usual_) - 1) {}
    parser_stack(const parser_stack &) = delete;
    parser_stack &operator=(const parser_stack &) = delete;

    Symbol *begin() { return begin_; }

    // Whether no more fits in beside the last symbol.
    bool is_full_with(const Symbol *last) const { return last >= limit_; }

    // Moves the symbols to more room, and returns where the last one is then; NULL if there are too
    // many.
    Symbol *grow(const Symbol *last) {
        const std::size_t size = static_cast<std::size_t>(limit_ - begin_) + 1;
        if (size >= QUILLET_PARSER_STACK_MAXIMUM)
            return nullptr;
        const std::size_t larger = std::min<std::size_t>(size * 2, QUILLET_PARSER_STACK_MAXIMUM);
        std::unique_ptr<Symbol[]> moved(new Symbol[larger]);
        Symbol *moved_last = std::copy<const Symbol *>(begin_, last + 1, moved.get()) - 1;
        more_ = std::move(moved);
        begin_ = more_.get();
        limit_ = begin_ + larger - 1;
        return moved_last;
    }

private:
    Symbol usual_[QUILLET_PARSER_STACK_INITIAL];
    std::unique_ptr<Symbol[]> more_;
    Symbol *begin_;
    Symbol *limit_; // the last one that there is room for, which stays free
};

template <class Grammar, class Symbol> class parser_driver {
    using tables = parser_tables<Grammar>;

public:
    parser_driver(quillet_parsing *parse, quillet_tree_memory *memory)
        : parse_(parse), memory_(memory) {}

    // Returns 0 for a tree, which is in the parsing's root.
    int run() {
        Symbol *last = stack_.begin();
        last->set({}, {}, 0);
        std::size_t state = 0;
        std::size_t token = no_token;
        quillet_value value;
        for (;;) {
            const typename tables::state_row row = tables::states[state];
            std::size_t rule = row.rule;
            if (row.cells != tables::no_cells) {
                if (token == no_token) // after a fault it is one that no state knows
                    token = Grammar::translate[scan_in_place(&value, parse_->scan)];
                const typename tables::cell found = tables::cells[row.cells + token];
                if (found.number == token) {
                    if (found.action == Grammar::final_state)
                        return 0;
                    if (found.action < tables::first_rule) {
                        state = found.action;
                        (++last)->set(value, parse_->last_token(), state);
                        if (stack_.is_full_with(last) && !(last = grow(last)))
                            return failed;
                        token = no_token;
                        continue;
                    }
                    rule = found.action - tables::first_rule;
                }
            }
            if (rule == 0)
                return failed;
            last = Grammar::reduce(rule, last, state, parse_, memory_);
            if (stack_.is_full_with(last) && !(last = grow(last)))
                return failed;
        }
    }

private:
    static constexpr std::size_t no_token = SIZE_MAX;
    static constexpr int failed = 1;

    Symbol *grow(Symbol *last) {
        Symbol *moved = stack_.grow(last);
        if (!moved)
            parse_->is_too_deep = true;
        return moved;
    }

    quillet_parsing *parse_;
    quillet_tree_memory *memory_;
    parser_stack<Symbol> stack_;
};

} // namespace quillet

#endif
