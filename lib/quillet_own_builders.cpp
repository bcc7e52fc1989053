#include "quillet_own_builders.h"

#include <iterator>
#include <new>
#include <utility>

#include "quillet_default_rendering.h"
#include "quillet_mysql_builder.h"
#include "quillet_mysql_rendering.h"
#include "quillet_postgresql_builder.h"
#include "quillet_tree_view_builder.h"
#include "quillet_type_view_builder.h"
#include "quillet_type_view_dialect.h"

namespace quillet {

constinit const builder_row builder_table[builder_count] = {
    {quillet_postgresql_builder_get_info, quillet_postgresql_builder_create, &postgresql_dialect},
    {quillet_mysql_builder_get_info, quillet_mysql_builder_create, &mysql_dialect},
    {quillet_tree_view_builder_get_info, quillet_tree_view_builder_create, nullptr},
    {quillet_type_view_builder_get_info, quillet_type_view_builder_create, &type_view_dialect},
};

static_assert(builder_count == std::size(quillet_builders));

// The dialects of that table, the default one first.
constinit const dialect *const dialects[dialect_count] = {&postgresql_dialect, &mysql_dialect,
                                                          &type_view_dialect};

const quillet_builder_info &builder_info_of(int id) {
    const quillet_builder_info *registered = quillet_builders[id];
    return registered ? *registered : *builder_table[id].get_info();
}

const own_builders::own_builder *own_builders::find(const quillet_builder_info &info) {
    for (int id = 0; id < builder_count; ++id)
        if (builder_table[id].create == info.constructor) {
            own_builder &kept = kept_[id];
            if (!kept.self) {
                kept.self = info.constructor();
                if (!kept.self)
                    throw std::bad_alloc();
                kept.slots = own_slots(*kept.self);
            }
            return &kept;
        }
    return nullptr;
}

void own_builders::release() {
    for (own_builder &kept : kept_)
        if (kept.self)
            quillet_builder_free(std::exchange(kept.self, nullptr));
}

} // namespace quillet
