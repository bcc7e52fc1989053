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
    ~quillet_parsing() { _quillet_blocks_give_all(&stack); }

    quillet::tree_memory &memory;
    int (*lex)(quillet_value *value, void *scanner);
    void *scanner = nullptr;   // of a statement where it stands; NULL: the one of quillet_parse
    quillet_blocks stack = {}; // what bison holds
    node_main *root = nullptr; // which may be complete before what follows it turns out wrong
    bool is_too_deep = false;

    // The next token's code; stores its value, if it has one, and its place.
    int next(quillet_value *value) const { return lex(value, scanner); }
    int next(quillet_value *value, quillet::place *where) const {
        const int token = next(value);
        std::size_t begin = 0;
        std::size_t end = 0;
        _quillet_in_place_last_token(scanner, &begin, &end);
        *where = {static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(end)};
        return token;
    }

    // Takes bison's word for why the parse has failed.
    void fail(const char *message);
};

// The parsers that bison makes: 0 for a tree, which is in the parsing's root.
int yy_quillet_tree_parse(quillet_parsing *parse);
int yy_quillet_places_parse(quillet_parsing *parse);

#endif
