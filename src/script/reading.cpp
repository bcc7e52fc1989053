#include "reading.h"

#include <algorithm>
#include <cstdio>

#include "string_values.h"
#include "words.h"

namespace script {

namespace {

constexpr std::size_t nothing = std::string_view::npos;
constexpr int index_digits = 6; // of a number behind LIMIT

bool is_digit(char c) { return c >= '0' && c <= '9'; }

// Something that a text does not have: a prefix and, if it must be, a number. Among the numbers of
// enough digits one is free, as there are more of them than places of the prefix.
std::string missing_in(std::string_view text, const std::string &prefix) {
    std::vector<std::size_t> places;
    for (std::size_t at = text.find(prefix); at != nothing; at = text.find(prefix, at + 1))
        places.push_back(at + prefix.size());
    if (places.empty())
        return prefix;
    std::size_t digits = 1;
    std::size_t least = 1;
    for (; 9 * least <= places.size(); least *= 10)
        ++digits;
    std::vector<bool> is_taken(9 * least);
    for (const std::size_t place : places) {
        std::size_t number = 0;
        std::size_t at = place;
        while (at < text.size() && at < place + digits && is_digit(text[at]))
            number = 10 * number + static_cast<std::size_t>(text[at++] - '0');
        if (at == place + digits && number >= least)
            is_taken[number - least] = true;
    }
    const auto free = std::find(is_taken.begin(), is_taken.end(), false);
    return prefix + std::to_string(least + static_cast<std::size_t>(free - is_taken.begin()));
}

// A control character that a text does not have; 0 if it has all.
char control_missing_in(std::string_view text) {
    for (char c = 1; c < ' '; ++c)
        if (!(c >= '\t' && c <= '\r') && text.find(c) == nothing)
            return c;
    return 0;
}

// A text where each pair of a character is one of it.
std::string with_single(char doubled, std::string_view text) {
    std::string made;
    made.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        made.push_back(text[at]);
        if (text[at] == doubled && text.substr(at + 1).starts_with(doubled))
            ++at;
    }
    return made;
}

} // namespace

reading::reading(const piece &statement, placeholder_style style, backslashes plain_strings)
    : source_(statement.text), plain_strings_(plain_strings) {
    const bool is_plain = std::all_of(statement.marks.begin(), statement.marks.end(),
                                      [](const mark &each) { return each.is_plain; });
    if (is_plain)
        return;
    placeholders_ = find_placeholders(statement, style, style_);
    choose_stand_ins();
    std::size_t next = 0; // placeholder
    for (const mark &each : statement.marks) {
        if (next < placeholders_.size() && placeholders_[next].begin == each.begin)
            replace_placeholder(next++);
        else if (!each.is_plain)
            replace_mark(each);
    }
    if (has_edits())
        text_.append(source_.substr(copied_));
    if (!misread_)
        find_misread_string(statement);
}

void reading::choose_stand_ins() {
    quote_ = control_missing_in(source_);
    name_ = missing_in(source_, "qp_") + "_";
    number_ = missing_in(source_, "97320841");
}

void reading::replace(place source, std::string_view by) {
    text_.append(source_.substr(copied_, source.begin - copied_));
    const std::size_t begin = text_.size();
    text_.append(by);
    edits_.push_back({source, {begin, text_.size()}});
    copied_ = source.end;
}

void reading::replace_placeholder(std::size_t index) {
    const placeholder &replaced = placeholders_[index];
    std::string by;
    if (replaced.is_behind_limit) {
        const std::string digits = std::to_string(index);
        by = number_;
        by.append(index_digits - std::min<std::size_t>(index_digits, digits.size()), '0');
        by.append(digits);
    } else {
        by.append(name_).append(std::to_string(index)).append("_()");
    }
    replace({replaced.begin, replaced.end}, by);
}

