// Splits a script into its statements and what stands between them, as psql does.
//
// A statement ends at a semicolon outside of parentheses, strings, names and comments, at one of
// psql's commands that send it (\g, \gx ...), or at the end of the script; semicolons in the body
// of a function that is written in SQL (BEGIN ATOMIC ... END) belong to it. No more of a script is
// kept in memory than its largest statement or comment.

#ifndef QUILLET_SCRIPT_SPLITTER_H
#define QUILLET_SCRIPT_SPLITTER_H

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "position.h"
#include "source.h"

namespace script {

enum class piece_kind {
    blank,
    line_comment, // without the end of its line
    block_comment,
    command,   // one of psql's, up to the end of its line
    copy_data, // a line of it, or its end
    statement  // without what ends it
};

// A part of a statement that a reader of it has to know.
enum class mark_kind {
    comment,         // or one of psql's commands, or COPY's data
    string,          // '...'
    escape_string,   // E'...'
    dollar_string,   // $$...$$
    prefixed_string, // B'...', X'...', N'...', U&'...'
    question,        // ?
    dollar,          // $1
    named,           // :name
    format,          // %s
    pyformat,        // %(name)s
    percents         // %%
};

// Its place in the statement.
struct mark {
    mark_kind kind;
    std::size_t begin;
    std::size_t end;
    bool is_plain = false;        // of a string: its text is its value, and has no "%%"
    bool is_behind_limit = false; // LIMIT or OFFSET stands before it
    bool has_end = true;          // of a string
};

struct piece {
    piece_kind kind = piece_kind::blank;
    std::string_view text;
    position begin;
    std::size_t offset = 0; // in the script, without a byte order mark

    // Of a statement.
    std::vector<mark> marks;
    std::string_view verb;            // its first word; "" if it begins with something else
    bool is_ended_by_command = false; // the next piece that is not blank sends it
};

// How strings are read.
enum class backslashes { are_characters, escape };

class splitter {
public:
    explicit splitter(source &from, backslashes plain_strings = backslashes::are_characters);
    ~splitter();
    splitter(const splitter &) = delete;
    splitter &operator=(const splitter &) = delete;

    // The next piece, which lasts until the next call; NULL at the end.
    const piece *next();

    // How the strings without E are read from the next piece on.
    void set_plain_strings(backslashes meaning);

private:
    class worker;
    std::unique_ptr<worker> worker_;
};

} // namespace script

#endif
