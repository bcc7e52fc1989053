/*
 * What the stack of a parser of a statement where it stands holds. Internal.
 */
#ifndef QUILLET_PARSER_SYMBOLS_H
#define QUILLET_PARSER_SYMBOLS_H

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "quillet_parser_values.h"

namespace quillet {

// Of a symbol its value and the state after it. It is written field by field: a processor waits for
// what is read in larger pieces than it was written in.
struct parsed_symbol {
    quillet_value value;
    std::uint16_t state;

    static place place_of_all(const parsed_symbol *, std::size_t) { return {}; }
    void set(quillet_value made, place, std::size_t after) {
        value = made;
        state = static_cast<std::uint16_t>(after);
    }
};

// The same with its place in the statement.
struct placed_symbol {
    quillet_value value;
    place where;
    std::uint16_t state;

    // The place of a construct whose parts are counted from 1; before them stands the symbol before
    // the construct. An empty part has no place of its own.
    [[gnu::noinline]] static place place_of_all(const placed_symbol *parts, std::size_t count) {
        const auto is_empty = [](const placed_symbol &part) {
            return part.where.begin == part.where.end;
        };
        const placed_symbol *end = parts + count + 1;
        const placed_symbol *first = std::find_if_not(parts + 1, end, is_empty);
        if (first == end)
            return {parts->where.end, parts->where.end};
        do
            --end;
        while (is_empty(*end));
        return {first->where.begin, end->where.end};
    }
    void set(quillet_value made, place taken, std::size_t after) {
        value = made;
        where = taken;
        state = static_cast<std::uint16_t>(after);
    }
};

} // namespace quillet

#endif
