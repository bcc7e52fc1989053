#include "quillet_output.h"

#include <cstring>

namespace quillet {

void output::cut(place begin, place end) {
    const std::size_t removed = end.size - begin.size;
    const auto first = gaps_.begin();
    gaps_.erase(first + static_cast<std::ptrdiff_t>(begin.gaps),
                first + static_cast<std::ptrdiff_t>(end.gaps));
    if (removed == 0)
        return;
    for (std::size_t i = begin.gaps; i < gaps_.size(); ++i)
        gaps_[i].position -= static_cast<std::uint32_t>(removed);
    std::memmove(text_.at(begin.size), text_.at(end.size), text_.size() - end.size);
    text_.truncate(text_.size() - removed);
}

// Moves the text from its end to where it belongs, so that each part is moved once.
void output::settle_from(std::size_t first) {
    std::size_t added = 0;
    for (std::size_t i = first; i < gaps_.size(); ++i)
        added += gaps_[i].size;
    if (added) {
        std::size_t source = text_.size();
        text_.grow(added);
        std::size_t target = text_.size();
        for (std::size_t i = gaps_.size(); i-- > first;) {
            const gap_text &next = gaps_[i];
            const std::size_t moved = source - next.position;
            target -= moved;
            source = next.position;
            std::memmove(text_.at(target), text_.at(source), moved);
            target -= next.size;
            if (next.size)
                std::memcpy(text_.at(target), next.text, next.size);
        }
    }
    gaps_.resize(first);
}

} // namespace quillet
