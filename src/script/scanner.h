// The tokens of a script, which its scanner finds for the splitter.

#ifndef QUILLET_SCRIPT_SCANNER_H
#define QUILLET_SCRIPT_SCANNER_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "source.h"
#include "splitter.h"

namespace script {

// Those that are marks of a statement come first.
enum class token {
    line_comment,
    block_comment,
    command,
    copy_line,
    string,
    escape_string,
    dollar_string,
    prefixed_string,
    question,
    dollar,
    named,
    format,
    pyformat,
    percents,
    end,
    blank,
    word,
    continuation, // of an escape string, in another line
    semicolon,
    open,
    close,
    other
};

// What the scanner works on: a window of the script, and the last token's place in it.
struct scan {
    scan(source &script, backslashes meaning) : from(script), plain_strings(meaning) {}

    // Stores what follows in the script, as a scanner's buffer; 0 at the end.
    std::size_t read_on(char *to, std::size_t room);

    std::string_view text() const { return std::string_view(window).substr(begin, end - begin); }

    // Takes note of a token, as what comes before a quote tells whether a string goes on there.
    void pass(token found);

    // How many of some blanks are before the data of a COPY; 0 if it does not begin in them.
    int size_before_copy_data(std::string_view blanks) const {
        return copies_open > 0 ? static_cast<int>(blanks.find('\n') + 1) : 0;
    }

    // Whether a string here is a part of the escape string in a line before. PostgreSQL's server
    // has escapes in it then; psql has those of the part before after a carriage return alone, as
    // it reads line by line.
    bool continues_escape_string() const {
        return next_part >= part_of_string::after_return &&
               (string_kind == token::escape_string || string_kind == token::continuation);
    }
    bool has_escapes_in_continuation() const {
        return has_escapes && next_part == part_of_string::after_return;
    }

    source &from;
    std::vector<char> part = std::vector<char>(std::size_t{1} << 16); // what is read at a time
    backslashes plain_strings;
    std::string window;
    std::size_t kept = 0;   // the window is needed from here on
    std::size_t handed = 0; // the scanner has got it up to here
    std::size_t begin = 0;  // of the token
    std::size_t end = 0;
    std::size_t moved = 0;       // how far the window has moved on
    std::size_t depth = 0;       // of nested comments
    std::size_t copies_open = 0; // COPY statements whose data begins in the next line

    // Of the last string.
    token string_kind = token::string;
    bool has_escapes = false;
    bool is_plain = true;
    bool has_end = true; // and of all tokens before the end of the script
    std::string tag;     // of a dollar-quoted one
    enum class part_of_string { none, in_next_line, after_return, after_newline };
    part_of_string next_part = part_of_string::none;
};

void *scanner_begin(scan &of);
void scanner_end(void *scanner);
token scanner_next(void *scanner);
void scanner_end_copy_data(void *scanner);

} // namespace script

#endif
