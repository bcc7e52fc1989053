/*
 * What the builder mysql remarks. Internal.
 */
#ifndef QUILLET_MYSQL_REMARKS_H
#define QUILLET_MYSQL_REMARKS_H

#include "quillet_remarks.h"

namespace quillet::mysql {

extern const remark_table remarks;

// How the operators' texts hold their operands.
extern const operator_forms forms;

namespace notices {

inline constexpr const char *no_hint = nullptr;
#define NOTICE(name, severity, id, message, hint)                                                  \
    inline constexpr notice name{severity, 0, id, message, hint};
#include "quillet_mysql_notices.def"

} // namespace notices

} // namespace quillet::mysql

#endif
