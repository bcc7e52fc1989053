#include "quillet_keywords.h"

#include <array>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "quillet_name_index.h"

using namespace quillet;

namespace {

constexpr std::uint16_t tokens[] = {
#define KEYWORD(word) TOKEN_##word,
#define DATETIME(word) TOKEN_CURRENT_DATETIME,
#include "quillet_keywords.def"
};

constexpr std::array<std::string_view, std::size(tokens)> words = {
#define KEYWORD(word) #word,
#define DATETIME(word) #word,
#include "quillet_keywords.def"
};

constexpr name_index<std::size(words)> keywords(words);

// The lengths of the keywords with a first letter, a bit each: most other words are known by
// theirs.
constexpr std::size_t letter(char c) { return static_cast<unsigned char>(c) % 32; }

constexpr std::array<std::uint32_t, 32> lengths = [] {
    std::array<std::uint32_t, 32> bits{};
    for (const std::string_view word : words)
        bits[letter(word[0])] |= 1U << word.size();
    return bits;
}();

constexpr bool has_every_keyword_of_the_grammar() {
    for (int token = TOKEN_ALL; token <= TOKEN_ZONE; ++token)
        if (tokens[token - TOKEN_ALL] != token)
            return false;
    return true;
}

static_assert(has_every_keyword_of_the_grammar());

} // namespace

int _quillet_word_token(const char *word, size_t length) {
    const bool has_length_of_one = length < 32 && (lengths[letter(*word)] >> length & 1);
    const int position = has_length_of_one ? keywords.find({word, length}) : -1;
    return position < 0 ? int{TOKEN_IDENTIFIER} : tokens[position];
}
