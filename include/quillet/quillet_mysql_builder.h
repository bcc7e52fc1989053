/*
 * The builder mysql: MySQL 4.1 text.
 */
#ifndef QUILLET_MYSQL_BUILDER_H
#define QUILLET_MYSQL_BUILDER_H

#include "quillet_builder.h"
#include "quillet_builder_info.h"
#include "quillet_export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The record of the builder mysql in the registry; use quillet_mysql_builder_get_info. */
extern QUILLET_API quillet_builder_info quillet_mysql_builder_info;

/* Returns the builder's record in the registry, a static one. */
QUILLET_API quillet_builder_info *quillet_mysql_builder_get_info(void);

/* Returns a new builder, which the caller owns and frees with quillet_builder_free; NULL without
   memory. */
QUILLET_API builder *quillet_mysql_builder_create(void);

/* Returns the code of the last refusal, 0 if there was none in this process. */
QUILLET_API int32_t quillet_mysql_get_error_code(void);

/* Returns the text of that code, a static one; "" for 0. */
QUILLET_API const char *quillet_mysql_get_error_description(void);

/*
 * The operations of the slots that the builder replaces, and of to_date, to_timestamp and
 * to_number, which refuse and are not installed. A host may put them into slots, or call them;
 * neither builder nor node may be NULL, and data is passed on. Each returns a new record, which the
 * caller owns; NULL without memory. A refusal has the result QUILLET_BUILD_CANNOT_RENDER, and
 * quillet_mysql_get_error_code tells its reason.
 */
#define KIND(kind, ...)                                                                            \
    /* Renders a node of the kind <kind> as MySQL text, which the caller owns. */                  \
    QUILLET_API build_result *quillet_##kind##_mysql_builder(builder *self, node_##kind *node,     \
                                                             void *data);
#define OPERATOR(name, ...)                                                                        \
    /* Renders the operator <name> as MySQL text, which the caller owns. */                        \
    QUILLET_API build_result *quillet_operator_##name##_mysql_builder(                             \
        builder *self, node_expression *node, void *data);
#define FUNCTION(name, ...)                                                                        \
    /* Renders the function <name> as MySQL text, which the caller owns. */                        \
    QUILLET_API build_result *quillet_function_##name##_mysql_builder(                             \
        builder *self, node_function_call *node, void *data);
#include "quillet_mysql_slots.def"

#ifdef __cplusplus
}
#endif

#endif
