#include "quillet_text_template.h"

namespace quillet {

namespace {

std::string_view operand_at(operand mark, std::initializer_list<std::string_view> operands) {
    const auto number = static_cast<std::size_t>(mark);
    return number >= 1 && number <= operands.size() ? operands.begin()[number - 1]
                                                    : std::string_view{};
}

} // namespace

std::size_t filled_size(const text_template &text,
                        std::initializer_list<std::string_view> operands) {
    std::size_t size = 0;
    for (int i = 0; i < text.count; ++i)
        size += text.pieces[i].literal.size() + operand_at(text.pieces[i].mark, operands).size();
    return size;
}

void append_filled(text_buffer &out, const text_template &text,
                   std::initializer_list<std::string_view> operands) {
    for (int i = 0; i < text.count; ++i) {
        out.append(text.pieces[i].literal);
        out.append(operand_at(text.pieces[i].mark, operands));
    }
}

} // namespace quillet
