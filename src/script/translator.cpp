#include "translator.h"

#include <algorithm>

#include "reading.h"
#include "string_values.h"
#include "words.h"

namespace script {

namespace {

// The first words of statements that are copied, as PostgreSQL has them. What begins otherwise is a
// query, or nothing that PostgreSQL knows.
constexpr std::string_view copied_verbs[] = {
    "abort",   "alter",   "analyse", "analyze",  "begin",    "call",       "checkpoint", "close",
    "cluster", "comment", "commit",  "copy",     "create",   "deallocate", "declare",    "discard",
    "do",      "drop",    "end",     "execute",  "explain",  "fetch",      "grant",      "import",
    "listen",  "load",    "lock",    "merge",    "move",     "notify",     "prepare",    "reassign",
    "refresh", "reindex", "release", "reset",    "revoke",   "rollback",   "savepoint",  "security",
    "set",     "show",    "start",   "truncate", "unlisten", "vacuum"};

bool is_copied(std::string_view verb) {
    return std::any_of(std::begin(copied_verbs), std::end(copied_verbs),
                       [verb](std::string_view known) { return is_word(verb, known); });
}

const mark *first_comment(const piece &statement) {
    for (const mark &each : statement.marks)
        if (each.kind == mark_kind::comment)
            return &each;
    return nullptr;
}

// A placeholder in the source that an error is about, because nobody said that there are any.
const placeholder_row *unexpected_placeholder(const piece &statement, std::size_t offset) {
    const auto at =
        std::lower_bound(statement.marks.begin(), statement.marks.end(), offset,
                         [](const mark &each, std::size_t place) { return each.end <= place; });
    return at != statement.marks.end() && at->begin <= offset ? row_of(at->kind) : nullptr;
}

bool has_text(const translation &made, bool is_strict) {
    return std::none_of(made.findings.begin(), made.findings.end(), [&](const finding &each) {
        return each.severity >= quillet::severity::refusal ||
               (is_strict && each.severity == quillet::severity::warning);
    });
}

// Whether a string's escapes are the same in MySQL, and what the library remarks on its
// backslashes, which it takes for characters, does not hold.
bool has_common_escapes(std::string_view string) {
    constexpr std::string_view common = "\\'nrtb";
    for (std::size_t at = string.find('\\'); at != std::string_view::npos;
         at = string.find('\\', at + 2))
        if (at + 1 == string.size() || common.find(string[at + 1]) == std::string_view::npos)
            return false;
    return true;
}

bool is_about_backslash(std::string_view id) {
    return id == "string-backslash" || id == "backslash-before-quote";
}

// Finds the positions of findings, which are in the order of their places in a text.
void locate(std::vector<finding> &findings, std::string_view text, position begin) {
    std::size_t passed = 0;
    for (finding &each : findings) {
        begin = begin.after(text.substr(passed, each.offset - passed));
        passed = each.offset;
        each.at = begin;
    }
}

// What the library advises is not meant for scripts, where '' is a quote and statements end by
// themselves.
std::optional<std::string_view> hint_for_script(const quillet::diagnostic &said, char begin) {
    if (said.hint && said.id == "syntax-error" && begin == '\'')
        return "write the string without the letter before it"; // N'it''s'
    if (said.id == "syntax-error" && begin == ';')
        return "close the parentheses before the end of the statement";
    return said.hint;
}

// Keeps the findings in the order of their places.
void add(translation &made, const finding &added) {
    const auto later = std::upper_bound(
        made.findings.begin(), made.findings.end(), added.offset,
        [](std::size_t place, const finding &each) { return place < each.offset; });
    made.findings.insert(later, added);
}

// What the library says, about the statement as it stands in the script.
finding make_finding_of(const quillet::diagnostic &said, translation &made, const piece &statement,
                        const reading &read) {
    finding found{said.severity, said.code,   said.id,     said.message,
                  said.hint,     said.offset, said.length, {}};
    if (read.has_edits()) {
        const reading::place at = read.in_statement(said.offset, said.offset + said.length);
        found.offset = at.begin;
        found.length = at.end - at.begin;
        if (read.has_stand_in(said.message))
            found.message = made.texts.emplace_back(read.in_message(said.message));
    }
    if (said.severity != quillet::severity::error)
        return found;
    if (found.offset < statement.text.size())
        found.hint = hint_for_script(said, statement.text[found.offset]);
    if (read.is_in_placeholder(said.offset))
        return make_finding(misplaced_placeholder, found.offset, found.length);
    if (const placeholder_row *row = unexpected_placeholder(statement, found.offset))
        found.hint = made.texts.emplace_back("for a placeholder, choose --placeholders=" +
                                             std::string(row->name));
    return found;
}

} // namespace

finding make_finding(const own_finding &row, std::size_t offset, std::size_t length) {
    finding made{row.severity, 0, row.id, row.message, std::nullopt, offset, length, {}};
    if (!row.hint.empty())
        made.hint = row.hint;
    return made;
}

translation untranslated(const own_finding &why, std::size_t size) {
    translation made;
    made.code = QUILLET_INVALID_QUERY;
    made.findings.push_back(make_finding(why, 0, size));
    return made;
}

std::optional<backslashes> plain_strings_after(const piece &statement) {
    if (!is_word(statement.verb, "set"))
        return std::nullopt;
    std::vector<std::string> words;
    for (std::string_view left = statement.text; !left.empty();) {
        const std::string_view word = first_word(left);
        if (!word.empty()) {
            words.emplace_back(word);
            std::transform(word.begin(), word.end(), words.back().begin(), in_lower_case);
        }
        left.remove_prefix(std::max<std::size_t>(word.size(), 1));
    }
    if (words.size() < 3 || !std::count(words.begin(), words.end(), "standard_conforming_strings"))
        return std::nullopt;
    const std::string &value = words.back();
    if (value == "on" || value == "true" || value == "yes" || value == "1" || value == "default")
        return backslashes::are_characters;
    if (value == "off" || value == "false" || value == "no" || value == "0")
        return backslashes::escape;
    return std::nullopt;
}

translator::translator(const options &asked)
    : asked_(asked), target_(asked.target()), style_out_(asked.placeholders_out) {
    if (style_out_ == placeholder_style::none)
        style_out_ = target_ == quillet::target::mysql ? placeholder_style::question
                                                       : placeholder_style::dollar;
    limits_.least_severity = asked.remarks.least();
    if (asked.is_strict && limits_.least_severity > quillet::severity::warning)
        limits_.least_severity = quillet::severity::warning;
}

void translator::find_all(translation &made, const piece &statement, const reading &read,
                          backslashes plain_strings) const {
    if (const auto fault = read.misread()) { // the library has read something else
        add(made,
            make_finding(*fault->what, fault->where.begin, fault->where.end - fault->where.begin));
        made.code = QUILLET_INVALID_QUERY;
        return;
    }
    for (const quillet::diagnostic &said : made.made.diagnostics()) {
        const bool is_remark = said.severity <= quillet::severity::warning;
        if (is_remark && !asked_.remarks.has(said.severity, said.id))
            continue;
        if (is_remark && read.is_placeholder(said.offset, said.offset + said.length))
            continue; // it is about the call that stands in
        const finding found = make_finding_of(said, made, statement, read);
        if (plain_strings == backslashes::escape && is_about_backslash(found.id) &&
            has_common_escapes(statement.text.substr(found.offset, found.length)))
            continue;
        made.findings.push_back(found);
    }
}

translation translator::translate(const piece &statement, backslashes plain_strings) const {
    translation made;
    const auto add_own = [&](const own_finding &row, std::size_t begin, std::size_t end) {
        if (asked_.remarks.has(row.severity, row.id))
            add(made, make_finding(row, begin, end - begin));
    };
    if (is_copied(statement.verb)) {
        made.became = outcome::copied;
        made.text = statement.text;
        add_own(copied_statement, 0, statement.verb.size());
        locate(made.findings, statement.text, statement.begin);
        return made;
    }

    const reading read(statement, asked_.placeholders, plain_strings);
    made.made = quillet::translate(read.text(), target_, limits_);
    made.code = made.made.code();
    find_all(made, statement, read, plain_strings);
    const std::size_t bad = find_invalid_utf8(statement.text);
    if (bad != std::string_view::npos)
        add_own(not_utf8, bad, bad + 1);

    if (made.code == QUILLET_SUCCESS && has_text(made, asked_.is_strict)) {
        made.became = outcome::translated;
        made.text = made.made.text();
        if (read.has_edits())
            made.text =
                made.texts.emplace_back(read.written(*made.text, style_out_, made.parameters));
        if (const mark *const comment = first_comment(statement))
            add_own(comment_dropped, comment->begin, comment->end);
    } else {
        if (made.code == QUILLET_SUCCESS)
            made.code = QUILLET_CAN_NOT_TRANSLATE; // a refusal in a cast, or a warning
        made.became =
            made.code == QUILLET_INVALID_QUERY ? outcome::not_understood : outcome::refused;
    }
    locate(made.findings, statement.text, statement.begin);
    made.has_warnings =
        std::any_of(made.findings.begin(), made.findings.end(), [](const finding &each) {
            return each.severity == quillet::severity::warning;
        });
    return made;
}

} // namespace script
