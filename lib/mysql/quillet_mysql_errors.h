/*
 * The reasons of the builder mysql. Internal.
 */
#ifndef QUILLET_MYSQL_ERRORS_H
#define QUILLET_MYSQL_ERRORS_H

#include <cstdint>

#include "quillet_rules.h"

extern "C" {
extern int32_t mysql_error_code; // of the last refusal; nothing resets it
extern const char *const mysql_error_descriptions[40];
}

namespace quillet::mysql {

enum class reason : std::int32_t {
#define ERROR(name, code, text) name = code,
#include "quillet_mysql_errors.def"
};

// Keeps the reason of a refusal.
void keep_reason(std::int32_t code);

// Refuses a construct, which then has no text, unless it says otherwise.
outcome refuse(reason why);

} // namespace quillet::mysql

#endif
