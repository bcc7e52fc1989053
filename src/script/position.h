// Where something stands in a script.

#ifndef QUILLET_SCRIPT_POSITION_H
#define QUILLET_SCRIPT_POSITION_H

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace script {

// Whether a byte begins a character of UTF-8.
inline bool begins_character(char byte) {
    return (static_cast<unsigned char>(byte) & 0xc0) != 0x80;
}

inline std::size_t count_characters(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), begins_character));
}

// Line and column from 1; a column is one character of UTF-8.
struct position {
    std::size_t line = 1;
    std::size_t column = 1;

    // The position after a text that stands here.
    position after(std::string_view text) const {
        const std::size_t last = text.rfind('\n');
        if (last == std::string_view::npos)
            return {line, column + count_characters(text)};
        const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
        return {line + lines, 1 + count_characters(text.substr(last + 1))};
    }
};

} // namespace script

#endif
