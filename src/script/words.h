// Words, in any letter case.

#ifndef QUILLET_SCRIPT_WORDS_H
#define QUILLET_SCRIPT_WORDS_H

#include <algorithm>
#include <string_view>

namespace script {

inline char in_lower_case(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Whether a text is a word, which is given in lower case.
inline bool is_word(std::string_view text, std::string_view word) {
    return std::equal(text.begin(), text.end(), word.begin(), word.end(),
                      [](char a, char b) { return in_lower_case(a) == b; });
}

inline bool is_blank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

inline std::string_view without_blanks_before(std::string_view text) {
    const auto first = std::find_if_not(text.begin(), text.end(), is_blank);
    return text.substr(static_cast<std::size_t>(first - text.begin()));
}

// The word that a text begins with.
inline std::string_view first_word(std::string_view text) {
    const auto is_of_word = [](char c) {
        c = in_lower_case(c);
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' || c == '$' ||
               (c & 0x80);
    };
    const auto end = std::find_if_not(text.begin(), text.end(), is_of_word);
    return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

} // namespace script

#endif
