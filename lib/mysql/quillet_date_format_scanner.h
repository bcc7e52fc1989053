/*
 * The scanner of date-format patterns. Internal.
 */
#ifndef QUILLET_DATE_FORMAT_SCANNER_H
#define QUILLET_DATE_FORMAT_SCANNER_H

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

#ifdef __cplusplus
}

#include <memory>

struct date_format_node;

namespace quillet {

struct date_format_freed {
    void operator()(date_format_node *list) const;
};

using date_format_list = std::unique_ptr<date_format_node, date_format_freed>;

// The same as quillet_date_format_parse, but throws without memory.
date_format_list parse_date_format(const char *pattern);

} // namespace quillet
#endif

#endif
