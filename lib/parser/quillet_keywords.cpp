#include "quillet_keywords.h"

#include <cstdint>
#include <iterator>

#include "quillet_name_index.h"

#include "quillet_bison_parser.h"

using namespace quillet;

namespace {

constexpr std::uint16_t tokens[] = {
#define KEYWORD(word) TOKEN_##word,
#define DATETIME(word) TOKEN_CURRENT_DATETIME,
#include "quillet_keywords.def"
};

constexpr name_index<std::size(tokens)> keywords({
#define KEYWORD(word) #word,
#define DATETIME(word) #word,
#include "quillet_keywords.def"
});

constexpr bool has_every_keyword_of_the_grammar() {
    for (int token = TOKEN_ALL; token <= TOKEN_ZONE; ++token)
        if (tokens[token - TOKEN_ALL] != token)
            return false;
    return true;
}

static_assert(has_every_keyword_of_the_grammar());

} // namespace

int _quillet_word_token(const char *word, size_t length) {
    const int position = keywords.find({word, length});
    return position < 0 ? int{TOKEN_IDENTIFIER} : tokens[position];
}
