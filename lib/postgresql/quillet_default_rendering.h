/*
 * The default rendering: PostgreSQL text. Internal.
 */
#ifndef QUILLET_DEFAULT_RENDERING_H
#define QUILLET_DEFAULT_RENDERING_H

#include "quillet_rendering.h"

namespace quillet {

extern const dialect postgresql_dialect;

// The renderers, render_<kind>.
#define NODE(kind) outcome render_##kind(rendering &r, node_##kind *node, void *data);
#include "quillet_nodes.def"

} // namespace quillet

#endif
