#include "quillet_operands.h"

#include <algorithm>
#include <string>

namespace quillet {

void operands::resume(const outcome &first) {
    gaps_[0] = output::gap_at(begin_);
    after(first);
}

outcome operands::write(const text_template &text, std::size_t skipped) {
    if (!streamed_) {
        if (!text.in_order || text.operand_count != count_ || skipped)
            return rearrange(text, skipped);
        for (int i = 0; i < count_; ++i)
            r_.out.fill(gaps_[i], text.literal(i));
    }
    if (text.count > count_)
        r_.out.append(text.literal(count_));
    return {true, true, status_.status};
}

outcome operands::rearrange(const text_template &text, std::size_t skipped) {
    std::size_t sizes[text_template::operands_maximum] = {};
    std::size_t later = 0;
    for (int i = count_; i-- > 0; later += sizes[i])
        sizes[i] = r_.out.settle_after(gaps_[i]).size() - later;

    const std::string copy(r_.out.text_since(begin_));
    std::string_view texts[text_template::operands_maximum];
    std::string_view rest = copy;
    for (int i = 0; i < count_; ++i) {
        texts[i] = rest.substr(0, sizes[i]);
        rest.remove_prefix(sizes[i]);
    }
    texts[0].remove_prefix(std::min(skipped, texts[0].size()));

    drop();
    if (!r_.has_room_for(filled_size(text, texts)))
        return refused_part;
    append_filled(r_.out, text, texts);
    return {true, true, status_.status};
}

} // namespace quillet
