/*
 * The tokens that most of a statement consists of, scanned where they stand. Internal.
 *
 * They are found without flex's tables, of which a step waits for the last one: that is most of
 * what scanning takes. What begins otherwise is left to the rules.
 */
#ifndef QUILLET_FREQUENT_TOKENS_H
#define QUILLET_FREQUENT_TOKENS_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "quillet_keywords.h"
#include "quillet_parser_values.h"
#include "quillet_scanner.h"
#include "quillet_tree_memory.h"

namespace quillet {

namespace frequent {

enum class kind : std::uint8_t {
    other,
    blank,
    quote,
    double_quote,
    dot,
    single, // a token that no other one begins with
    sign,   // a token that others begin with
    colon,
    letter, // which begins a word; what follows goes on with one
    digit,
    dollar
};

inline constexpr std::array<kind, 256> kinds = [] {
    std::array<kind, 256> table{};
    const auto set = [&](std::string_view characters, kind of_all) {
        for (const char c : characters)
            table[static_cast<unsigned char>(c)] = of_all;
    };
    set(" \t\r\n", kind::blank);
    set("'", kind::quote);
    set("\"", kind::double_quote);
    set(".", kind::dot);
    set("#@&*(),^%+=;", kind::single);
    set("-/<>|!~", kind::sign);
    set(":", kind::colon);
    set("abcdefghijklmnopqrstuvwxyz_ABCDEFGHIJKLMNOPQRSTUVWXYZ", kind::letter);
    set("0123456789", kind::digit);
    set("$", kind::dollar);
    return table;
}();

// The signs of two characters with which no longer one begins, but for "||/".
struct sign_pair {
    char text[3];
    int code;
};
inline constexpr sign_pair sign_pairs[] = {{"<=", TOKEN_LESS_EQUAL},
                                           {">=", TOKEN_GREATER_EQUAL},
                                           {"<>", TOKEN_NOT_EQUAL},
                                           {"!=", TOKEN_NOT_EQUAL},
                                           {"||", TOKEN_CONCAT_OP}};

inline kind kind_of(char c) { return kinds[static_cast<unsigned char>(c)]; }

inline bool is_of_word(char c) { return kind_of(c) >= kind::letter; }

// Returns the first character that does not belong to what a text begins with.
inline char *end_of(char *text, auto belongs) {
    while (belongs(*text))
        ++text;
    return text;
}

// A token's text is copied by words, as both ends have room for the last one. Most have one or two.
inline char *copy(quillet_tree_memory *tree, const char *begin, std::size_t size) {
    auto *text = static_cast<char *>(_quillet_tree_take(tree, size + 1));
    for (std::size_t i = 0; i < size; i += QUILLET_SCAN_WORD)
        std::memcpy(text + i, begin + i, QUILLET_SCAN_WORD);
    text[size] = '\0';
    return text;
}

// A token that is being scanned.
struct lexeme {
    quillet_value *value;
    quillet_scan *scan;
    char *begin;

    int ends(char *end, int code) const {
        scan->token_begin = begin;
        scan->token_end = scan->at = end;
        return code;
    }

    int ends_with_text(char *end, int code) const {
        value->v_string = copy(scan->tree, begin, static_cast<std::size_t>(end - begin));
        return ends(end, code);
    }

    int by_rules() const {
        scan->at = begin;
        return _quillet_scan_by_rules(value, scan);
    }

    int word() const {
        char *end = end_of(begin + 1, is_of_word);
        const auto size = static_cast<std::size_t>(end - begin);
        if (!may_be_keyword(begin, size))
            return ends_with_text(end, TOKEN_IDENTIFIER);
        const int code = _quillet_word_token(begin, size);
        return _quillet_has_text(code) ? ends_with_text(end, code) : ends(end, code);
    }

    int number() const {
        char *end = end_of(begin + 1, [](char c) { return kind_of(c) == kind::digit; });
        const bool may_go_on = *end == '.' || *end == 'e' || *end == 'E';
        return may_go_on ? by_rules() : ends_with_text(end, TOKEN_INTEGER);
    }

    int sign() const {
        const kind following = kind_of(begin[1]);
        if (following == kind::blank || following >= kind::letter)
            return ends(begin + 1, *begin);
        for (const sign_pair &pair : sign_pairs)
            if (pair.text[0] == begin[0] && pair.text[1] == begin[1] && begin[2] != '/')
                return ends(begin + 2, pair.code);
        return by_rules();
    }

    // A text in quotes of at least so many characters.
    int quoted(int code, std::ptrdiff_t least) const {
        const char quote = *begin;
        char *end = end_of(begin + 1, [quote](char c) { return c != quote && c != '\0'; });
        const bool is_escaped = quote == '\'' && end[-1] == '\\';
        if (*end == '\0' || is_escaped || end - begin <= least)
            return by_rules();
        return ends_with_text(end + 1, code);
    }
};

} // namespace frequent

// Scans the next token of a statement where it stands. Returns its code, 0 at the end, and bison's
// own for an error after a fault. Stores the value of one with a text.
inline int scan_in_place(quillet_value *value, quillet_scan *scan) {
    using namespace frequent;
    char *begin = end_of(scan->at, [](char c) { return kind_of(c) == kind::blank; });
    const lexeme next{value, scan, begin};
    switch (kind_of(*begin)) {
    case kind::letter: return next.word();
    case kind::digit: return next.number();
    case kind::dot:
        if (kind_of(begin[1]) == kind::digit)
            break;
        [[fallthrough]];
    case kind::single: return next.ends(begin + 1, *begin);
    case kind::sign: return next.sign();
    case kind::colon:
        if (begin[1] == ':')
            return next.ends(begin + 2, TOKEN_TYPECAST_OP);
        break;
    case kind::quote: return next.quoted(TOKEN_STRING, 0);
    case kind::double_quote: return next.quoted(TOKEN_IDENTIFIER, 1);
    case kind::dollar:
    case kind::blank:
    case kind::other: break;
    }
    const bool is_end = begin == scan->end && !scan->is_cut;
    return is_end ? next.ends(begin, TOKEN_YYEOF) : next.by_rules();
}

} // namespace quillet

#endif
