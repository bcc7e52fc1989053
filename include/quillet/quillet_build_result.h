/*
 * What a rendering operation returns.
 */
#ifndef QUILLET_BUILD_RESULT_H
#define QUILLET_BUILD_RESULT_H

#include <stdint.h>

#include "quillet_export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The failures of a rendering operation. */
enum {
    QUILLET_BUILD_MISSING_PART = -2, /* a part that the node requires is missing */
    QUILLET_BUILD_CANNOT_RENDER = -3 /* the builder has no rendering for the node */
};

/* What a rendering operation made of a node. */
typedef struct build_result {
    char *query;          /* the text, owned by the record's holder; may be NULL */
    int32_t build_result; /* 0, or the last failure in rendering order, a QUILLET_BUILD_ code */
} build_result;

/* Returns a new record without a text and with the result 0, NULL without memory. The caller owns
   it: it takes or frees the text, and frees the record itself with free. */
QUILLET_API build_result *quillet_build_result_create(void);

#ifdef __cplusplus
}
#endif

#endif
