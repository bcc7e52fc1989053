// A statement as the library reads it. Its strings differ from psql's: there is no '' for a quote,
// no E'...' and no $$...$$; and there are no placeholders. A reading has stand-ins for them, and
// puts what they stand for into the translation.
//
//   a placeholder          a call of a function that does not exist; behind LIMIT, a number
//   a quote in a string    a control character that the statement does not have
//   a comment              a blank

#ifndef QUILLET_SCRIPT_READING_H
#define QUILLET_SCRIPT_READING_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "finding.h"
#include "placeholders.h"
#include "splitter.h"

namespace script {

class reading {
public:
    reading(const piece &statement, placeholder_style style, backslashes plain_strings);

    // What the library is given. It lasts as long as the reading, and as the piece.
    std::string_view text() const { return has_edits() ? std::string_view(text_) : source_; }

    // A place of text() in the statement.
    struct place {
        std::size_t begin;
        std::size_t end;
    };
    place in_statement(std::size_t begin, std::size_t end) const;

    // Whether a place of text() is a placeholder's stand-in, or in one.
    bool is_placeholder(std::size_t begin, std::size_t end) const;
    bool is_in_placeholder(std::size_t at) const;

    // A translation with what the stand-ins stand for, and each placeholder in it in its order.
    std::string written(std::string_view translation, placeholder_style style,
                        std::vector<placeholder> &parameters) const;

    // A message of the library, whose words are those of text(), with those of the statement.
    bool has_stand_in(std::string_view message) const;
    std::string in_message(std::string_view message) const;

    // The place in the statement of a string that the library would read otherwise, and why.
    struct fault {
        const own_finding *what;
        place where;
    };
    std::optional<fault> misread() const { return misread_; }

    bool has_edits() const { return !edits_.empty(); }

private:
    // A part of the statement that reads otherwise.
    struct edit {
        place source;
        place text;
    };

    void choose_stand_ins();
    void replace(place source, std::string_view by);
    void replace_placeholder(std::size_t index);
    void replace_mark(const mark &found);
    void replace_string(const mark &found, std::optional<std::string> inside);
    bool has_percents() const;
    std::optional<std::string> with_stand_in(std::optional<std::string> value) const;
    std::optional<std::string> inside_of(std::string_view string, std::size_t beginning) const;
    const edit *edit_before(std::size_t at) const;
    void find_fault(const own_finding &what, const mark &where);
    void find_misread_string(const piece &statement);
    std::size_t stand_in_at(std::string_view text, std::size_t at, std::size_t &size) const;

    std::string_view source_;
    backslashes plain_strings_;
    std::string text_;
    std::size_t copied_ = 0; // of the statement
    std::vector<edit> edits_;
    std::vector<placeholder> placeholders_;
    const placeholder_row *style_ = nullptr;
    std::string name_;   // what the names of calls begin with
    std::string number_; // what numbers begin with
    char quote_ = 0;
    std::optional<fault> misread_;
};

} // namespace script

#endif
