/*
 * The builder postgresql: canonical PostgreSQL text, the default rendering as it is.
 */
#ifndef QUILLET_POSTGRESQL_BUILDER_H
#define QUILLET_POSTGRESQL_BUILDER_H

#include "quillet_builder.h"
#include "quillet_builder_info.h"
#include "quillet_export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The record of the builder postgresql in the registry; use quillet_postgresql_builder_get_info. */
extern QUILLET_API quillet_builder_info quillet_postgresql_builder_info;

/* Returns the builder's record in the registry, a static one. */
QUILLET_API quillet_builder_info *quillet_postgresql_builder_get_info(void);

/* Returns a new builder, which the caller owns and frees with quillet_builder_free; NULL without
   memory. */
QUILLET_API builder *quillet_postgresql_builder_create(void);

#ifdef __cplusplus
}
#endif

#endif
