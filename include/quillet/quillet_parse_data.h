/*
 * A text being scanned.
 */
#ifndef QUILLET_PARSE_DATA_H
#define QUILLET_PARSE_DATA_H

#ifdef __cplusplus
extern "C" {
#endif

/* What the scanner reads, and how far it is. */
typedef struct parse_data {
    char *string; /* a copy of the text, owned */
    int length;   /* of the text in bytes, without the NUL */
    int pos;      /* how much the scanner has got: 0 <= pos <= length */
} parse_data;

#ifdef __cplusplus
}
#endif

#endif
