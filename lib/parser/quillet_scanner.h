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

/* What flex's scanner of one statement holds. */
struct quillet_scan_room {
    size_t used;
    void *room[40];
};

/* What a scanner has beside flex's own state. */
struct quillet_scan {
    struct quillet_tree_memory *tree; /* where the texts of tokens go */

    /* Of the one for the process: what flex holds, and what it has read on for. */
    struct quillet_blocks blocks;
    const char *read_to; /* where in the buffer text was read to for the token being scanned */
    const char *look;    /* the same for the last token; NULL if nothing was read */

    /* Of one that scans a statement where it stands. */
    char *text;
    char *end;               /* at the first NUL */
    char *at;                /* what has not been scanned begins there */
    const char *token_begin; /* the last token */
    const char *token_end;
    int is_cut; /* whether the statement goes on after the NUL at its end */
    int comment_depth;
    int has_open_comment; /* at the end */
    int has_trace;        /* whether that of quillet_parse would print, or leave a comment open */
    const char *comment_begin; /* of the last one */
    enum quillet_scan_fault fault;
    const char *fault_begin;
    const char *fault_end;
    void *rules; /* flex's scanner; NULL while none has been needed */
    struct quillet_scan_room *room;
};

/* The scanner of quillet_parse. */

extern struct quillet_scan _quillet_scan;

/* The same as yy_quillet_lex, with the value where one wants it. There is no second argument. */
int _quillet_query_lex(union quillet_value *value, void *scanner);

/* Whether nothing is unread, and no comment open. */
int _quillet_scanner_is_fresh(void);

/* Puts the scanner into the state that it begins in, as after an exception. */
void _quillet_scanner_reset(void);

/* Gives back the scanner's memory if nothing is unread in it. */
void _quillet_scanner_release(void);

/* To be called when a parse has ended at a token. If the scanner has read on only to look after
   that token, and the token was complete in itself, takes back what it has read. */
void _quillet_scanner_forget_look(void);

/* A scanner of a statement where it stands. */

/* It reads by words of so many bytes, of the size that the tree's memory is taken by. */
#define QUILLET_SCAN_WORD sizeof(void *)

/* Scans the next token by flex's rules, which frequent ones do without
   (quillet_frequent_tokens.h). Returns the token's code, 0 at the end, and bison's own for an error
   after a fault. Stores the value of one with a text. After the statement's end stands a word of
   NULs. */
int _quillet_scan_by_rules(union quillet_value *value, struct quillet_scan *scan);

#ifdef __cplusplus
}
#endif

#endif
