/*
 * Joining and cutting texts. A text is NUL-terminated and comes from malloc; NULL is no text at
 * all, and joining it to something leaves that as it is. Without memory the result is NULL.
 *
 * The sconcat operations put one blank between the two texts, only when neither is empty. The
 * operations with _free_ in their names release the arguments they name (NULL is ignored) once the
 * result is made.
 */
#ifndef QUILLET_STRINGS_TOOLS_H
#define QUILLET_STRINGS_TOOLS_H

#include "quillet_export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Returns first and second joined as a new text, NULL when both are NULL. */
QUILLET_API char *quillet_concat(const char *first, const char *second);
QUILLET_API char *quillet_concat_free_first(char *first, const char *second);
QUILLET_API char *quillet_concat_free_second(const char *first, char *second);
QUILLET_API char *quillet_concat_free_both(char *first, char *second);

/* Returns first and second joined with a blank as a new text, NULL when both are NULL. */
QUILLET_API char *quillet_sconcat(const char *first, const char *second);
QUILLET_API char *quillet_sconcat_free_first(char *first, const char *second);
QUILLET_API char *quillet_sconcat_free_second(const char *first, char *second);
QUILLET_API char *quillet_sconcat_free_both(char *first, char *second);

/* Returns a new text: string without its first skeep_at_begin and last skeep_at_end characters, ""
   when nothing is left or string is NULL. The numbers of characters, which are bytes, must not be
   negative. */
QUILLET_API char *quillet_extract_string(const char *string, int skeep_at_begin, int skeep_at_end);
QUILLET_API char *quillet_extract_string_free(char *string, int skeep_at_begin, int skeep_at_end);

#ifdef __cplusplus
}
#endif

#endif
