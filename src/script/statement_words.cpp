#include "statement_words.h"

#include <algorithm>

#include "words.h"

namespace script {

void statement_words::take(std::string_view word, std::size_t open_parentheses) {
    if (count_ == 0)
        matters_ = in_lower_case(word[0]) == 'c'; // CREATE, COPY
    if (!matters_) {
        ++count_;
        return;
    }
    constexpr std::string_view beginning[] = {"create", "or", "replace", "function", "procedure"};
    if (count_ < first_.size() &&
        std::any_of(std::begin(beginning), std::end(beginning),
                    [text = word](std::string_view known) { return is_word(text, known); }))
        first_[count_] = in_lower_case(word[0]);
    ++count_;
    if (is_function() && open_parentheses == 0) {
        if (is_word(word, "begin") || (open_bodies_ > 0 && is_word(word, "case")))
            ++open_bodies_;
        else if (open_bodies_ > 0 && is_word(word, "end"))
            --open_bodies_;
    }
    has_from_stdin_ |= open_parentheses == 0 && is_behind_from_ && is_word(word, "stdin");
    is_behind_from_ = is_word(word, "from");
}

// CREATE [OR REPLACE] FUNCTION or PROCEDURE, told by the first letters as psql does.
bool statement_words::is_function() const {
    const auto is_kind = [this](std::size_t at) { return first_[at] == 'f' || first_[at] == 'p'; };
    return first_[0] == 'c' && (is_kind(1) || (first_[1] == 'o' && first_[2] == 'r' && is_kind(3)));
}

} // namespace script
