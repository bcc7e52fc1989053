// What the words of a statement tell of its end.

#ifndef QUILLET_SCRIPT_STATEMENT_WORDS_H
#define QUILLET_SCRIPT_STATEMENT_WORDS_H

#include <array>
#include <cstddef>
#include <string_view>

namespace script {

// A function's body in SQL has semicolons (CREATE FUNCTION ... BEGIN ATOMIC ... END), and data may
// follow COPY ... FROM STDIN.
class statement_words {
public:
    void begin() { *this = {}; }

    void take(std::string_view word, std::size_t open_parentheses);

    // psql takes what follows on \; for another statement, in whatever it stands.
    void begin_next() {
        first_ = {};
        count_ = 0;
    }

    // Whether it is in the body of a function, and a semicolon does not end it.
    bool is_in_body() const { return open_bodies_ > 0; }

    bool has_from_stdin() const { return has_from_stdin_; }

private:
    bool is_function() const;

    std::array<char, 4> first_{}; // letters of the first words, as far as they begin a function
    std::size_t count_ = 0;
    std::size_t open_bodies_ = 0;
    bool is_behind_from_ = false;
    bool has_from_stdin_ = false;
    bool matters_ = false;
};

} // namespace script

#endif
