/*
 * The scanners of date-format patterns: the one for the process, and those of a pattern where it
 * stands. Internal.
 */
#ifndef QUILLET_DATE_FORMAT_SCANNER_H
#define QUILLET_DATE_FORMAT_SCANNER_H

#include <stddef.h>

#include "quillet_blocks.h"
#include "quillet_parse_data.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The next token of the pattern, a DATE_FORMAT_ code or another character's; 0 at the end. */
int yy_quillet_date_format_lex(void);

extern parse_data *quillet_date_format; /* the pattern being scanned, during a parse alone */
extern char *quillet_format_string;     /* the text of the last DATE_FORMAT_STRING token */

extern struct quillet_blocks _quillet_date_format_blocks; /* what the scanner holds */

/* Puts the scanner into the state that it begins in, and gives back its memory. */
void _quillet_date_format_scanner_reset(void);

/* The same as yy_quillet_date_format_lex, with the text of a DATE_FORMAT_STRING where one wants it.
   There is no second argument. */
int _quillet_date_format_pattern_lex(char **string, void *scanner);

/* Makes a scanner of a pattern, after whose end there are two NULs; it is written to. What the
   scanner holds are the blocks. Throws without memory. */
void *_quillet_date_format_in_place_begin(struct quillet_blocks *blocks, char *pattern,
                                          size_t length);
int _quillet_date_format_in_place_lex(char **string, void *scanner);

#ifdef __cplusplus
}

#include <memory>
#include <string_view>

struct date_format_node;

namespace quillet {

struct date_format_freed {
    void operator()(date_format_node *list) const;
};

using date_format_list = std::unique_ptr<date_format_node, date_format_freed>;

// The same as quillet_date_format_parse, but throws without memory.
date_format_list parse_date_format(const char *pattern);

// The same with nothing printed, from any thread.
date_format_list parse_date_format_in_place(std::string_view pattern);

} // namespace quillet
#endif

#endif
