/*
 * Texts with marks for operands, taken apart at compile time. Internal.
 */
#ifndef QUILLET_TEXT_TEMPLATE_H
#define QUILLET_TEXT_TEMPLATE_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace quillet {

// What a mark in a text stands for, in the order in which operands are rendered.
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
        std::uint8_t begin = 0; // of the literal
        std::uint8_t size = 0;
        operand mark = operand::none; // only after the last literal there may be none
    };

    static constexpr int operands_maximum = 4;

    const char *text = "";
    piece pieces[8] = {};
    std::uint8_t count = 0;
    std::uint8_t operand_count = 0; // how many different ones there are
    operand operands[operands_maximum] = {};
    bool in_order = true; // whether each stands once, in the order in which they are rendered

    constexpr text_template() = default;

    constexpr explicit text_template(std::string_view marked) : text(marked.data()) {
        std::size_t begin = 0;
        while (begin < marked.size()) {
            const std::size_t end = marked.find('$', begin);
            const bool is_last = end == std::string_view::npos;
            const std::size_t size = (is_last ? marked.size() : end) - begin;
            const operand mark = is_last ? operand::none : operand_of(marked[end + 1]);
            pieces[count++] = {static_cast<std::uint8_t>(begin), static_cast<std::uint8_t>(size),
                               mark};
            begin += is_last ? size : size + 2;
            if (mark != operand::none)
                add_operand(mark);
        }
        if (marked.size() > UINT8_MAX ||
            (!in_order && operands[operand_count - 1] > operand::fourth))
            throw "a text is too long, or needs operands rearranged that have no number";
    }

    constexpr std::string_view literal(int index) const {
        return {text + pieces[index].begin, pieces[index].size};
    }

    // Whether the first operand is what is rendered first.
    constexpr bool begins_with_operand() const { return operands[0] == operand::first; }

private:
    static constexpr operand operand_of(char mark) {
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

    // Puts an operand where it belongs among those found before.
    constexpr void add_operand(operand mark) {
        int place = 0;
        while (place < operand_count && operands[place] < mark)
            ++place;
        in_order = in_order && place == operand_count;
        if (place < operand_count && operands[place] == mark)
            return;
        for (int i = operand_count++; i > place; --i)
            operands[i] = operands[i - 1];
        operands[place] = mark;
    }
};

// What stands for a mark among operands that are known, $1 and so on; nothing for one that is not.
inline std::string_view operand_for(operand mark, std::span<const std::string_view> operands) {
    const auto number = static_cast<std::size_t>(mark);
    return number >= 1 && number <= operands.size() ? operands[number - 1] : std::string_view{};
}

// The size of a text with its operands.
std::size_t filled_size(const text_template &text, std::span<const std::string_view> operands);

// Appends a text with its operands.
template <class Output>
void append_filled(Output &out, const text_template &text,
                   std::span<const std::string_view> operands) {
    for (int i = 0; i < text.count; ++i) {
        out.append(text.literal(i));
        out.append(operand_for(text.pieces[i].mark, operands));
    }
}

} // namespace quillet

#endif
