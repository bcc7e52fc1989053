/*
 * The texts of operators, and the lookup from the name that an expression stores. Internal.
 */
#ifndef QUILLET_BUILDER_OPERATORS_H
#define QUILLET_BUILDER_OPERATORS_H

#include <cstdint>
#include <string_view>

#include "quillet_tree_node.h"

namespace quillet {

inline constexpr int no_operator = -1;

// Returns the index of an operator in the list of operators, no_operator for an unknown name.
int operator_index(std::string_view name);

// What a mark in an operator's text stands for.
enum class operand : std::uint8_t { none, first, second, third, truth, escape, pair_1, pair_2 };

// The text of an operator as its literal pieces, each followed by an operand.
struct operator_text {
    struct piece {
        std::string_view literal;
        operand mark = operand::none;
    };

    piece pieces[8] = {};
    int count = 0;

    constexpr explicit operator_text(std::string_view text) {
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
    }

    // Whether the first operand is the first thing rendered.
    constexpr bool begins_with_operand() const { return pieces[0].mark == operand::first; }

private:
    static constexpr operand operand_for(char mark) {
        switch (mark) {
        case '1': return operand::first;
        case '2': return operand::second;
        case '3': return operand::third;
        case 'k': return operand::truth;
        case 'e': return operand::escape;
        case 'o': return operand::pair_1;
        case 'p': return operand::pair_2;
        default: throw "an operator's text has an unknown mark";
        }
    }
};

// How a dialect renders an operator.
struct operator_rule {
    operator_text text;
    bool needs_all; // an absent operand is a failure
    int (*type)(int left, int right);
};

} // namespace quillet

#endif
