// Splits any script, translates its statements and writes it again, and checks what must hold of
// the outcome. The first bytes choose how.

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "comments.h"
#include "output.h"
#include "parted_source.h"
#include "splitter.h"
#include "support.h"
#include "translator.h"
#include "writer.h"

using namespace script;

namespace {

constexpr const char *builders[] = {"postgresql", "mysql", "type_view", "tree"};
constexpr placeholder_style styles[] = {placeholder_style::none,     placeholder_style::dollar,
                                        placeholder_style::question, placeholder_style::named,
                                        placeholder_style::format,   placeholder_style::pyformat,
                                        placeholder_style::any};

struct kept_mark {
    mark_kind kind;
    std::size_t begin;
    std::size_t end;
    bool is_plain;
    bool is_behind_limit;
    bool operator==(const kept_mark &) const = default;
};

struct kept_piece {
    piece_kind kind;
    std::string text;
    std::size_t offset;
    std::size_t line;
    std::size_t column;
    std::string verb;
    bool is_ended_by_command;
    std::vector<kept_mark> marks;
    bool operator==(const kept_piece &) const = default;
};

kept_piece kept(const piece &given) {
    kept_piece made{given.kind,
                    std::string(given.text),
                    given.offset,
                    given.begin.line,
                    given.begin.column,
                    {},
                    false,
                    {}};
    if (given.kind != piece_kind::statement)
        return made;
    made.verb = given.verb;
    made.is_ended_by_command = given.is_ended_by_command;
    for (const mark &each : given.marks)
        made.marks.push_back(
            {each.kind, each.begin, each.end, each.is_plain, each.is_behind_limit});
    return made;
}

std::vector<kept_piece> split(std::string_view text, backslashes plain_strings, std::size_t size) {
    parted_source from(text, size);
    splitter pieces(from, plain_strings);
    std::vector<kept_piece> made;
    while (const piece *next = pieces.next())
        made.push_back(kept(*next));
    return made;
}

// What may stand between pieces: blanks and what separates statements.
bool is_dropped(std::string_view text) {
    return text.find_first_not_of(" \t\n\r\f\v;\\") == std::string_view::npos;
}

void check_pieces(std::string_view text, const std::vector<kept_piece> &pieces) {
    std::size_t passed = 0;
    position at;
    for (const kept_piece &each : pieces) {
        require(each.offset >= passed, "pieces overlap");
        const std::string_view before = text.substr(passed, each.offset - passed);
        require(is_dropped(before), "something is in no piece");
        require(text.substr(each.offset, each.text.size()) == each.text, "a piece of another text");
        require(!each.text.empty(), "an empty piece");
        at = at.after(before);
        require(each.line == at.line && each.column == at.column, "another position");
        at = at.after(each.text);
        passed = each.offset + each.text.size();
        std::size_t mark_end = 0;
        for (const kept_mark &mark : each.marks) {
            require(mark.begin >= mark_end && mark.end > mark.begin, "marks overlap");
            mark_end = mark.end;
        }
        require(mark_end <= each.text.size(), "a mark beyond its statement");
    }
    require(is_dropped(text.substr(passed)), "the end is in no piece");
}

void check_translation(const piece &statement, const translation &made) {
    const bool has_text = made.became == outcome::translated || made.became == outcome::copied;
    require(made.text.has_value() == has_text, "a text must come with success alone");
    require(has_text || !made.findings.empty(), "no reason");
    if (made.became == outcome::copied)
        require(made.text == statement.text, "a copy differs");
    std::size_t last = 0;
    for (const finding &each : made.findings) {
        require(each.offset <= statement.text.size(), "a place beyond the statement");
        require(each.length <= statement.text.size() - each.offset, "an end beyond the statement");
        require(each.offset >= last, "findings out of order");
        last = each.offset;
        const position at = statement.begin.after(statement.text.substr(0, each.offset));
        require(each.at.line == at.line && each.at.column == at.column, "another position");
    }
}

struct outcomes {
    std::size_t with_text = 0;
    std::size_t without_text = 0;
    std::string written;
};

outcomes run(std::string_view text, const options &asked) {
    outcomes made;
    backslashes plain_strings = asked.plain_strings;
    output to(std::nullopt);
    const auto writes = make_sql_writer(to, asked);
    const translator translates(asked);
    text_source from(text);
    splitter pieces(from, plain_strings);
    writes->begin_file("fuzz");
    while (const piece *next = pieces.next()) {
        if (next->kind != piece_kind::statement) {
            writes->write_between(*next);
            continue;
        }
        const translation translated = translates.translate(*next, plain_strings);
        check_translation(*next, translated);
        ++(translated.text ? made.with_text : made.without_text);
        writes->write_statement(*next, translated);
        require(json_line("fuzz", asked.to, *next, translated).back() == '\n', "no line of JSON");
        if (const auto meaning = plain_strings_after(*next)) {
            plain_strings = *meaning;
            pieces.set_plain_strings(plain_strings);
        }
    }
    writes->end_file();
    to.finish();
    made.written = take_print();
    return made;
}

// Whether a script does not come back: it has something without an end, may read strings otherwise
// in its course, has a command without a name, which ends the one before it, or has a statement in
// a line with COPY, before whose data it may become a comment of some lines.
bool is_open(std::string_view text, const std::vector<kept_piece> &pieces) {
    bool is_in_line_of_copy = false;
    for (const kept_piece &each : pieces) {
        if (each.kind == piece_kind::command && each.text.starts_with("\\\\"))
            return true;
        if (each.kind == piece_kind::blank && each.text.find('\n') != std::string::npos)
            is_in_line_of_copy = false;
        if (each.kind != piece_kind::statement)
            continue;
        if (each.verb.size() == 3 || is_in_line_of_copy)
            return true;
        is_in_line_of_copy = each.verb.size() == 4;
    }
    const std::string more = std::string(text) + "\n;select 1\n";
    const auto longer = split(more, backslashes::are_characters, more.size());
    return longer.size() < 2 || longer[longer.size() - 2].text != "select 1";
}

void check_written(std::string_view text, const std::vector<kept_piece> &pieces,
                   const outcomes &made) {
    if (is_open(text, pieces))
        return;
    const auto again = split(made.written, backslashes::are_characters, made.written.size());
    const auto statements = static_cast<std::size_t>(
        std::count_if(again.begin(), again.end(),
                      [](const kept_piece &each) { return each.kind == piece_kind::statement; }));
    require(statements == made.with_text, "another number of statements is written");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    if (size < 4)
        return 0;
    const std::string text(reinterpret_cast<const char *>(data) + 4, size - 4);
    options asked;
    asked.to = builders[data[0] % std::size(builders)];
    asked.placeholders = styles[data[1] % std::size(styles)];
    asked.placeholders_out = styles[data[2] % (std::size(styles) - 1)];
    asked.plain_strings = data[0] & 0x80 ? backslashes::escape : backslashes::are_characters;
    asked.is_strict = (data[0] & 0x40) != 0;
    const std::size_t part = 1 + data[3] % 8;

    const auto pieces = split(text, asked.plain_strings, text.size());
    check_pieces(text, pieces);
    require(split(text, asked.plain_strings, part) == pieces, "other pieces from small parts");
    const outcomes made = run(text, asked);
    if (asked.to == "postgresql" && asked.plain_strings == backslashes::are_characters)
        check_written(text, pieces, made);
    return 0;
}
