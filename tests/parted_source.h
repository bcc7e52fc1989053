// A script that comes in parts.

#ifndef QUILLET_TESTS_PARTED_SOURCE_H
#define QUILLET_TESTS_PARTED_SOURCE_H

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "source.h"

// Hands a text out in parts of some size.
class parted_source final : public script::source {
public:
    parted_source(std::string_view text, std::size_t size) : left_(text), size_(size) {}

    std::size_t read(char *to, std::size_t room) override {
        const std::size_t count = left_.copy(to, std::min(room, size_));
        left_.remove_prefix(count);
        return count;
    }

private:
    std::string_view left_;
    std::size_t size_;
};

#endif
