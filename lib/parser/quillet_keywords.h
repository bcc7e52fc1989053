/*
 * The tokens of words. Internal.
 */
#ifndef QUILLET_KEYWORDS_H
#define QUILLET_KEYWORDS_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Returns the token of a word, in any letter case: a keyword's, or else that of identifiers. */
int _quillet_word_token(const char *word, size_t length);

#ifdef __cplusplus
}
#endif

#endif
