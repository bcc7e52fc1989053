/*
 * Texts with marks for operands, taken apart at compile time. Internal.
 */
#ifndef QUILLET_TEXT_TEMPLATE_H
#define QUILLET_TEXT_TEMPLATE_H

#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "quillet_text_buffer.h"

namespace quillet {

// What a mark in a text stands for.
enum class operand : std::uint8_t {
    none,
    first,
    second,
    third,
    fourth,
    truth,
    escape,
    pair_1,
    pair_2
};

// A text as its literal pieces, each followed by an operand. The marks: $1 to $4 for operands, $k
// for a truth value, $e for an ESCAPE, $o and $p for the pairs of an OVERLAPS.
struct text_template {
    struct piece {
        std::string_view literal;
        operand mark = operand::none;
    };

    piece pieces[8] = {};
    int count = 0;
    bool repeats = false; // whether an operand stands in it twice

    constexpr text_template() = default;

    constexpr explicit text_template(std::string_view text) {
        std::size_t begin = 0;
        for (;;) {
            const std::size_t mark = text.find('$', begin);
            if (mark == std::string_view::npos)
                break;
            pieces[count++] = {text.substr(begin, mark - begin), operand_for(text[mark + 1])};
            begin = mark + 2;
        }
        if (begin < text.size())
            pieces[count++] = {text.substr(begin), operand::none};
        for (int i = 0; i < count; ++i)
            for (int j = 0; j < i; ++j)
                repeats = repeats ||
                          (pieces[i].mark == pieces[j].mark && pieces[i].mark != operand::none);
    }

    // Whether the first operand is the first thing rendered.
    constexpr bool begins_with_operand() const { return pieces[0].mark == operand::first; }

private:
    static constexpr operand operand_for(char mark) {
        switch (mark) {
        case '1': return operand::first;
        case '2': return operand::second;
        case '3': return operand::third;
        case '4': return operand::fourth;
        case 'k': return operand::truth;
        case 'e': return operand::escape;
        case 'o': return operand::pair_1;
        case 'p': return operand::pair_2;
        default: throw "a text has an unknown mark";
        }
    }
};

// The size of a text whose operands, $1 and so on, are known.
std::size_t filled_size(const text_template &text,
                        std::initializer_list<std::string_view> operands);

// Writes a text whose operands, $1 and so on, are known.
void append_filled(text_buffer &out, const text_template &text,
                   std::initializer_list<std::string_view> operands);

} // namespace quillet

#endif
