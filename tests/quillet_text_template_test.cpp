// Texts with marks: their pieces, and what they become with operands.

#include "quillet_text_template.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "quillet_text_buffer.h"

namespace {

using quillet::operand;
using quillet::text_template;

struct piece {
    std::string literal;
    operand mark;
    bool operator==(const piece &) const = default;
};

struct template_case {
    const char *text;
    std::vector<piece> pieces;
    std::vector<operand> operands; // the different ones, in the order in which they are rendered
    bool in_order;
};

const template_case cases[] = {
    {"", {}, {}, true},
    {"NULL", {{"NULL", operand::none}}, {}, true},
    {"$1", {{"", operand::first}}, {operand::first}, true},
    {"$1 + $2",
     {{"", operand::first}, {" + ", operand::second}},
     {operand::first, operand::second},
     true},
    {"NOT $1!", {{"NOT ", operand::first}, {"!", operand::none}}, {operand::first}, true},
    {"$1$2",
     {{"", operand::first}, {"", operand::second}},
     {operand::first, operand::second},
     true},
    {"$1 IS $k",
     {{"", operand::first}, {" IS ", operand::truth}},
     {operand::first, operand::truth},
     true},
    {"$1 LIKE $2$e",
     {{"", operand::first}, {" LIKE ", operand::second}, {"", operand::escape}},
     {operand::first, operand::second, operand::escape},
     true},
    {"($o) OVERLAPS ($p)",
     {{"(", operand::pair_1}, {") OVERLAPS (", operand::pair_2}, {")", operand::none}},
     {operand::pair_1, operand::pair_2},
     true},
    {"$2, $1",
     {{"", operand::second}, {", ", operand::first}},
     {operand::first, operand::second},
     false},
    {"$1 $1", {{"", operand::first}, {" ", operand::first}}, {operand::first}, false},
    {"$4$2$3$1$2",
     {{"", operand::fourth},
      {"", operand::second},
      {"", operand::third},
      {"", operand::first},
      {"", operand::second}},
     {operand::first, operand::second, operand::third, operand::fourth},
     false},
    {"$1, $3",
     {{"", operand::first}, {", ", operand::third}},
     {operand::first, operand::third},
     true},
};

TEST(TextTemplate, IsTakenApart) {
    for (const template_case &tested : cases) {
        const text_template text{std::string_view(tested.text)};
        std::vector<piece> pieces;
        for (int i = 0; i < text.count; ++i)
            pieces.push_back({std::string(text.literal(i)), text.pieces[i].mark});
        EXPECT_EQ(pieces, tested.pieces) << tested.text;
        EXPECT_EQ(std::vector<operand>(text.operands, text.operands + text.operand_count),
                  tested.operands)
            << tested.text;
        EXPECT_EQ(text.in_order, tested.in_order) << tested.text;
        EXPECT_EQ(text.begins_with_operand(),
                  !tested.operands.empty() && tested.operands.front() == operand::first)
            << tested.text;
    }
}

TEST(TextTemplate, RefusesWhatCannotBeWritten) {
    EXPECT_ANY_THROW(text_template("$x"));
    EXPECT_ANY_THROW(text_template("$e $1")); // only numbers may be rearranged
    EXPECT_ANY_THROW(text_template("$k IS $k"));
    EXPECT_ANY_THROW(text_template(std::string_view(std::string(256, 'a'))));
    EXPECT_NO_THROW(text_template(std::string_view(std::string(255, 'a'))));
}

TEST(TextTemplate, IsFilled) {
    const std::string_view operands[] = {"one", "", "three"};
    struct filled_case {
        const char *text;
        const char *filled;
    };
    for (const auto &[text, filled] : {filled_case{"($3, $1)", "(three, one)"},
                                       {"$1$1", "oneone"},
                                       {"<$2>", "<>"},
                                       {"$4", ""},
                                       {"x", "x"},
                                       {"", ""}}) {
        const text_template marked{std::string_view(text)};
        quillet::text_buffer out;
        quillet::append_filled(out, marked, operands);
        EXPECT_EQ(out.from(0), filled) << text;
        EXPECT_EQ(quillet::filled_size(marked, operands), std::string_view(filled).size()) << text;
    }
}

} // namespace
