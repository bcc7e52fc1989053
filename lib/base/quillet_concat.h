/*
 * What joins texts. Internal; the operations of quillet_strings_tools.h are its face.
 */
#ifndef QUILLET_CONCAT_H
#define QUILLET_CONCAT_H

#ifdef __cplusplus
extern "C" {
#endif

/* Joins two texts, with a blank between two non-empty ones when space is not 0. Returns a new text
   that the caller owns, or NULL when both are NULL. */
char *_quillet_concat(const char *first, const char *second, int space);

#ifdef __cplusplus
}
#endif

#endif
