#include "quillet_keywords.h"

#include <array>
#include <cstdint>
#include <iterator>

#include "quillet_name_index.h"

using namespace quillet;

namespace {

constexpr std::uint16_t tokens[] = {
#define KEYWORD(word) TOKEN_##word,
#define DATETIME(word) TOKEN_CURRENT_DATETIME,
#include "quillet_keywords.def"
};

constexpr name_index<std::size(tokens)> keywords(std::to_array(keyword_spellings));

constexpr bool has_every_keyword_of_the_grammar() {
    for (int token = TOKEN_ALL; token <= TOKEN_ZONE; ++token)
        if (tokens[token - TOKEN_ALL] != token)
            return false;
    return true;
}

static_assert(has_every_keyword_of_the_grammar());

} // namespace

int _quillet_word_token(const char *word, size_t length) {
    const int position = may_be_keyword(word, length) ? keywords.find({word, length}) : -1;
    return position < 0 ? int{TOKEN_IDENTIFIER} : tokens[position];
}
