// Translates the statements of a script.

#ifndef QUILLET_SCRIPT_TRANSLATOR_H
#define QUILLET_SCRIPT_TRANSLATOR_H

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <quillet.hpp>

#include "finding.h"
#include "options.h"
#include "placeholders.h"
#include "splitter.h"

namespace script {

// What becomes of a statement.
enum class outcome { translated, refused, not_understood, copied };

// What the statement's piece has is not copied.
struct translation {
    outcome became = outcome::not_understood;
    int code = QUILLET_SUCCESS;
    std::optional<std::string_view> text;
    std::vector<placeholder> parameters; // for each place of the text the one it takes
    std::vector<finding> findings;       // in the order of their places
    bool has_warnings = false;

    // What texts belong to.
    quillet::translation made;
    std::deque<std::string> texts;
};

class reading;

class translator {
public:
    explicit translator(const options &asked);

    // plain_strings: how the script has them here.
    translation translate(const piece &statement, backslashes plain_strings) const;

private:
    void find_all(translation &made, const piece &statement, const reading &read,
                  backslashes plain_strings) const;

    const options &asked_;
    quillet::target target_;
    placeholder_style style_out_;
    quillet::options limits_;
};

// What becomes of so many bytes that are no statement.
translation untranslated(const own_finding &why, std::size_t size);

// What a statement says about how strings are read from here on, if it does: SET
// standard_conforming_strings.
std::optional<backslashes> plain_strings_after(const piece &statement);

// One of the script's own, whose position is found later.
finding make_finding(const own_finding &row, std::size_t offset, std::size_t length);

} // namespace script

#endif
