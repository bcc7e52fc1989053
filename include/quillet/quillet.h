/*
 * Quillet translates one SQL statement in the PostgreSQL dialect.
 *
 *     char *text;
 *     quillet_init();
 *     if (quillet_translate_query("select 1", &text, quillet_get_builder_id("mysql")) == 0) {
 *         puts(text);
 *         free(text);
 *     }
 *     quillet_done();
 *
 * The state of the library is one for the process: one translation at a time. An error of the
 * syntax is also reported on standard output, and a character that no token can hold ends the
 * process with status 0.
 */
#ifndef QUILLET_H
#define QUILLET_H

#include "quillet_builder_info.h"
#include "quillet_export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The codes of a translation; a builder's own failure is one of them too. */
enum {
    QUILLET_SUCCESS = 0,
    QUILLET_NO_SUCH_BUILDER = -1,
    QUILLET_INVALID_QUERY = -2, /* a syntax error, or a part missing that the construct requires */
    QUILLET_CAN_NOT_TRANSLATE = -3 /* the builder has no equal for a construct; too deep, too large,
                                      or no memory */
};

/* Makes the library ready; to be called before anything else here. Calling it again does no harm.
 */
QUILLET_API void quillet_init(void);

/* Ends the use of the library. */
QUILLET_API void quillet_done(void);

/* Returns the number of builders. */
QUILLET_API int quillet_get_builder_count(void);

/* Returns a builder's record, NULL if there is no builder with this id. */
QUILLET_API quillet_builder_info *quillet_get_builder_info(int builder_id);

/* Returns the id of the builder with this name, in any letter case; -1 if there is none. */
QUILLET_API int quillet_get_builder_id(const char *name);

/*
 * Translates one statement. Returns 0 and stores the text in *output: the caller owns it and
 * releases it with free. Returns a negative code otherwise and leaves *output alone.
 */
QUILLET_API int quillet_translate_query(const char *input, char **output, int builder_id);

/*
 * Gives back the memory that translations leave for the next one: up to 4 MiB, up to 150 MiB after
 * a large statement until a small one has been translated, and twice the longest token. To be
 * called between translations. What a failed query left unread stays.
 */
QUILLET_API void quillet_release_memory(void);

/* Returns the description of the last translation's code, a static text; "" for success. */
QUILLET_API const char *quillet_get_error_description(void);

/*
 * The reason for the last refusal of the builder that the last translation asked for: a code, 0 for
 * none, and its text, a static one that the library owns; "" for the code 0, and NULL if the
 * builder has no reasons or does not exist.
 *
 * The pair tells about the last translation only right after quillet_translate_query has returned
 * QUILLET_CAN_NOT_TRANSLATE, and even then a code of 0 means that the builder gave no reason. A
 * builder keeps its reason until its next refusal: a success and a syntax error leave it as it is,
 * and so does a statement too deep or too large for the parser, although its code is
 * QUILLET_CAN_NOT_TRANSLATE as well.
 */
QUILLET_API int quillet_get_detailed_error_code(void);
QUILLET_API const char *quillet_get_detailed_error_description(void);

#ifdef __cplusplus
}
#endif

#endif
