/*
 * The tokens of words. Internal.
 */
#ifndef QUILLET_KEYWORDS_H
#define QUILLET_KEYWORDS_H

#include <stddef.h>

#include "quillet_bison_parser.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Returns the token of a word, in any letter case: a keyword's, or else that of identifiers. */
int _quillet_word_token(const char *word, size_t length);

/* Whether a word's token has a text: a keyword has none, but a date and time has one. */
static inline int _quillet_has_text(int token) {
    return token == TOKEN_IDENTIFIER || token == TOKEN_CURRENT_DATETIME;
}

#ifdef __cplusplus
}

#include <array>
#include <cstdint>
#include <string_view>

namespace quillet {

inline constexpr std::string_view keyword_spellings[] = {
#define KEYWORD(word) #word,
#define DATETIME(word) #word,
#include "quillet_keywords.def"
};

// The lengths of the keywords with a first letter, a bit each.
constexpr std::size_t letter_number(char c) { return static_cast<unsigned char>(c) % 32; }

inline constexpr std::array<std::uint32_t, 32> keyword_lengths = [] {
    std::array<std::uint32_t, 32> bits{};
    for (const std::string_view word : keyword_spellings)
        bits[letter_number(word[0])] |= 1U << word.size();
    return bits;
}();

// Whether a keyword has the first letter and the length of a word: most other words are known by
// that.
inline bool may_be_keyword(const char *word, std::size_t length) {
    return length < 32 && (keyword_lengths[letter_number(*word)] >> length & 1);
}

} // namespace quillet
#endif

#endif