void reading::replace_mark(const mark &found) {
    const std::string_view text = source_.substr(found.begin, found.end - found.begin);
    switch (found.kind) {
    case mark_kind::comment: replace({found.begin, found.end}, " "); break;
    case mark_kind::percents:
        if (has_percents())
            replace({found.begin, found.end}, "%");
        break;
    case mark_kind::string: replace_string(found, inside_of(text, 1)); break;
    case mark_kind::escape_string:
        if (plain_strings_ == backslashes::escape)
            replace_string(found, inside_of(text, 2));
        else
            replace_string(found, with_stand_in(value_of_escape_string(text)));
        break;
    case mark_kind::dollar_string:
        replace_string(found,
                       with_stand_in(std::optional<std::string>(value_of_dollar_string(text))));
        break;
    case mark_kind::prefixed_string:
        if (in_lower_case(text[0]) == 'u')
            find_fault(unicode_escapes, found);
        break;
    default: break;
    }
}

void reading::find_fault(const own_finding &what, const mark &where) {
    if (!misread_)
        misread_ = fault{&what, {where.begin, where.end}};
}

// Replaces a string by one of a text between quotes, unless there is no such text.
void reading::replace_string(const mark &found, std::optional<std::string> inside) {
    if (!inside) {
        find_fault(found.has_end ? unknown_escape : unended_string, found);
        return;
    }
    if (has_percents())
        inside = with_single('%', *inside);
    std::string by(1, '\'');
    by.append(*inside).push_back('\'');
    if (by != source_.substr(found.begin, found.end - found.begin))
        replace({found.begin, found.end}, by);
}

bool reading::has_percents() const {
    return style_ && style_->has_percent && !placeholders_.empty();
}

// A value with a stand-in for each quote.
std::optional<std::string> reading::with_stand_in(std::optional<std::string> value) const {
    if (!value || (quote_ == 0 && value->find('\'') != nothing))
        return std::nullopt;
    std::replace(value->begin(), value->end(), '\'', quote_);
    return value;
}

// What stands in a string of one part, behind a beginning of some characters: with a stand-in for
// each '' in it.
std::optional<std::string> reading::inside_of(std::string_view string,
                                              std::size_t beginning) const {
    std::string made;
    for (std::size_t at = beginning; at + 1 < string.size(); ++at) {
        const char c = string[at];
        if (plain_strings_ == backslashes::escape && c == '\\') {
            made.push_back(c);
            made.push_back(string[++at]);
        } else if (c != '\'') {
            made.push_back(c);
        } else if (string[at + 1] == '\'' && at + 2 < string.size() && quote_ != 0) {
            made.push_back(quote_);
            ++at;
        } else {
            return std::nullopt; // it goes on in another line, or has no end
        }
    }
    if (string.size() <= beginning || string.back() != '\'')
        return std::nullopt;
    return made;
}

void reading::find_misread_string(const piece &statement) {
    const std::string_view read = text();
    const std::size_t last_quote = read.rfind('\'');
    std::size_t next = 0; // edit
    for (const mark &each : statement.marks) {
        const bool is_string =
            each.kind == mark_kind::string || each.kind == mark_kind::escape_string ||
            each.kind == mark_kind::dollar_string || each.kind == mark_kind::prefixed_string;
        if (!is_string)
            continue;
        // Where the string ends in the reading.
        while (next < edits_.size() && edits_[next].source.end < each.end)
            ++next;
        std::size_t end = each.end;
        if (next < edits_.size() && edits_[next].source.end == each.end)
            end = edits_[next].text.end;
        else if (next > 0)
            end = each.end - edits_[next - 1].source.end + edits_[next - 1].text.end;
        if (end >= 2 && read[end - 1] == '\'' && read[end - 2] == '\\' && end - 1 < last_quote) {
            find_fault(misread_string, each);
            return;
        }
    }
}

// The last edit that begins at a place or before it; NULL if all begin later.
const reading::edit *reading::edit_before(std::size_t at) const {
    const auto next = std::upper_bound(
        edits_.begin(), edits_.end(), at,
        [](std::size_t wanted, const edit &each) { return wanted < each.text.begin; });
    return next == edits_.begin() ? nullptr : &*(next - 1);
}

