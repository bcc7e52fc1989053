/*
 * The builders of this library. Internal.
 */
#ifndef QUILLET_OWN_BUILDERS_H
#define QUILLET_OWN_BUILDERS_H

#include "quillet_builder.h"
#include "quillet_builder_info.h"
#include "quillet_dialect.h"

namespace quillet {

// A dialect is what a builder renders with in place; the tree view walks on its own.
struct builder_row {
    quillet_builder_info *(*get_info)(void);
    builder *(*create)(void);
    const dialect *own;
};

inline constexpr int builder_count = 4;

// In the order of their ids.
extern const builder_row builder_table[builder_count];

inline bool is_builder(int id) { return id >= 0 && id < builder_count; }

// Returns what the registry says of a builder, or before quillet_init the builder itself.
const quillet_builder_info &builder_info_of(int id);

struct builder_freed {
    void operator()(builder *self) const { quillet_builder_free(self); }
};

// Builders by this library's own constructors, made when first needed and kept. Nobody but the
// library sees them.
class own_builders {
public:
    constexpr own_builders() = default;
    ~own_builders() { release(); }
    own_builders(const own_builders &) = delete;
    own_builders &operator=(const own_builders &) = delete;

    // A builder, and what its slots hold.
    struct own_builder {
        builder *self = nullptr;
        own_slots slots;
    };

    // Returns the builder of a record; NULL if its constructor is a host's. Throws without memory.
    const own_builder *find(const quillet_builder_info &info);

    void release();

private:
    own_builder kept_[builder_count] = {};
};

} // namespace quillet

#endif
