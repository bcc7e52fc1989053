#include "string_values.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace script {

namespace {

void append_utf8(std::string &text, std::uint32_t character) {
    const auto push = [&text](std::uint32_t byte) { text.push_back(static_cast<char>(byte)); };
    const auto push_rest = [&](int count) {
        while (count-- > 0)
            push(0x80 | ((character >> (6 * count)) & 0x3f));
    };
    if (character < 0x80) {
        push(character);
    } else if (character < 0x800) {
        push(0xc0 | (character >> 6));
        push_rest(1);
    } else if (character < 0x10000) {
        push(0xe0 | (character >> 12));
        push_rest(2);
    } else {
        push(0xf0 | (character >> 18));
        push_rest(3);
    }
}

int digit_of(char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : 16;
}

// Reads digits of a base from the front of a text; returns how many there were.
std::size_t take_number(std::string_view &text, int base, std::size_t most, std::uint32_t &number) {
    std::size_t count = 0;
    number = 0;
    while (count < most && count < text.size() && digit_of(text[count]) < base)
        number = number * static_cast<std::uint32_t>(base) +
                 static_cast<std::uint32_t>(digit_of(text[count++]));
    text.remove_prefix(count);
    return count;
}

std::uint32_t high_surrogate(std::uint32_t unit) {
    return unit >= 0xd800 && unit < 0xdc00 ? unit : 0;
}

// The character of \uXXXX or \UXXXXXXXX behind its letter; 0 if there is none. Characters beyond
// 0xffff may be written as two halves.
std::uint32_t take_unicode(std::string_view &text, char letter) {
    const std::size_t digits = letter == 'u' ? 4 : 8;
    std::uint32_t character = 0;
    if (take_number(text, 16, digits, character) != digits)
        return 0;
    if (const std::uint32_t high = high_surrogate(character)) {
        if (text.size() < 2 || text[0] != '\\' || (text[1] != 'u' && text[1] != 'U'))
            return 0;
        const std::size_t more = text[1] == 'u' ? 4 : 8;
        text.remove_prefix(2);
        std::uint32_t low = 0;
        if (take_number(text, 16, more, low) != more || low < 0xdc00 || low > 0xdfff)
            return 0;
        return 0x10000 + ((high - 0xd800) << 10) + (low - 0xdc00);
    }
    const bool is_half = character >= 0xdc00 && character <= 0xdfff;
    return is_half || character > 0x10ffff ? 0 : character;
}

// What an escape behind its backslash stands for; false for no character.
bool append_escape(std::string &value, std::string_view &text) {
    constexpr std::string_view letters = "bfnrt";
    constexpr std::string_view characters = "\b\f\n\r\t";
    if (digit_of(text[0]) < 8) {
        std::uint32_t byte = 0;
        take_number(text, 8, 3, byte);
        value.push_back(static_cast<char>(byte));
        return (byte & 0xff) != 0;
    }
    const char letter = text[0];
    text.remove_prefix(1);
    if (letter == 'x' && !text.empty() && digit_of(text[0]) < 16) {
        std::uint32_t byte = 0;
        take_number(text, 16, 2, byte);
        value.push_back(static_cast<char>(byte));
        return byte != 0;
    }
    if (letter == 'u' || letter == 'U') {
        const std::uint32_t character = take_unicode(text, letter);
        append_utf8(value, character);
        return character != 0;
    }
    const std::size_t at = letters.find(letter);
    value.push_back(at == std::string_view::npos ? letter : characters[at]);
    return true;
}

// Goes on behind the quote that a string goes on with in another line.
bool skip_to_next_part(std::string_view &text) {
    for (;;) {
        const std::size_t next = text.find_first_not_of(" \t\n\r\f\v");
        if (next == std::string_view::npos)
            return false;
        if (text[next] == '\'') {
            text.remove_prefix(next + 1);
            return true;
        }
        const std::size_t end_of_comment = text.find_first_of("\n\r", next);
        if (end_of_comment == std::string_view::npos)
            return false;
        text.remove_prefix(end_of_comment);
    }
}

} // namespace

std::optional<std::string> value_of_escape_string(std::string_view text) {
    std::string value;
    text.remove_prefix(2);
    while (!text.empty()) {
        const char c = text[0];
        text.remove_prefix(1);
        if (c == '\\') {
            if (text.empty() || !append_escape(value, text))
                return std::nullopt;
        } else if (c != '\'') {
            value.push_back(c);
        } else if (text.empty()) {
            return value;
        } else if (text[0] == '\'') {
            value.push_back('\'');
            text.remove_prefix(1);
        } else if (!skip_to_next_part(text)) {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

std::optional<std::string_view> value_of_dollar_string(std::string_view text) {
    const std::size_t tag = text.find('$', 1) + 1;
    if (text.size() < 2 * tag || text.substr(text.size() - tag) != text.substr(0, tag))
        return std::nullopt;
    return text.substr(tag, text.size() - 2 * tag);
}

std::size_t find_invalid_utf8(std::string_view text) {
    const auto byte = [text](std::size_t at) {
        return at < text.size() ? static_cast<unsigned char>(text[at]) : 0U;
    };
    std::size_t at = 0;
    while (at < text.size()) {
        if (at + 8 <= text.size()) {
            std::uint64_t eight = 0;
            std::memcpy(&eight, text.data() + at, sizeof eight);
            if ((eight & 0x8080808080808080U) == 0) {
                at += 8;
                continue;
            }
        }
        const unsigned lead = byte(at);
        if (lead < 0x80) {
            ++at;
            continue;
        }
        const std::size_t size = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : 2;
        if (lead < 0xc2 || lead > 0xf4)
            return at;
        const unsigned second = byte(at + 1);
        if ((lead == 0xe0 && second < 0xa0) || (lead == 0xed && second > 0x9f) ||
            (lead == 0xf0 && second < 0x90) || (lead == 0xf4 && second > 0x8f))
            return at;
        for (std::size_t i = 1; i < size; ++i)
            if ((byte(at + i) & 0xc0) != 0x80)
                return at;
        at += size;
    }
    return std::string_view::npos;
}

} // namespace script
