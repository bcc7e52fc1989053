/*
 * Quillet in C++17: a translation as a value.
 *
 *     const quillet::translation made =
 *         quillet::translate("select a || b from t", quillet::target::mysql);
 *     if (made)
 *         std::cout << made.text() << '\n';
 *     for (const quillet::diagnostic &each : made.diagnostics())
 *         std::cerr << each.line << ": " << each.message << '\n';
 *
 * There is nothing here but the call quillet_translate of quillet.h, and all that is said there
 * holds. The records of the other headers have global names, such as builder. No name here is one
 * of those, so a program may say using namespace quillet.
 */
#ifndef QUILLET_HPP
#define QUILLET_HPP

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "quillet.h"

// All that quillet.hpp declares.
namespace quillet {

// The builders, by their ids.
enum class target : int {
    postgresql = 0, // the statement in one canonical form
    mysql = 1,      // MySQL 4.1
    tree = 2,       // the parse tree, a node a line
    type_view = 3   // PostgreSQL text with the type of every expression
};

// How much a diagnostic matters, in rising order.
enum class severity : std::int32_t {
    note = QUILLET_NOTE,       // the target may answer otherwise
    warning = QUILLET_WARNING, // the target answers otherwise, or rejects the text
    refusal = QUILLET_REFUSAL, // the builder has no equal for a construct
    error = QUILLET_ERROR      // the statement is wrong, or too large
};

// What may be asked of a translation; 0 is the library's own limit.
struct options {
    std::size_t text_limit = 0;               // bytes a text may take
    std::size_t tree_limit = 0;               // bytes the tree may take
    severity least_severity = severity::note; // what matters less is not looked for
};

// What there is to say about a part of a statement. The texts belong to the translation.
struct diagnostic {
    // The same as a value; its texts are those of the argument.
    explicit diagnostic(const quillet_diagnostic &of) noexcept
        : severity(static_cast<quillet::severity>(of.severity)), code(of.code), id(of.id),
          message(of.message), offset(of.offset), length(of.length), line(of.line),
          column(of.column) {
        if (of.hint)
            hint = of.hint;
    }

    quillet::severity severity;           // how much it matters
    int code;                             // of a refusal: the builder's own; otherwise 0
    std::string_view id;                  // stable, in words: "syntax-error", "refused-initcap"
    std::string_view message;             // one sentence
    std::optional<std::string_view> hint; // what to write instead
    std::size_t offset;                   // bytes before the construct
    std::size_t length;                   // its bytes; 0 at the statement's end
    int line;                             // of its first character, from 1
    int column;                           // likewise; a character is one of UTF-8
};

// The diagnostics of a translation, to which they belong.
class diagnostic_range {
public:
    // Gives values, not references, and so is an input iterator, although it may be copied and each
    // copy goes its own way.
    class iterator {
    public:
        // Holds the value as long as its member is looked at.
        class pointer {
        public:
            // Makes the value, and gives its address.
            explicit pointer(const diagnostic &of) noexcept : value_(of) {}
            const diagnostic *operator->() const noexcept { return &value_; }

        private:
            diagnostic value_;
        };

        // What std::iterator_traits asks for.
        using iterator_category = std::input_iterator_tag;
        using value_type = diagnostic;
        using difference_type = std::ptrdiff_t;
        using reference = diagnostic;

        // An iterator without a place, and one at a diagnostic of a translation.
        iterator() = default;
        explicit iterator(const quillet_diagnostic *at) noexcept : at_(at) {}

        // The diagnostic at the place, and the next place.
        diagnostic operator*() const noexcept { return diagnostic(*at_); }
        pointer operator->() const noexcept { return pointer(**this); }
        iterator &operator++() noexcept {
            ++at_;
            return *this;
        }
        iterator operator++(int) noexcept { return iterator(at_++); }

        // Whether the places are the same.
        friend bool operator==(iterator a, iterator b) noexcept { return a.at_ == b.at_; }
        friend bool operator!=(iterator a, iterator b) noexcept { return a.at_ != b.at_; }

    private:
        const quillet_diagnostic *at_ = nullptr;
    };

    // None, or so many from the first one on.
    diagnostic_range() = default;
    diagnostic_range(const quillet_diagnostic *first, std::size_t size) noexcept
        : first_(first), size_(size) {}

    // As of a container. The index is from 0 and below size().
    iterator begin() const noexcept { return iterator(first_); }
    iterator end() const noexcept { return iterator(first_ + size_); }
    std::size_t size() const noexcept { return size_; }
    bool empty() const noexcept { return size_ == 0; }
    diagnostic operator[](std::size_t index) const noexcept { return diagnostic(first_[index]); }

private:
    const quillet_diagnostic *first_ = nullptr;
    std::size_t size_ = 0;
};

// What became of a statement: it owns its text and its diagnostics, and can be moved but not
// copied. Moving leaves what it gave out valid. One that was made without a statement, or moved
// from, is a failure without text and diagnostics.
class translation {
public:
    // A failure without text and diagnostics.
    translation() = default;

    // Takes over what quillet_translate returned.
    explicit translation(quillet_translation *made) noexcept : made_(made) {}

    // Whether there was no failure. Warnings and notes, and refusals inside of a cast, may be
    // there.
    explicit operator bool() const noexcept { return code() == QUILLET_SUCCESS; }

    // As quillet_translate_query returns it.
    int code() const noexcept { return made_ ? made_->code : QUILLET_CAN_NOT_TRANSLATE; }

    // The text, "" without one; a NUL stands behind its end. It lasts as long as the translation,
    // so of one that is gone at the end of the expression it is a copy.
    std::string_view text() const &noexcept {
        return made_ && made_->text ? std::string_view(made_->text, made_->text_length) : "";
    }
    std::string text() const && { return std::string(text()); }

    // In the order of their places. They last as long as the translation, which must have a name.
    diagnostic_range diagnostics() const &noexcept {
        return made_ ? diagnostic_range(made_->diagnostics, made_->diagnostic_count)
                     : diagnostic_range();
    }
    diagnostic_range diagnostics() const && = delete;

private:
    struct freed {
        void operator()(quillet_translation *made) const noexcept {
            quillet_translation_free(made);
        }
    };

    std::unique_ptr<quillet_translation, freed> made_;
};

// Translates one statement, which may hold any bytes. The builder is one of the library's or any
// id, such as quillet_get_builder_id returns. May be called from any thread, by several at the same
// time. Throws nothing: without memory the translation says so.
[[nodiscard]] inline translation translate(std::string_view statement, int builder_id,
                                           const options &asked = {}) {
    quillet_options limits{};
    limits.size = sizeof limits;
    limits.text_limit = asked.text_limit;
    limits.tree_limit = asked.tree_limit;
    limits.least_severity = static_cast<std::int32_t>(asked.least_severity);
    return translation(quillet_translate(statement.data(), statement.size(), builder_id, &limits));
}

// The same for one of the library's builders by its name here.
[[nodiscard]] inline translation translate(std::string_view statement, target builder,
                                           const options &asked = {}) {
    return translate(statement, static_cast<int>(builder), asked);
}

} // namespace quillet

#endif
