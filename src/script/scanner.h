// The tokens of a script, which its scanner finds for the splitter.

#ifndef QUILLET_SCRIPT_SCANNER_H
#define QUILLET_SCRIPT_SCANNER_H

#include <cstddef>
#include <string>
#include <string_view>

#include "source.h"
#include "splitter.h"

namespace script {

// Those that are marks of a statement come first.
enum class token {
    line_comment,
    block_comment,
    command,
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
    copy_line,
    word,
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

    source &from;
    backslashes plain_strings;
    std::string window;
    std::size_t kept = 0;   // the window is needed from here on
    std::size_t handed = 0; // the scanner has got it up to here
    std::size_t begin = 0;  // of the token
    std::size_t end = 0;
    std::size_t moved = 0; // how far the window has moved on
    std::size_t depth = 0; // of nested comments
    token string_kind = token::string;
    bool is_plain = true; // of a string
    std::string tag;      // of a dollar-quoted string
};

void *scanner_begin(scan &of);
void scanner_end(void *scanner);
token scanner_next(void *scanner);
void scanner_expect_copy_data(void *scanner, bool is_expected);

} // namespace script

#endif
