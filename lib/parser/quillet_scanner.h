/*
 * What the parser asks of the scanners of statements, besides tokens. Internal.
 *
 * There are two scanners by the same rules. That of quillet_parse is one for the process: it reads
 * a query part by part, and what a failed query leaves unread belongs to the next one. The other
 * kind scans a statement where it stands, knows nothing of an earlier one, and notes what is wrong.
 */
#ifndef QUILLET_SCANNER_H
#define QUILLET_SCANNER_H

#include <stddef.h>

#include "quillet_blocks.h"
#include "quillet_tree_memory.h"

#ifdef __cplusplus
extern "C" {
#endif

/* What can be wrong with a statement before it is parsed. */
enum quillet_scan_fault {
    QUILLET_SCAN_NO_FAULT,
    QUILLET_SCAN_UNKNOWN_CHARACTER,
    QUILLET_SCAN_UNENDED_STRING,
    QUILLET_SCAN_UNENDED_NAME,
    QUILLET_SCAN_EMPTY_NAME
};

union quillet_value;

/* What a scanner has beside flex's own state. */
struct quillet_scan {
    struct quillet_tree_memory *tree; /* where the texts of tokens go */
    struct quillet_blocks blocks;     /* what flex holds */

    /* Of the one for the process: what it has read on for. */
    const char *read_to; /* where in the buffer text was read to for the token being scanned */
    const char *look;    /* the same for the last token; NULL if nothing was read */

    /* Of one that scans a statement where it stands. Positions are in the text. */
    const char *text;
    size_t size;   /* up to the first NUL */
    int is_cut;    /* whether that stands there */
    int is_at_end; /* whether the parser has been told so */
    int comment_depth;
    int has_open_comment; /* at the end */
    size_t comment_begin; /* of the last one */
    enum quillet_scan_fault fault;
    size_t fault_begin;
    size_t fault_end;
};

/* The scanner of quillet_parse. */

extern struct quillet_scan _quillet_scan;

/* The same as yy_quillet_lex, with the value where one wants it. There is no second argument. */
int _quillet_query_lex(union quillet_value *value, void *scanner);

/* Puts the scanner into the state that it begins in, as after an exception. */
void _quillet_scanner_reset(void);

/* Gives back the scanner's memory if nothing is unread in it. */
void _quillet_scanner_release(void);

/* To be called when a parse has ended at a token. If the scanner has read on only to look after
   that token, and the token was complete in itself, takes back what it has read. */
void _quillet_scanner_forget_look(void);

/* A scanner of a statement where it stands. */

/* Makes the scanner of a statement, after whose end there are two NULs; each token is ended by a
   NUL while it is the last one. Throws without memory. */
void *_quillet_in_place_begin(struct quillet_scan *scan, char *text, size_t size);

/* Gives back what a scanner holds. */
void _quillet_in_place_end(struct quillet_scan *scan);

/* The next token's code; 0 at the end, and bison's own for an error after a fault. Stores the value
   of one with a text. */
int yy_quillet_in_place_lex(union quillet_value *value, void *scanner);

/* Where the last token stands. */
void _quillet_in_place_last_token(void *scanner, size_t *begin, size_t *end);

#ifdef __cplusplus
}
#endif

#endif
