/*
 * The state of the library by name, one for the process. Internal.
 *
 * quillet_globals.cpp lists all of it.
 */
#ifndef QUILLET_GLOBALS_H
#define QUILLET_GLOBALS_H

#include <stdint.h>

#include "quillet_parse_tree.h"

#ifdef __cplusplus
extern "C" {
#endif

extern const char *const error_descriptions[4]; /* by the negated code */
extern int32_t error_code;                      /* of the last translation */
extern int32_t last_builder_id;                 /* that the last translation asked for */

#ifdef __cplusplus
}

struct builder;

namespace quillet {

extern builder *kept_builders[4]; // our own, made when first needed and kept

}
#endif

#endif
