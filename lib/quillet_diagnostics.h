/*
 * The diagnostics of a translation: what was found, with its place in the statement. Internal.
 */
#ifndef QUILLET_DIAGNOSTICS_H
#define QUILLET_DIAGNOSTICS_H

#include <list>
#include <string>
#include <string_view>
#include <vector>

#include "quillet_findings.h"
#include "quillet_parser_values.h"
#include "quillet_statement_parser.h"
#include "quillet_tree_node.h"

namespace quillet {

class diagnostic_list {
public:
    // Adds what there is to say about a part of the statement.
    void add(const notice &what, place where);

    // The same with a message of its own.
    void add(const notice &what, place where, std::string message);

    // Adds what was found in a statement's tree, and unless it is NULL what is to be said of each
    // word before a string that names no type. The places are those of the nodes: if the tree has
    // none, the statement is parsed once more for them.
    void add(findings &found, std::string_view statement, const parse_result &parsed,
             const notice *lost_type);

    // Whether something in it explains why there is no text.
    bool explains_failure() const;

    // Puts all that matter in the order of their places, and counts lines and columns.
    void finish(std::string_view statement, std::int32_t least_severity);

    std::vector<quillet_diagnostic> &all() { return list_; }

private:
    template <class PlaceOf>
    void add(findings &found, std::string_view statement, PlaceOf place_of);
    void add_lost_types(const notice &what, const node_main *tree_with_places);

    std::vector<quillet_diagnostic> list_;
    std::list<std::string> texts_;
    std::list<std::string> texts_of_findings_;
};

// Characters of UTF-8.

inline bool begins_character(char c) { return (static_cast<unsigned char>(c) & 0xc0) != 0x80; }

// The character that begins at a position; a byte alone if none does.
std::string_view character_at(std::string_view text, std::size_t position);

// The place of a whole statement.
inline place whole(std::string_view statement) {
    return {0, static_cast<std::uint32_t>(statement.size())};
}

} // namespace quillet

#endif
