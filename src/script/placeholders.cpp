#include "placeholders.h"

#include <charconv>
#include <unordered_map>

#include "words.h"

namespace script {

const placeholder_row *row_of(placeholder_style style) {
    for (const placeholder_row &row : placeholder_rows)
        if (row.style == style)
            return &row;
    return nullptr;
}

const placeholder_row *row_of(mark_kind mark) {
    for (const placeholder_row &row : placeholder_rows)
        if (row.mark == mark)
            return &row;
    return nullptr;
}

namespace {

// Whether "%s" directly behind an operand is a remainder.
bool could_be_remainder(const piece &statement, const mark &found) {
    if (found.kind != mark_kind::format || found.begin == 0)
        return false;
    const char before = statement.text[found.begin - 1];
    return !first_word({&before, 1}).empty() || before == ')' || before == '\'' || before == '"';
}

const placeholder_row *first_style(const piece &statement) {
    for (const mark &each : statement.marks) {
        const placeholder_row *const row = row_of(each.kind);
        if (row && !could_be_remainder(statement, each))
            return row;
    }
    return nullptr;
}

std::string_view name_in(std::string_view text, const placeholder_row &row) {
    if (!row.is_named)
        return {};
    return row.style == placeholder_style::named ? text.substr(1) : text.substr(2, text.size() - 4);
}

} // namespace

std::vector<placeholder> find_placeholders(const piece &statement, placeholder_style style,
                                           const placeholder_row *&found_style) {
    std::vector<placeholder> found;
    found_style = style == placeholder_style::any ? first_style(statement) : row_of(style);
    if (!found_style)
        return found;
    std::unordered_map<std::string_view, std::size_t> numbers;
    for (const mark &each : statement.marks) {
        if (each.kind != found_style->mark)
            continue;
        if (style == placeholder_style::any && could_be_remainder(statement, each))
            continue;
        const std::string_view text = statement.text.substr(each.begin, each.end - each.begin);
        placeholder made{each.begin, each.end, each.is_behind_limit, found.size() + 1,
                         name_in(text, *found_style)};
        if (found_style->is_named) {
            made.number = numbers.emplace(made.name, numbers.size() + 1).first->second;
        } else if (found_style->style == placeholder_style::dollar) {
            const auto read =
                std::from_chars(text.data() + 1, text.data() + text.size(), made.number);
            if (read.ec != std::errc())
                continue; // no number that a program could mean
        }
        found.push_back(made);
    }
    return found;
}

void append_placeholder(std::string &text, const placeholder &written, placeholder_style style) {
    const auto append_name = [&] {
        if (written.name.empty())
            text.append(1, 'p').append(std::to_string(written.number));
        else
            text.append(written.name);
    };
    switch (style) {
    case placeholder_style::dollar:
        text.append(1, '$').append(std::to_string(written.number));
        break;
    case placeholder_style::named:
        text.push_back(':');
        append_name();
        break;
    case placeholder_style::format: text.append("%s"); break;
    case placeholder_style::pyformat:
        text.append("%(");
        append_name();
        text.append(")s");
        break;
    default: text.push_back('?'); break;
    }
}

} // namespace script
