/*
 * Patterns of TO_CHAR, taken apart into their words. Internal.
 */
#ifndef QUILLET_DATE_FORMAT_PARSER_H
#define QUILLET_DATE_FORMAT_PARSER_H

#include "quillet_parser_tools.h"

#ifdef __cplusplus
extern "C" {
#endif

enum {
#define FORMAT(name, code, ...) DATE_FORMAT_##name = code,
#define AFFIX(name, code, spelling) DATE_FORMAT_##name = code,
#include "quillet_date_formats.def"
};

/* One word of a pattern with what belongs to it. */
typedef struct date_format_node {
    int prefix;   /* 0 or a DATE_FORMAT_PREFIX_ code */
    int format;   /* a DATE_FORMAT_ code, or the code of another character; 0 after a lone prefix */
    int suffix;   /* 0 or a DATE_FORMAT_SUFFIX_ code */
    char *string; /* of DATE_FORMAT_STRING, without its quotes; owned */
    struct date_format_node *next; /* owned */
} date_format_node;

/* Returns the words of a pattern as a list that the caller owns, NULL for a pattern without any. */
date_format_node *quillet_date_format_parse(const char *pattern);

/* Returns a new node, every field zero. */
date_format_node *quillet_date_format_node_create(void);

/* Frees a list from the given node on; NULL is ignored. */
void quillet_date_format_node_free(date_format_node *list);

/* The next token of the pattern, 0 at its end. */
int yy_quillet_date_format_lex(void);

extern parse_data *quillet_date_format; /* the pattern being scanned, during a parse alone */
extern char *quillet_format_string;     /* the text of the last DATE_FORMAT_STRING token */

#ifdef __cplusplus
}
#endif

#endif
