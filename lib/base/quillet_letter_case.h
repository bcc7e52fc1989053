/*
 * Comparison without regard to ASCII letter case, whatever the locale. Internal.
 */
#ifndef QUILLET_LETTER_CASE_H
#define QUILLET_LETTER_CASE_H

#include <algorithm>
#include <string_view>

namespace quillet {

constexpr char lower_case(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr bool equal_ignoring_case(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lower_case(x) == lower_case(y); });
}

} // namespace quillet

#endif
