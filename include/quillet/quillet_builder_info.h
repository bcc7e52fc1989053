/*
 * The record that stands for an output builder in the registry.
 */
#ifndef QUILLET_BUILDER_INFO_H
#define QUILLET_BUILDER_INFO_H

#include <stdint.h>

#include "quillet_export.h"

#ifdef __cplusplus
extern "C" {
#endif

struct builder;

/* A builder in the registry. The record and its texts belong to the library; a host may put a
   constructor of its own there. */
typedef struct quillet_builder_info {
    const char *builder_name;             /* such as "mysql"; quillet_get_builder_id finds it */
    const char *builder_description;      /* in one line */
    int32_t builder_id;                   /* its index, once quillet_init has been called */
    struct builder *(*constructor)(void); /* returns a new builder, which the caller owns and frees
                                             with quillet_builder_free; NULL without memory */
    int32_t (*get_error_code)(void); /* returns the code of the last refusal, 0 for none; NULL if
                                        the builder has no codes of its own */
    const char *(*get_error_description)(void); /* returns its static text; likewise */
} quillet_builder_info;

/* The registry, by id, which quillet_init fills; full of NULL before. The records belong to the
   library. */
extern QUILLET_API quillet_builder_info *quillet_builders[4];

#ifdef __cplusplus
}
#endif

#endif
