/*
 * The builder mysql: MySQL 4.1 text.
 */
#ifndef QUILLET_MYSQL_BUILDER_H
#define QUILLET_MYSQL_BUILDER_H

#include "quillet.h"
#include "quillet_builder.h"

#ifdef __cplusplus
extern "C" {
#endif

extern quillet_builder_info quillet_mysql_builder_info;

/* Returns the builder's record in the registry, a static one. */
QUILLET_API quillet_builder_info *quillet_mysql_builder_get_info(void);

/* Returns a new builder, which the caller owns. */
QUILLET_API builder *quillet_mysql_builder_create(void);

/* Returns the code of the last refusal, 0 if there was none in this process. */
QUILLET_API int32_t quillet_mysql_get_error_code(void);

/* Returns the text of that code, a static one; "" for 0. */
QUILLET_API const char *quillet_mysql_get_error_description(void);

#ifdef __cplusplus
}
#endif

#endif
