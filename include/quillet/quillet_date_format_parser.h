/*
 * Date-format patterns, such as the second argument of TO_CHAR, taken apart into their words.
 *
 * The scanner of patterns is one for the process: one parse at a time.
 */
#ifndef QUILLET_DATE_FORMAT_PARSER_H
#define QUILLET_DATE_FORMAT_PARSER_H

#include "quillet_export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The words, prefixes and suffixes of a pattern, with their spellings. */
enum {
#define FORMAT(name, code, ...)                                                                    \
    DATE_FORMAT_##name = code, /* MySQL's specifiers and the spellings: <...> */
#define AFFIX(name, code, spelling) DATE_FORMAT_##name = code, /* <spelling> */
#include "quillet_date_formats.def"
};

/* One word of a pattern with what belongs to it. */
typedef struct date_format_node {
    int prefix; /* 0 or a DATE_FORMAT_PREFIX_ code */
    int format; /* a DATE_FORMAT_ code, or the code of another character (negative from 0x80 up); 0
                   after a lone prefix */
    int suffix; /* 0 or a DATE_FORMAT_SUFFIX_ code */
    char *string;                  /* of DATE_FORMAT_STRING, without its quotes; owned */
    struct date_format_node *next; /* owned */
} date_format_node;

/*
 * Takes a pattern apart, of which it makes a copy. The argument must not be NULL. Returns the words
 * as a list in their order, which the caller owns and frees with quillet_date_format_node_free;
 * NULL for a pattern without any, and without memory. Every pattern has a result; a newline outside
 * of quotes is no word and is printed on standard output.
 */
QUILLET_API date_format_node *quillet_date_format_parse(const char *pattern);

/* Returns a new node, every field zero, which the caller owns; NULL without memory. */
QUILLET_API date_format_node *quillet_date_format_node_create(void);

/* Frees a list from the given node on, with its texts; NULL is ignored. */
QUILLET_API void quillet_date_format_node_free(date_format_node *list);

#ifdef __cplusplus
}
#endif

#endif
