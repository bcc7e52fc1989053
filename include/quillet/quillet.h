/*
 * Quillet translates one SQL statement in the PostgreSQL dialect.
 *
 *     const char *statement = "select a || b from t";
 *     quillet_translation *made =
 *         quillet_translate(statement, strlen(statement), quillet_get_builder_id("mysql"), NULL);
 *     if (made->text)
 *         puts(made->text);
 *     for (size_t i = 0; i < made->diagnostic_count; ++i)
 *         fprintf(stderr, "%d: %s\n", made->diagnostics[i].line, made->diagnostics[i].message);
 *     quillet_translation_free(made);
 *
 * There are two ways in. quillet_translate may be called from any thread, prints nothing and gives
 * every reason with its place. quillet_translate_query is the classic call, one at a time in a
 * process: it reports an error of the syntax on standard output, lets what a failed query left
 * unread belong to the next one, and ends the process with status 0 at a character that no token
 * can hold. Both give the same texts and codes.
 */
#ifndef QUILLET_H
#define QUILLET_H

#include <stddef.h>
#include <stdint.h>

#include "quillet_builder_info.h"
#include "quillet_diagnostic.h"
#include "quillet_export.h"
#include "quillet_version.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The codes of a translation; a builder's own failure is one of them too. */
enum {
    QUILLET_SUCCESS = 0,          /* there is a text */
    QUILLET_NO_SUCH_BUILDER = -1, /* no builder has the id */
    QUILLET_INVALID_QUERY = -2, /* a syntax error, or a part missing that the construct requires */
    QUILLET_CAN_NOT_TRANSLATE = -3 /* the builder has no equal for a construct; too deep, too large,
                                      or no memory */
};

/* What became of a statement. */
typedef struct quillet_translation {
    int32_t code;                    /* as quillet_translate_query returns it */
    char *text;                      /* ends with a NUL; NULL without a translation */
    size_t text_length;              /* without that NUL; 0 without a translation */
    size_t diagnostic_count;         /* 0 if there is nothing to say */
    quillet_diagnostic *diagnostics; /* in the order of their places; NULL if there are none */
} quillet_translation;

/* What may be asked of a translation. */
typedef struct quillet_options {
    size_t size;            /* sizeof(quillet_options): later versions have more fields */
    size_t text_limit;      /* bytes a text may take; 0: the library's own limit */
    size_t tree_limit;      /* bytes the tree may take; likewise */
    int32_t least_severity; /* what matters less is not looked for: QUILLET_REFUSAL spares the time
                               for notes and warnings, QUILLET_NOTE (0) asks for all */
} quillet_options;

/*
 * Translates one statement of so many bytes, which need not end with a NUL; NULL is an empty one.
 * options: NULL for all defaults. Fields that a size leaves out are 0, and what a later version has
 * more is not looked at; a limit above the library's own is that one.
 *
 * Returns a new record, which the caller gives to quillet_translation_free, and never NULL: without
 * memory it is one that says so. Its code is that of quillet_translate_query, and so is its text,
 * as if no query had been translated before.
 *
 * May be called from any thread, by several at the same time, without quillet_init, and from a
 * builder's operation. It prints nothing, ends no process and leaves the classic call's state
 * alone: the descriptions of quillet_get_error_description and its kin are not about it.
 */
QUILLET_API quillet_translation *quillet_translate(const char *statement, size_t length,
                                                   int builder_id, const quillet_options *options);

/* Frees a translation with its text and its diagnostics. NULL does nothing. */
QUILLET_API void quillet_translation_free(quillet_translation *translation);

/*
 * Stores one of all diagnostics that the library's builders may give, by an index from 0, and
 * returns 1; returns 0 after the last one. It has no place, and no message (NULL) where that
 * depends on the statement; its texts are static ones. An id may come again with another message.
 * May be called from any thread.
 */
QUILLET_API int32_t quillet_get_known_diagnostic(size_t index, quillet_diagnostic *found);

/* Makes the library ready; to be called before anything but quillet_translate. Calling it again
   does no harm. */
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
 * a large statement until a small one has been translated, and twice the longest token. As much is
 * kept for each of up to eight calls of quillet_translate at the same time. To be called between
 * classic translations; calls of quillet_translate may go on. What a failed query left unread
 * stays.
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
