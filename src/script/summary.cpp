#include "summary.h"

namespace script {

void summary::add(const translation &made) {
    ++statements_;
    switch (made.became) {
    case outcome::translated:
        ++translated_;
        with_warnings_ += made.has_warnings ? 1 : 0;
        break;
    case outcome::refused: ++refused_; break;
    case outcome::not_understood: ++not_understood_; break;
    case outcome::copied: ++copied_; break;
    }
}

std::string summary::line() const {
    const auto count = [](std::size_t number) { return std::to_string(number); };
    return count(statements_) + (statements_ == 1 ? " statement: " : " statements: ") +
           count(translated_) + " translated (" + count(with_warnings_) + " with warnings), " +
           count(refused_) + " refused, " + count(not_understood_) + " not understood, " +
           count(copied_) + " copied";
}

} // namespace script
