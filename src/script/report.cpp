#include "report.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "output.h"
#include "page_text.h"
#include "source.h"

namespace script {

namespace {

using json = nlohmann::ordered_json;

// What the page tells apart.
enum class kind { translated, with_warnings, refused, not_understood, copied, between };

struct kind_row {
    std::string_view key;
    std::string_view name;
};

constexpr kind_row kinds[] = {
    {"translated", "Translated"}, {"with-warnings", "Translated with warnings"},
    {"refused", "Refused"},       {"not-understood", "Not understood"},
    {"copied", "Copied"},         {"between", "Between statements"},
};

kind kind_of(const translation &made) {
    switch (made.became) {
    case outcome::translated: return made.has_warnings ? kind::with_warnings : kind::translated;
    case outcome::refused: return kind::refused;
    case outcome::not_understood: return kind::not_understood;
    case outcome::copied: break;
    }
    return kind::copied;
}

// A text that no browser takes for the end of the data, whatever bytes it was made of.
std::string text_of(const json &value) {
    const std::string dumped = value.dump(-1, ' ', true, json::error_handler_t::replace);
    std::string made;
    made.reserve(dumped.size());
    for (const char c : dumped) {
        if (c == '<')
            made.append("\\u003c");
        else
            made.push_back(c);
    }
    return made;
}

bool is_own(std::string_view id) {
    return std::any_of(std::begin(own_findings), std::end(own_findings),
                       [id](const own_finding *row) { return row->id == id; });
}

struct place_in_docs {
    std::string page;
    std::string anchor; // "" for none
};

place_in_docs explanation_of(const std::string &id, quillet::severity severity,
                             quillet::target target) {
    if (is_own(id))
        return {"scripts.md", ""};
    switch (severity) {
    case quillet::severity::error: return {"embedding.md", "diagnostics"};
    case quillet::severity::refusal: return {"mysql.md", "what-is-refused"};
    default: break;
    }
    const std::string prefix = target == quillet::target::postgresql ? "postgresql-" : "";
    return {"differences.md", prefix + id};
}

json settings_of(const options &asked) {
    json made = json::array();
    const auto add_style = [&](const std::string &option, placeholder_style style) {
        const placeholder_row *const row = row_of(style);
        if (row)
            made.push_back(option + "=" + std::string(row->name));
        else if (style == placeholder_style::any)
            made.push_back(option + "=auto");
    };
    if (asked.input == format::json)
        made.push_back("--input=json");
    add_style("--placeholders", asked.placeholders);
    add_style("--placeholders-out", asked.placeholders_out);
    if (asked.plain_strings == backslashes::escape)
        made.push_back("--backslash-escapes");
    for (const std::string &each : asked.remarks.as_options())
        made.push_back(each);
    if (asked.is_strict)
        made.push_back("--strict");
    return made;
}

// Where the findings of a text begin and end, and its own ends; each once, in order.
std::vector<std::size_t> borders_of(std::string_view text, const std::vector<finding> &findings) {
    std::vector<std::size_t> made = {0, text.size()};
    for (const finding &each : findings) {
        made.push_back(each.offset);
        made.push_back(each.offset + each.length);
    }
    std::sort(made.begin(), made.end());
    made.erase(std::unique(made.begin(), made.end()), made.end());
    return made;
}

} // namespace

class report::content {
public:
    explicit content(const options &asked)
        : asked_(asked), to_(asked.report), rows_(std::tmpfile()) {
        if (!rows_)
            throw_error();
    }
    ~content() {
        if (rows_)
            std::fclose(rows_);
    }
    content(const content &) = delete;
    content &operator=(const content &) = delete;

    void add(kind became, const std::string &file, const piece &statement,
             const std::optional<std::string_view> &text, const std::vector<finding> &findings,
             const std::string &id);
    void finish();

private:
    using id_key = std::pair<std::string, quillet::severity>;

    // What all findings of an id have in common, and how many there are.
    struct id_row {
        std::size_t index;
        std::string message;
        std::optional<std::string> hint;
        bool varies = false; // whether another one has another message
        std::size_t places = 0;
        std::size_t statements = 0;
        std::size_t last_statement = 0;
    };

    struct file_row {
        std::size_t index;
        std::size_t count = 0;
    };

    [[noreturn]] static void throw_error() { throw file_error::of("a temporary file"); }

    id_row &row_of(const finding &found);
    file_row &row_of(const std::string &file);
    json object_of(const finding &found, const std::vector<std::size_t> &borders);
    json object_of(const id_key &key, const id_row &row) const;
    std::string head() const;
    void write_rows();

