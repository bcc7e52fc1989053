/*
 * The record that stands for an output builder in the registry.
 */
#ifndef QUILLET_BUILDER_INFO_H
#define QUILLET_BUILDER_INFO_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

struct builder;

/* The record and its texts belong to the library; a host may put a constructor of its own there. */
typedef struct quillet_builder_info {
    const char *builder_name;
    const char *builder_description; /* in one line */
    int32_t builder_id;              /* its index, once quillet_init has been called */
    struct builder *(*constructor)(void);
    int32_t (*get_error_code)(void);            /* NULL if the builder has no codes of its own */
    const char *(*get_error_description)(void); /* likewise */
} quillet_builder_info;

#ifdef __cplusplus
}
#endif

#endif
