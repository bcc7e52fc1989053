#include "quillet_text_template.h"

namespace quillet {

std::size_t filled_size(const text_template &text, std::span<const std::string_view> operands) {
    std::size_t size = 0;
    for (int i = 0; i < text.count; ++i)
        size += text.pieces[i].size + operand_for(text.pieces[i].mark, operands).size();
    return size;
}

} // namespace quillet
