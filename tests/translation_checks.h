// What holds of every translation that quillet_translate makes, whatever the statement.
#ifndef QUILLET_TESTS_TRANSLATION_CHECKS_H
#define QUILLET_TESTS_TRANSLATION_CHECKS_H

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

#include "quillet.h"

namespace quillet_tests {

struct translation_freed {
    void operator()(quillet_translation *made) const { quillet_translation_free(made); }
};

using owned_translation = std::unique_ptr<quillet_translation, translation_freed>;

inline owned_translation translated(std::string_view statement, int builder_id) {
    return owned_translation(
        quillet_translate(statement.data(), statement.size(), builder_id, nullptr));
}

// Whether any diagnostic is so.
template <class Is> bool has_diagnostic(const quillet_translation &made, Is is) {
    return std::any_of(made.diagnostics, made.diagnostics + made.diagnostic_count, is);
}

inline bool has_id(const quillet_translation &made, std::string_view id) {
    return has_diagnostic(made, [&](const quillet_diagnostic &each) { return each.id == id; });
}

// Whether a character stands in the way that no token can hold.
inline bool is_unscannable(const quillet_translation &made) {
    return has_id(made, "unknown-character") || has_id(made, "unended-string") ||
           has_id(made, "unended-name") || has_id(made, "empty-name");
}

// What a failing process or a wrong translation says.
inline std::string shown(const quillet_translation &made) {
    std::string text = std::to_string(made.code) + ' ' + (made.text ? made.text : "(no text)");
    for (std::size_t i = 0; i < made.diagnostic_count; ++i) {
        const quillet_diagnostic &each = made.diagnostics[i];
        text += '\n' + std::to_string(each.severity) + ' ' + std::to_string(each.code) + ' ' +
                each.id + " at " + std::to_string(each.offset) + '+' + std::to_string(each.length) +
                ", " + std::to_string(each.line) + ':' + std::to_string(each.column) + ": " +
                each.message + (each.hint ? std::string("; ") + each.hint : "");
    }
    return text;
}

// The same with nothing left out and nothing added: two of these are equal, or something differs.
inline bool are_same(const quillet_translation &a, const quillet_translation &b) {
    return a.text_length == b.text_length && shown(a) == shown(b);
}

namespace checks {

// Lines and columns are counted anew, backwards from the place.
inline bool has_its_line_and_column(const quillet_diagnostic &each, std::string_view statement) {
    const std::string_view before = statement.substr(0, each.offset);
    const std::string_view line = before.substr(before.rfind('\n') + 1);
    const auto characters = std::count_if(line.begin(), line.end(), [](char byte) {
        const bool goes_on = static_cast<unsigned char>(byte) >> 6 == 2; // of UTF-8
        return !goes_on;
    });
    return each.line == 1 + std::count(before.begin(), before.end(), '\n') &&
           each.column == 1 + characters;
}

inline const char *fault_of(const quillet_diagnostic &each, std::string_view statement) {
    if (each.severity < QUILLET_NOTE || each.severity > QUILLET_ERROR)
        return "an unknown severity";
    if (each.severity != QUILLET_REFUSAL && each.code != 0)
        return "a code of what is no refusal";
    if (!each.id || !*each.id || !each.message || !*each.message || (each.hint && !*each.hint))
        return "an empty text";
    if (each.offset > statement.size() || each.length > statement.size() - each.offset)
        return "a place outside of the statement";
    if (each.length == 0 && each.offset != statement.size())
        return "a place without characters that is not the statement's end";
    if (!has_its_line_and_column(each, statement))
        return "another line or column than the offset's";
    return nullptr;
}

} // namespace checks

// Says what is wrong with a translation of a statement; NULL if nothing is.
inline const char *fault_of(const quillet_translation &made, std::string_view statement) {
    if ((made.code == QUILLET_SUCCESS) != (made.text != nullptr))
        return "a text comes with success alone";
    if (made.text_length != (made.text ? std::strlen(made.text) : 0))
        return "a wrong length of the text";
    if ((made.diagnostic_count == 0) != (made.diagnostics == nullptr))
        return "a count of diagnostics that are not there";
    const quillet_diagnostic *const begin = made.diagnostics;
    const quillet_diagnostic *const end = begin + made.diagnostic_count;
    for (const quillet_diagnostic *each = begin; each != end; ++each)
        if (const char *fault = checks::fault_of(*each, statement))
            return fault;
    const auto by_place = [](const quillet_diagnostic &a, const quillet_diagnostic &b) {
        return a.offset < b.offset;
    };
    if (!std::is_sorted(begin, end, by_place))
        return "not in the order of their places";
    const bool is_explained = has_diagnostic(
        made, [](const quillet_diagnostic &each) { return each.severity >= QUILLET_REFUSAL; });
    if (made.code != QUILLET_SUCCESS && !is_explained)
        return "a failure without a reason";
    return nullptr;
}

} // namespace quillet_tests

#endif
