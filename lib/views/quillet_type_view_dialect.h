/*
 * The builder type_view as a dialect. Internal.
 */
#ifndef QUILLET_TYPE_VIEW_DIALECT_H
#define QUILLET_TYPE_VIEW_DIALECT_H

#include "quillet_dialect.h"

namespace quillet {

extern const dialect type_view_dialect;

} // namespace quillet

#endif
