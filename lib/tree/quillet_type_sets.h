/*
 * Sets of SQL types, the categories of quillet_types.def among them. Internal.
 */
#ifndef QUILLET_TYPE_SETS_H
#define QUILLET_TYPE_SETS_H

#include <cstdint>

#include "quillet_types.h"

namespace quillet {

class type_set {
public:
    constexpr explicit type_set(std::uint32_t bits) : bits_(bits) {}

    static constexpr type_set of(int type) { return type_set(std::uint32_t{1} << type); }

    constexpr bool has(int type) const {
        const bool is_known = type >= 0 && type < QUILLET_TYPE_COUNT;
        return bits_ == all || (is_known && ((bits_ >> type) & 1) != 0);
    }

    constexpr type_set operator|(type_set other) const { return type_set(bits_ | other.bits_); }
    constexpr type_set without(type_set other) const { return type_set(bits_ & ~other.bits_); }

    static constexpr std::uint32_t all = UINT32_MAX; // what is no type's code, too

private:
    std::uint32_t bits_;
};

enum type_category : std::uint8_t {
    in_none = 0,
    in_datetime = 1,
    in_interval = 2,
    in_integer = 4,
    in_float = 8
};

constexpr type_set types_of(type_category wanted) {
    type_set found(0);
#define TYPE(name, code, printed, categories, ...)                                                 \
    if ((categories)&wanted)                                                                       \
        found = found | type_set::of(code);
#include "quillet_types.def"
    return found;
}

inline constexpr type_set any_type(type_set::all);
inline constexpr type_set integer_types = types_of(in_integer);
inline constexpr type_set float_types = types_of(in_float);
inline constexpr type_set datetime_types = types_of(in_datetime);
inline constexpr type_set datetime_types_not_interval =
    datetime_types.without(types_of(in_interval));

} // namespace quillet

#endif
