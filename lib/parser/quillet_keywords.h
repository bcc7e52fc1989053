/*
 * The tokens of words. Internal.
 */
#ifndef QUILLET_KEYWORDS_H
#define QUILLET_KEYWORDS_H

#include <stddef.h>

#include "quillet_bison_parser.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Returns the token of a word, in any letter case: a keyword's, or else that of identifiers. */
int _quillet_word_token(const char *word, size_t length);

/* Whether a word's token has a text: a keyword has none, but a date and time has one. */
static inline int _quillet_has_text(int token) {
    return token == TOKEN_IDENTIFIER || token == TOKEN_CURRENT_DATETIME;
}

#ifdef __cplusplus
}
#endif

#endif
