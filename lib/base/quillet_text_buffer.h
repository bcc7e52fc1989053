/*
 * A growing text that ends up as a heap text of its own. Internal.
 */
#ifndef QUILLET_TEXT_BUFFER_H
#define QUILLET_TEXT_BUFFER_H

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <string_view>

namespace quillet {

struct freed {
    void operator()(void *memory) const { std::free(memory); }
};

class text_buffer {
public:
    std::size_t size() const { return size_; }
    const char *data() const { return data_.get(); }
    std::string_view from(std::size_t begin) const { return {data() + begin, size_ - begin}; }

    void append(std::string_view text) {
        if (text.empty())
            return;
        char *end = grow(text.size());
        std::memcpy(end, text.data(), text.size());
    }

    void append(char c) { *grow(1) = c; }

    // The same for a text that a NUL ends, and that lies in room of whole words: a word at a time,
    // of which a name has one or two.
    void append_words(const char *text) {
        constexpr std::size_t each = SIZE_MAX / 0xff;
        for (;; text += sizeof each) {
            std::size_t word = 0;
            std::memcpy(&word, text, sizeof word);
            std::memcpy(grow(sizeof word), &word, sizeof word);
            const std::size_t zeros = (word - each) & ~word & each << 7; // the lowest one is right
            if (zeros) {
                size_ -= sizeof word - static_cast<std::size_t>(std::countr_zero(zeros)) / 8;
                return;
            }
        }
    }

    // Adds room for count characters after the text and returns where it begins.
    char *grow(std::size_t count) {
        if (capacity_ - size_ < count + 1)
            reserve(size_ + count + 1);
        char *end = data_.get() + size_;
        size_ += count;
        return end;
    }

    void truncate(std::size_t size) { size_ = size; }

    char *at(std::size_t position) { return data_.get() + position; }

    // Hands the text over, NUL-terminated; the caller frees it. The buffer is empty afterwards.
    char *release() {
        *grow(1) = '\0';
        size_ = capacity_ = 0;
        return data_.release();
    }

private:
    void reserve(std::size_t needed) {
        std::size_t capacity = capacity_ ? capacity_ : 1024;
        while (capacity < needed)
            capacity *= 2;
        auto *moved = static_cast<char *>(std::realloc(data_.get(), capacity));
        if (!moved)
            throw std::bad_alloc();
        static_cast<void>(data_.release());
        data_.reset(moved);
        capacity_ = capacity;
    }

    std::unique_ptr<char, freed> data_;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
};

} // namespace quillet

#endif
