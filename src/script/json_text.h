// JSON text, written piece by piece: a tree of it for each statement would take longer than to
// translate the statement.

#ifndef QUILLET_SCRIPT_JSON_TEXT_H
#define QUILLET_SCRIPT_JSON_TEXT_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace script {

// A text between quotes; bytes that are no character become the replacement character.
void append_json_string(std::string &json, std::string_view text);

// An object or an array, from its first bracket to its last. Brackets nest.
class json_text {
public:
    explicit json_text(std::string &to) : to_(to) {}

    json_text &open(char bracket);
    json_text &close(char bracket);
    json_text &key(std::string_view name); // one that needs no escapes

    json_text &value(std::string_view text);
    json_text &value_or_null(std::optional<std::string_view> text);
    json_text &value(long long number);
    json_text &raw(std::string_view json);

private:
    void separate();

    std::string &to_;
    bool needs_comma_ = false;
};

} // namespace script

#endif
