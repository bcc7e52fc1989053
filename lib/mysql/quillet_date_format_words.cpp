#include "quillet_date_format_words.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "quillet_date_format_parser.h"

namespace {

struct word {
    constexpr word() = default;

    constexpr word(int word_code, std::string_view spelling)
        : code(static_cast<std::uint16_t>(word_code)),
          length(static_cast<std::uint8_t>(spelling.size())) {
        for (std::size_t i = 0; i < spelling.size(); ++i)
            letters[i] = spelling[i];
    }

    // Whether a text begins with the word.
    bool begins(const char *text) const {
        for (std::size_t i = 0; i < length; ++i)
            if (letters[i] != text[i])
                return false;
        return true;
    }

    std::uint16_t code = 0;
    std::uint8_t length = 0;
    char letters[5] = {};
};

template <class Action> constexpr void for_each_word(Action act) {
    const auto each = [&](int code, std::initializer_list<std::string_view> spellings) {
        for (const std::string_view spelling : spellings)
            act(word(code, spelling));
    };
#define FORMAT(name, code, plain, with_fm, ...) each(code, {__VA_ARGS__});
#define AFFIX(name, code, spelling) each(code, {spelling});
#include "quillet_date_formats.def"
}

constexpr std::size_t word_count = [] {
    std::size_t count = 0;
    for_each_word([&](const word &) { ++count; });
    return count;
}();

// In the order of their first letters; of those with the same one the longest first.
constexpr auto words = [] {
    std::array<word, word_count> list{};
    auto next = list.begin();
    for_each_word([&](const word &added) { *next++ = added; });
    std::sort(list.begin(), list.end(), [](const word &a, const word &b) {
        return a.letters[0] != b.letters[0] ? a.letters[0] < b.letters[0] : a.length > b.length;
    });
    return list;
}();

// Where the words with a first letter begin; at any word for a letter without words.
constexpr auto first_words = [] {
    std::array<std::uint8_t, 256> list{};
    for (std::size_t i = word_count; i-- > 0;)
        list[static_cast<unsigned char>(words[i].letters[0])] = static_cast<std::uint8_t>(i);
    return list;
}();

} // namespace

int _quillet_date_format_word(const char *text, size_t *length) {
    const char letter = *text;
    const word *known = &words[first_words[static_cast<unsigned char>(letter)]];
    for (; known != words.end() && known->letters[0] == letter; ++known)
        if (known->begins(text)) {
            *length = known->length;
            return known->code;
        }
    return 0;
}
