/*
 * The scanner of date-format patterns. Internal.
 */
#ifndef QUILLET_DATE_FORMAT_SCANNER_H
#define QUILLET_DATE_FORMAT_SCANNER_H

#include "quillet_parse_data.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The next token of the pattern, a DATE_FORMAT_ code or another character's; 0 at the end. */
int yy_quillet_date_format_lex(void);

extern parse_data *quillet_date_format; /* the pattern being scanned, during a parse alone */
extern char *quillet_format_string;     /* the text of the last DATE_FORMAT_STRING token */

#ifdef __cplusplus
}
#endif

#endif
