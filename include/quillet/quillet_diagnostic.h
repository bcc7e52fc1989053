/*
 * What there is to say about a part of a statement.
 */
#ifndef QUILLET_DIAGNOSTIC_H
#define QUILLET_DIAGNOSTIC_H

#include <stddef.h>
#include <stdint.h>

/* How much it matters, in rising order. Refusals and errors are why there is no text; one inside of
   a cast may be lost to the code, and the text is wrong there. */
enum {
    QUILLET_NOTE, /* the target may answer otherwise, depending on what only the database knows */
    QUILLET_WARNING, /* the target answers otherwise, or rejects the text */
    QUILLET_REFUSAL, /* the builder has no equal for a construct */
    QUILLET_ERROR    /* the statement is wrong, or too large, or there is no such builder */
};

/* A diagnostic and its place. The texts belong to the translation. */
typedef struct quillet_diagnostic {
    int32_t severity;    /* QUILLET_NOTE to QUILLET_ERROR */
    int32_t code;        /* of a refusal: the builder's own; otherwise 0 */
    const char *id;      /* stable, in words: "syntax-error", "refused-initcap" */
    const char *message; /* one sentence */
    const char *hint;    /* what to write instead, or NULL */
    size_t offset;       /* bytes before the construct */
    size_t length;       /* its bytes; 0 at the statement's end */
    int32_t line;        /* of its first character, from 1 */
    int32_t column;      /* likewise; a character is one of UTF-8 */
} quillet_diagnostic;

#endif
