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

#include <atomic>

namespace quillet {

class own_builders;
struct translation_context;

extern own_builders classic_builders; // of the classic calls

// Of calls of quillet_translate that have ended.
inline constexpr int idle_contexts_maximum = 8;
extern std::atomic<translation_context *> idle_contexts[idle_contexts_maximum];

} // namespace quillet
#endif

#endif
