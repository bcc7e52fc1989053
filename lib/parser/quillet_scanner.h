/*
 * What the parser asks of the scanner of statements, besides tokens. Internal.
 */
#ifndef QUILLET_SCANNER_H
#define QUILLET_SCANNER_H

#ifdef __cplusplus
extern "C" {
#endif

/* To be called when a parse has ended at a token. If the scanner has read on only to look behind
   that token, and the token was complete in itself, takes back what it has read. */
void _quillet_scanner_forget_look(void);

#ifdef __cplusplus
}
#endif

#endif
