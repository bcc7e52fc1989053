#include "quillet_text_template.h"

namespace quillet {

void append_filled(text_buffer &out, const text_template &text,
                   std::initializer_list<std::string_view> operands) {
    for (int i = 0; i < text.count; ++i) {
        const text_template::piece &piece = text.pieces[i];
        out.append(piece.literal);
        const auto number = static_cast<std::size_t>(piece.mark);
        if (number >= 1 && number <= operands.size())
            out.append(operands.begin()[number - 1]);
    }
}

} // namespace quillet
