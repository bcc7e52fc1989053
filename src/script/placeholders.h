// How programs write the places of a statement that take values later.

#ifndef QUILLET_SCRIPT_PLACEHOLDERS_H
#define QUILLET_SCRIPT_PLACEHOLDERS_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "splitter.h"

namespace script {

enum class placeholder_style { none, dollar, question, named, format, pyformat, any };

struct placeholder_row {
    std::string_view name; // as an option has it
    placeholder_style style;
    mark_kind mark; // how the splitter calls it
    bool is_named;
    bool has_percent; // "%" is written "%%" beside it
    std::string_view example;
};

constexpr placeholder_row placeholder_rows[] = {
    {"dollar", placeholder_style::dollar, mark_kind::dollar, false, false, "$1"},
    {"question", placeholder_style::question, mark_kind::question, false, false, "?"},
    {"named", placeholder_style::named, mark_kind::named, true, false, ":name"},
    {"format", placeholder_style::format, mark_kind::format, false, true, "%s"},
    {"pyformat", placeholder_style::pyformat, mark_kind::pyformat, true, true, "%(name)s"},
};

// NULL for none and any.
const placeholder_row *row_of(placeholder_style style);

// NULL if it is no placeholder.
const placeholder_row *row_of(mark_kind mark);

// One of a statement.
struct placeholder {
    std::size_t begin;
    std::size_t end;
    bool is_behind_limit;
    std::size_t number; // $n: n; a name: which of the different ones; otherwise which one; from 1
    std::string_view name; // "" without one
};

// The placeholders of a statement in one style; any: in that of the first one.
std::vector<placeholder> find_placeholders(const piece &statement, placeholder_style style,
                                           const placeholder_row *&found_style);

// Appends one in a style.
void append_placeholder(std::string &text, const placeholder &written, placeholder_style style);

} // namespace script

#endif
