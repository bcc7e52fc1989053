/*
 * A parse under way, as its grammar sees it. Internal.
 */
#ifndef QUILLET_PARSING_H
#define QUILLET_PARSING_H

#include <cstddef>
#include <cstdint>

#include "quillet_blocks.h"
#include "quillet_parser_values.h"
#include "quillet_scanner.h"
#include "quillet_tree_memory.h"
#include "quillet_tree_node.h"
#include "quillet_types.h"

namespace quillet {

// The place of a node from a parse with places.
inline place place_before(const void *node) { return static_cast<const place *>(node)[-1]; }

} // namespace quillet

struct quillet_parsing {
    quillet_scan *scan = nullptr; // of a statement where it stands; NULL: that of quillet_parse
    quillet_blocks stack = {};    // what bison's driver holds
    node_main *root = nullptr;    // which may be complete before what follows it turns out wrong
    bool is_too_deep = false;
    bool has_lost_type = false; // a word before a string that names no type

    // The type of a literal with a type word.
    int literal_type(int named) {
        has_lost_type = has_lost_type || named == QUILLET_TYPE_UNKNOWN;
        return named;
    }

    // A place in the statement.
    quillet::place place_of(const char *begin, const char *end) const {
        return {static_cast<std::uint32_t>(begin - scan->text),
                static_cast<std::uint32_t>(end - scan->text)};
    }
    quillet::place last_token() const { return place_of(scan->token_begin, scan->token_end); }
};

// The parsers that are made of the grammar: of what quillet_parse reads, of a statement where it
// stands, and of one with the places of the nodes. They return 0 for a tree, which is in the
// parsing's root.
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
