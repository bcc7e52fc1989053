/*
 * A parse under way, as its grammar sees it. Internal.
 */
#ifndef QUILLET_PARSING_H
#define QUILLET_PARSING_H

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "quillet_blocks.h"
#include "quillet_parser_values.h"
#include "quillet_scanner.h"
#include "quillet_tree_memory.h"
#include "quillet_tree_node.h"

namespace quillet {

// The place of a construct whose parts are counted from 1; before them stands the token before the
// construct. An empty part has no place of its own.
inline place place_of_all(const place *parts, int count) {
    place whole{parts[0].end, parts[0].end};
    const place *last = parts + count;
    const auto is_empty = [](const place &part) { return part.begin == part.end; };
    const place *first = std::find_if_not(parts + 1, last + 1, is_empty);
    if (first > last)
        return whole;
    while (is_empty(*last))
        --last;
    return {first->begin, last->end};
}

// The place of a node from a parse with places.
inline place place_before(const void *node) { return static_cast<const place *>(node)[-1]; }

} // namespace quillet

struct quillet_parsing {
    void *scanner = nullptr;   // of a statement where it stands; NULL: the one of quillet_parse
    quillet_blocks stack = {}; // what bison holds
    node_main *root = nullptr; // which may be complete before what follows it turns out wrong
    bool is_too_deep = false;

    // The place of the last token in the statement.
    quillet::place last_token() const {
        std::size_t begin = 0;
        std::size_t end = 0;
        _quillet_in_place_last_token(scanner, &begin, &end);
        return {static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(end)};
    }

    // Takes bison's word for why the parse has failed.
    void fail(const char *message);
};

// The parsers that bison makes: of what quillet_parse reads, of a statement where it stands, and of
// one with the places of the nodes. They return 0 for a tree, which is in the parsing's root.
int yy_quillet_query_parse(quillet_parsing *parse, quillet_tree_memory *memory);
int yy_quillet_statement_parse(quillet_parsing *parse, quillet_tree_memory *memory);
int yy_quillet_places_parse(quillet_parsing *parse, quillet_tree_memory *memory);

namespace quillet {

using parser = int (*)(quillet_parsing *parse, quillet_tree_memory *memory);

// Runs one of them. What bison holds is given back without memory, too.
inline int run(parser made_by_bison, quillet_parsing &parse, quillet_tree_memory *memory) {
    try {
        return made_by_bison(&parse, memory);
    } catch (...) {
        _quillet_blocks_give_all(&parse.stack);
        throw;
    }
}

} // namespace quillet

#endif
