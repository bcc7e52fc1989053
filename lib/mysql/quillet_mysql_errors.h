/*
 * The reasons of the builder mysql. Internal.
 */
#ifndef QUILLET_MYSQL_ERRORS_H
#define QUILLET_MYSQL_ERRORS_H

#include <cstdint>

#include "quillet_findings.h"

extern "C" {
extern int32_t mysql_error_code; // of the last refusal; nothing resets it
extern const char *const mysql_error_descriptions[40];
}

namespace quillet::mysql {

enum class reason : std::int32_t {
#define ERROR(name, code, text, hint) name = code,
#include "quillet_mysql_errors.def"
};

// The reason of the last refusal: of the classic calls, or of the translation under way in this
// thread.
std::int32_t &kept_reason();

// Keeps the reason of a refusal.
void keep_reason(std::int32_t reason);

// What is said of a construct that is refused.
notice notice_of(std::int32_t reason);

} // namespace quillet::mysql

#endif
