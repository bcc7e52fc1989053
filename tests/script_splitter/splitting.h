// What the tests of splitting share: the pieces of a script as values.

#ifndef QUILLET_TESTS_SPLITTING_H
#define QUILLET_TESTS_SPLITTING_H

#include <algorithm>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "parted_source.h"
#include "splitter.h"

namespace script_tests {

using namespace script;

struct kept_piece {
    piece_kind kind;
    std::string text;
    std::size_t offset;
    std::size_t line;
    std::size_t column;
    std::string verb;
    bool is_ended_by_command;
    std::vector<std::string> marks; // "kind:text", with "+" if plain and "#" behind LIMIT
    bool operator==(const kept_piece &) const = default;
};

inline std::ostream &operator<<(std::ostream &to, const kept_piece &piece) {
    to << static_cast<int>(piece.kind) << " \"" << piece.text << "\" at " << piece.offset << " ("
       << piece.line << ":" << piece.column << ")";
    for (const std::string &mark : piece.marks)
        to << " [" << mark << "]";
    return to;
}

inline std::string name_of(mark_kind kind) {
    constexpr const char *names[] = {"comment",  "string", "escape", "dollar-string",
                                     "prefixed", "?",      "$",      ":name",
                                     "%s",       "%()s",   "%%"};
    return names[static_cast<std::size_t>(kind)];
}

inline kept_piece kept(const piece &given) {
    kept_piece made{given.kind,
                    std::string(given.text),
                    given.offset,
                    given.begin.line,
                    given.begin.column,
                    {},
                    false,
                    {}};
    if (given.kind != piece_kind::statement)
        return made;
    made.verb = given.verb;
    made.is_ended_by_command = given.is_ended_by_command;
    for (const mark &each : given.marks) {
        std::string text = name_of(each.kind) + ":";
        text.append(given.text.substr(each.begin, each.end - each.begin));
        text.append(each.is_plain ? "+" : "").append(each.is_behind_limit ? "#" : "");
        made.marks.push_back(text);
    }
    return made;
}

inline std::vector<kept_piece> split(std::string_view text, std::size_t part,
                                     backslashes meaning = backslashes::are_characters) {
    parted_source from(text, part);
    splitter pieces(from, meaning);
    std::vector<kept_piece> made;
    while (const piece *next = pieces.next())
        made.push_back(kept(*next));
    return made;
}

// Without blanks, each with a letter for its kind: statement "", comment "C ", command "\ ",
// data "D ".
inline std::vector<std::string> shown(const std::vector<kept_piece> &pieces) {
    std::vector<std::string> made;
    for (const kept_piece &each : pieces) {
        switch (each.kind) {
        case piece_kind::blank: break;
        case piece_kind::line_comment:
        case piece_kind::block_comment: made.push_back("C " + each.text); break;
        case piece_kind::command: made.push_back("\\ " + each.text); break;
        case piece_kind::copy_data: made.push_back("D " + each.text); break;
        case piece_kind::statement: made.push_back(each.text); break;
        }
    }
    return made;
}

} // namespace script_tests

#endif
