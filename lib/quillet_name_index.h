/*
 * A fixed list of names, found by hashing. Internal.
 */
#ifndef QUILLET_NAME_INDEX_H
#define QUILLET_NAME_INDEX_H

#include <array>
#include <bit>
#include <cstdint>
#include <string_view>

#include "quillet_letter_case.h"

namespace quillet {

// Finds a name among Count ones without regard to letter case. Built at compile time.
template <std::size_t Count> class name_index {
public:
    constexpr explicit name_index(const std::array<std::string_view, Count> &names)
        : names_(names) {
        buckets_.fill(-1);
        for (std::size_t i = 0; i < Count; ++i) {
            std::size_t bucket = hash(names_[i]);
            while (buckets_[bucket] >= 0)
                bucket = (bucket + 1) % bucket_count;
            buckets_[bucket] = static_cast<std::int16_t>(i);
        }
    }

    // Returns the position of the name in the list, -1 if it is not there.
    constexpr int find(std::string_view name) const {
        for (std::size_t bucket = hash(name); buckets_[bucket] >= 0;
             bucket = (bucket + 1) % bucket_count)
            if (equal_ignoring_case(names_[static_cast<std::size_t>(buckets_[bucket])], name))
                return buckets_[bucket];
        return -1;
    }

    constexpr std::string_view name(int position) const {
        return names_[static_cast<std::size_t>(position)];
    }

private:
    static constexpr std::size_t bucket_count = std::bit_ceil(Count * 4);

    static constexpr std::size_t hash(std::string_view name) {
        std::uint32_t value = 2166136261u;
        for (const char c : name)
            value = (value ^ static_cast<unsigned char>(lower_case(c))) * 16777619u;
        return (value ^ value >> 15) % bucket_count;
    }

    std::array<std::string_view, Count> names_;
    std::array<std::int16_t, bucket_count> buckets_{};
};

} // namespace quillet

#endif
