/*
 * The text of a rendering. Internal.
 *
 * It grows at its end. What is to stand before something that is rendered first, and depends on it,
 * is given a gap there, which is filled later; a gap takes no room until it is settled.
 */
#ifndef QUILLET_OUTPUT_H
#define QUILLET_OUTPUT_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "quillet_text_buffer.h"

namespace quillet {

class output {
    struct gap_text {
        std::uint32_t position; // texts are smaller than that
        std::uint32_t size;
        const char *text;
    };

public:
    // What a rendering's gaps take their memory from.
    using memory = std::vector<gap_text>;

    explicit output(memory &gaps) : gaps_(gaps) {}
    output(const output &) = delete;
    output &operator=(const output &) = delete;

    // The end of the text at some time, to which it can be cut back as long as nothing before it
    // is.
    class place {
        friend class output;
        std::size_t size = 0;
        std::size_t gaps = 0;
    };

    // A gap, as long as the text is not cut back or settled before it.
    class gap {
        friend class output;
        std::size_t index = 0;
    };

    void append(std::string_view text) { text_.append(text); }
    void append(char c) { text_.append(c); }
    void append_words(const char *text) { text_.append_words(text); }

    std::size_t size() const { return text_.size(); }

    place here() const {
        place end;
        end.size = text_.size();
        end.gaps = gaps_.size();
        return end;
    }

    // Whether anything was written after a place; gaps do not count.
    bool has_grown_since(place begin) const { return text_.size() > begin.size; }

    // What was written after a place, which has no gaps there.
    std::string_view text_since(place begin) const { return text_.from(begin.size); }

    void cut(place begin) {
        text_.truncate(begin.size);
        gaps_.resize(begin.gaps);
    }

    // Takes out what stands between two places, the second of which is not before the first.
    void cut(place begin, place end);

    // Replaces a character by another one where it is the first or the last one after a place.
    void replace_at_ends(place begin, char found, char replacement) {
        if (!has_grown_since(begin))
            return;
        for (char *end : {text_.at(begin.size), text_.at(text_.size() - 1)})
            if (*end == found)
                *end = replacement;
    }

    // Leaves a gap at the end of the text.
    gap leave_gap() {
        gap left;
        left.index = gaps_.size();
        gaps_.push_back({static_cast<std::uint32_t>(text_.size()), 0, nullptr});
        return left;
    }

    // The gap that was left first after a place.
    static gap gap_at(place begin) {
        gap left;
        left.index = begin.gaps;
        return left;
    }

    // Fills a gap. The text must outlive the rendering.
    void fill(gap filled, std::string_view text) {
        gaps_[filled.index].text = text.data();
        gaps_[filled.index].size = static_cast<std::uint32_t>(text.size());
    }

    // Puts what fills the gaps after a place into the text. Returns what is written there.
    std::string_view settle(place begin) {
        settle_from(begin.gaps);
        return text_since(begin);
    }

    // Puts what fills the gaps after a gap into the text. Returns what is written there.
    std::string_view settle_after(gap begin) {
        settle_from(begin.index + 1);
        return text_.from(gaps_[begin.index].position);
    }

    // Hands over the settled text, NUL-terminated; the caller frees it. Nothing is left.
    char *release() { return text_.release(); }

private:
    void settle_from(std::size_t first);

    text_buffer text_;
    memory &gaps_; // in the order of their positions
};

} // namespace quillet

#endif
