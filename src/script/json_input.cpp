#include "json_input.h"

#include <nlohmann/json.hpp>

#include <algorithm>

#include "words.h"

namespace script {

namespace {

const piece *next_statement(splitter &pieces) {
    const piece *found = pieces.next();
    while (found && found->kind != piece_kind::statement)
        found = pieces.next();
    return found;
}

} // namespace

bool json_input::read(json_statement &next) {
    do {
        if (!read_line())
            return false;
    } while (std::all_of(line_.begin(), line_.end(), is_blank));

    next = {};
    const auto object = nlohmann::json::parse(line_, nullptr, false);
    if (!object.is_object())
        return true;
    if (const auto id = object.find("id"); id != object.end())
        next.id = id->dump();
    const auto statement = object.find("statement");
    if (statement != object.end() && statement->is_string())
        next.text = statement->get<std::string>();
    return true;
}

bool json_input::read_line() {
    constexpr std::size_t part = std::size_t{1} << 16;
    std::size_t end = window_.find('\n', passed_);
    while (end == std::string::npos) {
        window_.erase(0, passed_);
        passed_ = 0;
        const std::size_t size = window_.size();
        window_.resize(size + std::max(part, size));
        window_.resize(size + from_.read(window_.data() + size, window_.size() - size));
        if (window_.size() == size)
            break;
        end = window_.find('\n', size);
    }
    line_ = std::string_view(window_).substr(passed_, end - passed_);
    passed_ = std::min(end, window_.size() - 1) + 1;
    return end != std::string::npos || !line_.empty();
}

only_statement::only_statement(std::string_view text, backslashes plain_strings)
    : from_(text), pieces_(from_, plain_strings) {
    const piece *const first = next_statement(pieces_);
    if (!first)
        return;
    const std::string_view rest = text.substr(first->offset + first->text.size());
    const auto is_nothing = [](char c) { return c == ';' || is_blank(c); };
    if (!std::all_of(rest.begin(), rest.end(), is_nothing)) {
        text_source rest_source(rest);
        splitter rest_pieces(rest_source, plain_strings);
        if (next_statement(rest_pieces))
            return;
    }
    found_ = first;
}

} // namespace script
