/*
 * The input of the scanners. Internal.
 */
#ifndef QUILLET_PARSER_TOOLS_H
#define QUILLET_PARSER_TOOLS_H

#include "quillet_parse_data.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Returns a new parse_data with a copy of text, which the caller owns; throws without memory. */
parse_data *_quillet_parse_data_create(const char *text);

/* Frees a parse_data and its text. NULL is ignored. */
void _quillet_parse_data_free(parse_data *data);

/* Copies the next bytes of the text, at most max_size, into buffer (no terminator is added) and
   returns their count, 0 at the end of the text. */
int _quillet_input_from_string(parse_data *data, char *buffer, int max_size);

#ifdef __cplusplus
}
#endif

#endif