    const options &asked_;
    output to_;
    std::FILE *rows_;
    std::size_t count_ = 0;
    std::array<std::size_t, std::size(kinds)> outcomes_{};
    std::map<std::string, file_row> files_;
    std::map<id_key, id_row> ids_;
};

report::content::id_row &report::content::row_of(const finding &found) {
    const auto [at, is_new] = ids_.try_emplace({std::string(found.id), found.severity});
    id_row &row = at->second;
    if (is_new) {
        row.index = ids_.size() - 1;
        row.message = found.message;
        if (found.hint)
            row.hint = *found.hint;
    }
    return row;
}

report::content::file_row &report::content::row_of(const std::string &file) {
    return files_.try_emplace(file, file_row{files_.size()}).first->second;
}

// Texts that are those of the id are left out.
json report::content::object_of(const finding &found, const std::vector<std::size_t> &borders) {
    const auto number_of = [&](std::size_t place) {
        return std::lower_bound(borders.begin(), borders.end(), place) - borders.begin();
    };
    id_row &row = row_of(found);
    ++row.places;
    if (row.last_statement != count_)
        ++row.statements;
    row.last_statement = count_;

    json made = {{"id", row.index},
                 {"line", found.at.line},
                 {"column", found.at.column},
                 {"from", number_of(found.offset)},
                 {"to", number_of(found.offset + found.length)}};
    if (found.message != row.message) {
        row.varies = true;
        made["message"] = found.message;
    }
    if (found.hint != row.hint)
        made["hint"] = found.hint ? json(*found.hint) : json();
    return made;
}

// The source comes in parts, between which its findings begin and end: they need no offsets, which
// would not be those of the text that a browser reads.
void report::content::add(kind became, const std::string &file, const piece &statement,
                          const std::optional<std::string_view> &text,
                          const std::vector<finding> &findings, const std::string &id) {
    ++count_;
    ++outcomes_[static_cast<std::size_t>(became)];
    file_row &in_file = row_of(file);
    ++in_file.count;
    const std::vector<std::size_t> borders = borders_of(statement.text, findings);

    json made = {{"outcome", static_cast<int>(became)},
                 {"file", in_file.index},
                 {"line", statement.begin.line},
                 {"column", statement.begin.column}};
    if (!id.empty() && id != "null")
        made["name"] = id;
    json &source = made["source"] = json::array();
    for (std::size_t next = 1; next < borders.size(); ++next)
        source.push_back(
            statement.text.substr(borders[next - 1], borders[next] - borders[next - 1]));
    if (became != kind::copied)
        made["text"] = text ? json(*text) : json();
    json &said = made["findings"] = json::array();
    for (const finding &each : findings)
        said.push_back(object_of(each, borders));

    const std::string row = (count_ > 1 ? ",\n" : "\n") + text_of(made);
    if (std::fwrite(row.data(), 1, row.size(), rows_) != row.size())
        throw_error();
}

json report::content::object_of(const id_key &key, const id_row &row) const {
    const auto &[id, severity] = key;
    const place_in_docs at = explanation_of(id, severity, asked_.target());
    std::string link = asked_.docs;
    if (!link.empty() && link.back() != '/')
        link.push_back('/');
    link += at.page + (at.anchor.empty() ? "" : "#" + at.anchor);
    return {{"id", id},
            {"severity", name_of(severity)},
            {"places", row.places},
            {"statements", row.statements},
            {"message", row.message},
            {"varies", row.varies},
            {"hint", row.hint ? json(*row.hint) : json()},
            {"page", at.page},
            {"link", link}};
}

// The object of the page up to its statements.
std::string report::content::head() const {
    json made = {{"version", QUILLET_VERSION},
                 {"builder", asked_.to},
                 {"is_strict", asked_.is_strict},
                 {"settings", settings_of(asked_)}};
    json &outcomes = made["outcomes"] = json::array();
    for (std::size_t at = 0; at < std::size(kinds); ++at)
        outcomes.push_back(
            {{"key", kinds[at].key}, {"name", kinds[at].name}, {"count", outcomes_[at]}});
    made["files"] = std::vector<json>(files_.size());
    for (const auto &[name, row] : files_)
        made["files"][row.index] = {{"name", name}, {"count", row.count}};
    made["ids"] = std::vector<json>(ids_.size());
    for (const auto &[key, row] : ids_)
        made["ids"][row.index] = object_of(key, row);
    std::string text = text_of(made);
    text.pop_back();
    return text + ",\n\"statements\":[";
}

void report::content::write_rows() {
    std::array<char, 1 << 16> some{};
    if (std::fflush(rows_) != 0 || std::fseek(rows_, 0, SEEK_SET) != 0)
        throw_error();
    while (const std::size_t count = std::fread(some.data(), 1, some.size(), rows_))
        to_.write({some.data(), count});
    if (std::ferror(rows_))
        throw_error();
}

void report::content::finish() {
    to_.write(page_head);
    to_.write(head());
    write_rows();
    to_.write("\n]}");
    to_.write(page_tail);
    to_.finish();
}

report::report(const options &asked) : content_(std::make_unique<content>(asked)) {}
report::~report() = default;

void report::add(const std::string &file, const piece &statement, const translation &made,
                 const std::string &id) {
    content_->add(kind_of(made), file, statement, made.text, made.findings, id);
}

void report::add(const std::string &file, const piece &other, const finding &found) {
    content_->add(kind::between, file, other, std::nullopt, {found}, "");
}

void report::finish() { content_->finish(); }

} // namespace script
