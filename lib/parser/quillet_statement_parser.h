/*
 * Parses of a statement on its own: whatever was parsed before, nothing is printed, nothing is left
 * behind, and nothing ends the process. Internal.
 */
#ifndef QUILLET_STATEMENT_PARSER_H
#define QUILLET_STATEMENT_PARSER_H

#include <cstdint>
#include <string_view>

#include "quillet_parsing.h"

namespace quillet {

enum class parse_fault : std::uint8_t {
    none,
    syntax_error,
    unknown_character,
    unended_string,
    unended_name,
    empty_name,
    too_deep
};

// What became of a parse.
struct parse_result {
    node_main *root = nullptr; // NULL with a fault
    parse_fault fault = parse_fault::none;
    place where{};                 // of the fault; of a syntax error the token that does not fit
    bool has_places = false;       // the nodes have places before them
    bool has_lost_type = false;    // a word before a string names no type, and is not in the tree
    bool has_trace = false;        // quillet_parse prints something, or leaves a comment open
    bool has_open_comment = false; // without an end; what stands before it is parsed all the same
    place open_comment{};
};

// Parses a statement. The tree lies in the memory, in which one must be under way. Throws if there
// is no memory or the tree becomes too large.
parse_result parse_statement(std::string_view statement, tree_memory &memory);

// The same with the places of the nodes.
parse_result parse_statement_with_places(std::string_view statement, tree_memory &memory);

} // namespace quillet

#endif
