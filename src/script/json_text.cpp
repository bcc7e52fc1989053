#include "json_text.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "string_values.h"

namespace script {

namespace {

void append_escape(std::string &json, char c) {
    constexpr std::string_view characters = "\"\\\b\f\n\r\t";
    constexpr std::string_view letters = "\"\\bfnrt";
    constexpr std::string_view digits = "0123456789abcdef";
    json.push_back('\\');
    if (const std::size_t at = characters.find(c); at != std::string_view::npos) {
        json.push_back(letters[at]);
        return;
    }
    json.append("u00").push_back(c < 0x10 ? '0' : '1');
    json.push_back(digits[static_cast<std::size_t>(c & 0x0f)]);
}

bool needs_escape(char c) { return c == '"' || c == '\\' || static_cast<unsigned char>(c) < ' '; }

void append_valid(std::string &json, std::string_view text) {
    for (auto at = text.begin(); at != text.end();) {
        const auto next = std::find_if(at, text.end(), needs_escape);
        json.append(at, next);
        at = next;
        if (at != text.end())
            append_escape(json, *at++);
    }
}

} // namespace

void append_json_string(std::string &json, std::string_view text) {
    json.push_back('"');
    for (;;) {
        const std::size_t bad = find_invalid_utf8(text);
        append_valid(json, text.substr(0, bad));
        if (bad == std::string_view::npos)
            break;
        json.append("\xef\xbf\xbd");
        text.remove_prefix(bad + 1);
    }
    json.push_back('"');
}

void json_text::separate() {
    if (needs_comma_)
        to_.push_back(',');
    needs_comma_ = true;
}

json_text &json_text::open(char bracket) {
    separate();
    to_.push_back(bracket);
    needs_comma_ = false;
    return *this;
}

json_text &json_text::close(char bracket) {
    to_.push_back(bracket);
    needs_comma_ = true;
    return *this;
}

json_text &json_text::key(std::string_view name) {
    separate();
    to_.append(1, '"').append(name).append("\":");
    needs_comma_ = false;
    return *this;
}

json_text &json_text::value(std::string_view text) {
    separate();
    append_json_string(to_, text);
    return *this;
}

json_text &json_text::value_or_null(std::optional<std::string_view> text) {
    return text ? value(*text) : raw("null");
}

json_text &json_text::value(long long number) {
    char digits[std::numeric_limits<long long>::digits10 + 2];
    const auto written = std::to_chars(std::begin(digits), std::end(digits), number);
    return raw({digits, static_cast<std::size_t>(written.ptr - digits)});
}

json_text &json_text::raw(std::string_view json) {
    separate();
    to_.append(json);
    return *this;
}

} // namespace script
