/*
 * A fixed list of names, found by hashing. Internal.
 */
#ifndef QUILLET_NAME_INDEX_H
#define QUILLET_NAME_INDEX_H

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <string_view>

#include "quillet_letter_case.h"

namespace quillet {

// Finds a name among Count ones without regard to letter case. Built at compile time.
template <std::size_t Count> class name_index {
public:
    constexpr explicit name_index(const std::array<std::string_view, Count> &names) {
        buckets_.fill(-1);
        for (std::size_t i = 0; i < Count; ++i) {
            names_[i] = entry(names[i]);
            shortest_ = std::min(shortest_, names[i].size());
            longest_ = std::max(longest_, names[i].size());
            std::size_t bucket = hash(names[i]);
            while (buckets_[bucket] >= 0)
                bucket = (bucket + 1) % bucket_count;
            buckets_[bucket] = static_cast<std::int16_t>(i);
        }
    }

    // Returns the position of the name in the list, -1 if it is not there.
    constexpr int find(std::string_view name) const {
        return position(name, [&](const entry &known) { return known.is(name); });
    }

    // The same for a name that must be written in lower case.
    constexpr int find_in_lower_case(std::string_view name) const {
        return position(name, [&](const entry &known) { return known.lower() == name; });
    }

private:
    // A name in lower case. It needs no relocation, as a pointer would.
    struct entry {
        constexpr entry() = default;

        constexpr explicit entry(std::string_view name)
            : size(static_cast<std::uint8_t>(name.size())) {
            for (std::size_t i = 0; i < name.size(); ++i)
                text[i] = lower_case(name[i]);
        }

        constexpr bool is(std::string_view name) const {
            if (name.size() != size)
                return false;
            for (std::size_t i = 0; i < name.size(); ++i)
                if (name[i] != text[i] && lower_case(name[i]) != text[i])
                    return false;
            return true;
        }

        constexpr std::string_view lower() const { return {text, size}; }

        std::uint8_t size = 0;
        char text[31] = {};
    };

    static constexpr std::size_t bucket_count = std::bit_ceil(Count * 4);

    // Three letters and the length tell nearly all of our names apart.
    static constexpr std::size_t hash(std::string_view name) {
        const auto letter = [&](std::size_t i) { return static_cast<unsigned>(name[i] | 0x20); };
        const std::size_t size = name.size();
        return (size * 9 + letter(0) * 124 + letter(size / 2) * 85 + letter(size - 1) * 88) %
               bucket_count;
    }

    template <class Wanted> constexpr int position(std::string_view name, Wanted is_wanted) const {
        if (name.size() < shortest_ || name.size() > longest_)
            return -1;
        for (std::size_t bucket = hash(name); buckets_[bucket] >= 0;
             bucket = (bucket + 1) % bucket_count)
            if (is_wanted(names_[static_cast<std::size_t>(buckets_[bucket])]))
                return buckets_[bucket];
        return -1;
    }

    std::array<entry, Count> names_;
    std::array<std::int16_t, bucket_count> buckets_{};
    std::size_t shortest_ = SIZE_MAX;
    std::size_t longest_ = 0;
};

} // namespace quillet

#endif
