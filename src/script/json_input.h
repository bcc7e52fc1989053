// Statements that come as lines of JSON: {"id": 1, "statement": "select 1"}.

#ifndef QUILLET_SCRIPT_JSON_INPUT_H
#define QUILLET_SCRIPT_JSON_INPUT_H

#include <optional>
#include <string>
#include <string_view>

#include "source.h"
#include "splitter.h"

namespace script {

struct json_statement {
    std::string id = "null";         // as JSON
    std::optional<std::string> text; // nothing if the line is not as it should be
};

class json_input {
public:
    explicit json_input(source &from) : from_(from) {}

    // Reads the next line that is not blank; false at the end.
    bool read(json_statement &next);

    // The last line.
    std::string_view line() const { return line_; }

private:
    bool read_line();

    source &from_;
    std::string window_;
    std::size_t passed_ = 0; // of the window
    std::string_view line_;
};

// The statement of a text that has one and no other.
class only_statement {
public:
    only_statement(std::string_view text, backslashes plain_strings);

    // NULL if there is none, or another one.
    const piece *get() const { return found_; }

private:
    text_source from_;
    splitter pieces_;
    const piece *found_ = nullptr;
};

} // namespace script

#endif
