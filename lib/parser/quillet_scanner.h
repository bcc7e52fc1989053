/*
 * What the parser asks of the scanner of statements, besides tokens. Internal.
 */
#ifndef QUILLET_SCANNER_H
#define QUILLET_SCANNER_H

#include "quillet_blocks.h"

#ifdef __cplusplus
extern "C" {
#endif

/* What the scanner has read on for. */
struct quillet_scanner_reading {
    const char *read_to; /* where in the buffer text was read to for the token being scanned */
    const char *look;    /* the same for the last token; NULL if nothing was read */
};

extern struct quillet_scanner_reading _quillet_scanner_reading;

/* What the scanner and the parser hold. */
extern struct quillet_blocks _quillet_scanner_blocks;
extern struct quillet_blocks _quillet_parser_blocks;

/* Puts the scanner into the state that it begins in, as after an exception. */
void _quillet_scanner_reset(void);

/* Gives back the scanner's memory if nothing is unread in it. */
void _quillet_scanner_release(void);

/* To be called when a parse has ended at a token. If the scanner has read on only to look after
   that token, and the token was complete in itself, takes back what it has read. */
void _quillet_scanner_forget_look(void);

#ifdef __cplusplus
}
#endif

#endif
