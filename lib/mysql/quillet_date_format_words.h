/*
 * The spellings of date-format patterns' words. Internal.
 */
#ifndef QUILLET_DATE_FORMAT_WORDS_H
#define QUILLET_DATE_FORMAT_WORDS_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Finds the longest word, prefix or suffix that a text begins with. Returns its code and puts its
   length into length; without any returns 0 and leaves length alone. */
int _quillet_date_format_word(const char *text, size_t *length);

#ifdef __cplusplus
}
#endif

#endif
