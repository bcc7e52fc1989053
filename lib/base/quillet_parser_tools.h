/*
 * The input of the scanners. Internal.
 */
#ifndef QUILLET_PARSER_TOOLS_H
#define QUILLET_PARSER_TOOLS_H

#ifdef __cplusplus
extern "C" {
#endif

/* A text being scanned: 0 <= pos <= length. */
typedef struct parse_data {
    char *string; /* a copy of its own */
    int length;
    int pos; /* how much the scanner has got */
} parse_data;

/* Returns a new parse_data with a copy of text. */
parse_data *_quillet_parse_data_create(const char *text);

void _quillet_parse_data_free(parse_data *data);

/* Copies the next bytes of the text, at most max_size, into buffer (no terminator is added) and
   returns their count, 0 at the end of the text. */
int _quillet_input_from_string(parse_data *data, char *buffer, int max_size);

/* To be called when a parse has ended at a token. If the scanner of statements has read on only to
   look behind that token, and the token was complete in itself, takes back what it has read. */
void _quillet_scanner_forget_look(void);

extern parse_data *quillet_query; /* the query being parsed, during quillet_parse alone */
extern int quillet_comment_count; /* how deep the scanner is in block comments */

#ifdef __cplusplus
}
#endif

#endif