reading::place reading::in_statement(std::size_t begin, std::size_t end) const {
    place found{begin, end};
    // A place within a stand-in is all of it.
    if (const edit *const before = edit_before(begin))
        found.begin = begin >= before->text.end ? before->source.end + (begin - before->text.end)
                                                : before->source.begin;
    if (const edit *const before = edit_before(end)) {
        const bool is_within = end > before->text.begin && end < before->text.end;
        found.end = is_within                   ? before->source.end
                    : end == before->text.begin ? before->source.begin
                                                : before->source.end + (end - before->text.end);
    }
    found.end = std::max(found.begin, found.end);
    return found;
}

bool reading::is_placeholder(std::size_t begin, std::size_t end) const {
    const edit *const at = edit_before(begin);
    return at && at->text.begin == begin && at->text.end == end && is_in_placeholder(begin);
}

bool reading::is_in_placeholder(std::size_t at) const {
    const edit *const before = edit_before(at);
    return before && at < before->text.end &&
           std::binary_search(
               placeholders_.begin(), placeholders_.end(),
               placeholder{before->source.begin, 0, false, 0, {}},
               [](const placeholder &a, const placeholder &b) { return a.begin < b.begin; });
}

bool reading::has_stand_in(std::string_view message) const {
    return message.find(quote_) != nothing || message.find(name_) != nothing ||
           message.find(number_) != nothing;
}

// The index of the placeholder whose stand-in is at this place of a text; nothing for none.
std::size_t reading::stand_in_at(std::string_view text, std::size_t at, std::size_t &size) const {
    const std::string_view left = text.substr(at);
    const bool is_name = left.starts_with(name_);
    if (!is_name && !left.starts_with(number_))
        return nothing;
    std::size_t end = is_name ? name_.size() : number_.size();
    std::size_t index = 0;
    const std::size_t begin = end;
    while (end < left.size() && is_digit(left[end]) && end - begin < index_digits + 4)
        index = 10 * index + static_cast<std::size_t>(left[end++] - '0');
    if (end == begin || index >= placeholders_.size())
        return nothing;
    if (is_name && left.substr(end).starts_with("_()"))
        end += 3;
    else if (is_name && left.substr(end).starts_with("_"))
        end += 1; // in a message
    size = end;
    return index;
}

std::string reading::written(std::string_view translation, placeholder_style style,
                             std::vector<placeholder> &parameters) const {
    std::string made;
    made.reserve(translation.size());
    const placeholder_row *const row = row_of(style);
    const bool doubles_percent = row && row->has_percent && !placeholders_.empty();
    for (std::size_t at = 0; at < translation.size();) {
        const char c = translation[at];
        std::size_t size = 0;
        const std::size_t index = placeholders_.empty() || (c != name_[0] && c != number_[0])
                                      ? nothing
                                      : stand_in_at(translation, at, size);
        if (index != nothing) {
            append_placeholder(made, placeholders_[index], style);
            parameters.push_back(placeholders_[index]);
            at += size;
            continue;
        }
        if (c == quote_ && quote_ != 0)
            made.append("''");
        else if (c == '%' && doubles_percent)
            made.append("%%");
        else
            made.push_back(c);
        ++at;
    }
    return made;
}

std::string reading::in_message(std::string_view message) const {
    std::string made;
    for (std::size_t at = 0; at < message.size();) {
        std::size_t size = 0;
        const std::size_t index = stand_in_at(message, at, size);
        if (index == nothing) {
            if (message[at] == quote_)
                made.append("''");
            else
                made.push_back(message[at]);
            ++at;
            continue;
        }
        const placeholder &meant = placeholders_[index];
        made.append(source_.substr(meant.begin, meant.end - meant.begin));
        at += size;
    }
    return made;
}

} // namespace script
