/*
 * What goes from the scanners to the parsers besides tokens' codes. Internal.
 */
#ifndef QUILLET_PARSER_VALUES_H
#define QUILLET_PARSER_VALUES_H

#include "quillet_tree_node.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The value of a token with a text, or of a nonterminal: the node that it makes. */
union quillet_value {
    char *v_string;
#define NODE(kind) node_##kind *v_##kind;
#include "quillet_nodes.def"
};

/* The scanner of quillet_parse: the next token's code, 0 at the end, and the value of the last one
   that has a text. */
int yy_quillet_lex(void);
extern union quillet_value yy_quillet_lval;

/* Says on standard output why a parse has failed. */
int yy_quillet_error(const char *message);

#ifdef __cplusplus
}

#include <cstdint>

namespace quillet {

// A part of a statement, by the positions of its bytes; a statement is smaller than 4 GiB.
struct place {
    std::uint32_t begin;
    std::uint32_t end;
};

} // namespace quillet
#endif

#endif
