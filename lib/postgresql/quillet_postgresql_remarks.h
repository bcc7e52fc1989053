/*
 * What the builder postgresql remarks. Internal.
 */
#ifndef QUILLET_POSTGRESQL_REMARKS_H
#define QUILLET_POSTGRESQL_REMARKS_H

#include "quillet_remarks.h"

namespace quillet::postgresql {

extern const remark_table remarks;

namespace notices {

inline constexpr const char *no_hint = nullptr;
#define NOTICE(name, severity, id, message, hint)                                                  \
    inline constexpr notice name{severity, 0, id, message, hint};
#include "quillet_postgresql_notices.def"

} // namespace notices

} // namespace quillet::postgresql

#endif
