// The values of psql's strings.

#ifndef QUILLET_SCRIPT_STRING_VALUES_H
#define QUILLET_SCRIPT_STRING_VALUES_H

#include <optional>
#include <string>
#include <string_view>

namespace script {

// The value of E'...' with its quotes, and with what it goes on with in other lines; nothing if an
// escape has no character or there is no end.
std::optional<std::string> value_of_escape_string(std::string_view text);

// Of $tag$...$tag$.
std::optional<std::string_view> value_of_dollar_string(std::string_view text);

// The first byte that is not UTF-8; npos if all are.
std::size_t find_invalid_utf8(std::string_view text);

} // namespace script

#endif
