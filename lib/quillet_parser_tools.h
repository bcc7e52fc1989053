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

/* Called when a parse ends at a token: lets the scanner of statements forget the end of input that
   it has seen behind the token, unless the token could have gone on there. */
void _quillet_scanner_forget_end(void);

extern parse_data *quillet_query; /* the query being parsed, during quillet_parse alone */
extern int quillet_comment_count; /* how deep the scanner is in block comments */

#ifdef __cplusplus
}
#endif

#endif
