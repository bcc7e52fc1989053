#include "options.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <map>

#include "finding.h"

namespace script {

namespace {

const std::map<std::string, placeholder_style> &placeholder_styles() {
    static const auto made = [] {
        std::map<std::string, placeholder_style> styles;
        for (const placeholder_row &row : placeholder_rows)
            styles.emplace(row.name, row.style);
        return styles;
    }();
    return made;
}

// An option that may come again and again, each time with what it does.
void add_each(CLI::App &app, const std::string &name, const std::string &type,
              const std::string &help, const std::function<void(const std::string &)> &take) {
    app.add_option_function<std::string>(name, take, help)
        ->trigger_on_parse()
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
        ->type_name(type);
}

bool is_known_id(const std::string &id) {
    for (const own_finding *own : own_findings)
        if (own->id == id)
            return true;
    quillet_diagnostic known{};
    for (std::size_t i = 0; quillet_get_known_diagnostic(i, &known) == 1; ++i)
        if (known.id == id)
            return true;
    return false;
}

void choose_remarks(wanted_remarks &remarks, const std::string &what, bool is_wanted) {
    if (what == "all")
        remarks.set_all(is_wanted, is_wanted);
    else if (what == "warnings" && is_wanted)
        remarks.set_all(true, false);
    else if (what == "none" && is_wanted)
        remarks.set_all(false, false);
    else if (is_known_id(what))
        remarks.set(what, is_wanted);
    else
        throw CLI::ValidationError(is_wanted ? "--warn" : "--no-warn", "no such id: " + what);
}

} // namespace

void wanted_remarks::set_all(bool warnings, bool notes) {
    warnings_ = warnings;
    notes_ = notes;
    choices_.clear();
}

void wanted_remarks::set(const std::string &id, bool is_wanted) {
    choices_.push_back({id, is_wanted});
}

bool wanted_remarks::has(quillet::severity severity, std::string_view id) const {
    for (auto last = choices_.rbegin(); last != choices_.rend(); ++last)
        if (last->id == id)
            return last->is_wanted;
    return severity == quillet::severity::warning ? warnings_ : notes_;
}

quillet::severity wanted_remarks::least() const {
    bool has_choice = false;
    for (const choice &each : choices_)
        has_choice |= each.is_wanted;
    return notes_ || has_choice ? quillet::severity::note
           : warnings_          ? quillet::severity::warning
                                : quillet::severity::refusal;
}

quillet::target options::target() const {
    return static_cast<quillet::target>(quillet_get_builder_id(to.c_str()));
}

std::optional<options> read_options(int argc, char **argv, int *status) {
    options asked;
    asked.docs = QUILLET_DOCS;
    std::string input = "sql";
    std::optional<std::string> output;
    bool has_escapes = false;

    CLI::App app(
        "Translates a script of SQL statements in the PostgreSQL dialect, and says what is\n"
        "different, refused or not understood. Without a FILE, or for -, reads standard input.",
        "quillet-script");
    app.add_option("FILE", asked.files, "Scripts, one after the other");
    app.add_option("--to", asked.to, "What to write: mysql, postgresql, type_view or tree")
        ->check(CLI::IsMember({"mysql", "postgresql", "type_view", "tree"}))
        ->type_name("BUILDER")
        ->capture_default_str();
    app.add_option("-o,--output", asked.output, "Write there, once all is done")->type_name("FILE");
    app.add_option("--format", output,
                   "The output: sql, or json for an object a line and statement [as the input]")
        ->check(CLI::IsMember({"sql", "json"}))
        ->type_name("FORMAT");
    app.add_option("--input", input,
                   "The input: sql, or json for lines of {\"id\": ..., \"statement\": ...}")
        ->check(CLI::IsMember({"sql", "json"}))
        ->type_name("FORMAT")
        ->capture_default_str();

    std::map<std::string, placeholder_style> styles_in = placeholder_styles();
    styles_in.emplace("auto", placeholder_style::any);
    app.add_option("--placeholders", asked.placeholders,
                   "Placeholders in the input: dollar ($1), question (?), named (:name),\n"
                   "format (%s), pyformat (%(name)s), or auto: a statement's first one decides")
        ->transform(CLI::Transformer(styles_in))
        ->type_name("STYLE");
    app.add_option("--placeholders-out", asked.placeholders_out,
                   "Their style in the output; MySQL's is question, that of the others dollar")
        ->transform(CLI::Transformer(placeholder_styles()))
        ->type_name("STYLE");
    app.add_flag(
        "--backslash-escapes", has_escapes,
        "A backslash in a string escapes what follows, as with standard_conforming_strings off");

    add_each(app, "--warn", "ID|all|warnings|none",
             "Say this warning or note, all of them, the warnings alone, or none",
             [&](const std::string &what) { choose_remarks(asked.remarks, what, true); });
    add_each(app, "--no-warn", "ID|all", "Do not say this warning or note, or any",
             [&](const std::string &what) { choose_remarks(asked.remarks, what, false); });
    app.add_flag("--notes", asked.shows_each_note, "Say a note each time, not once a file");
    app.add_flag("--strict", asked.is_strict,
                 "A warning counts as a refusal: its text is withheld");
    app.add_option("--color", asked.color, "Colours in messages: auto, always or never")
        ->check(CLI::IsMember({"auto", "always", "never"}))
        ->type_name("WHEN")
        ->capture_default_str();

    app.add_option("--report", asked.report, "Write a page about all statements there")
        ->type_name("FILE.html");
    app.add_option("--docs", asked.docs,
                   "Where the report finds differences.md and the other pages")
        ->type_name("URL")
        ->capture_default_str();
    app.set_version_flag("--version", "quillet-script " QUILLET_VERSION, "Print the version");
    app.footer(
        "The exit status is 0 if all was translated or copied, 1 if something was not, and 2 for\n"
        "a wrong option or a file that cannot be read or written.");

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        const int code = app.exit(error);
        *status = code == 0 ? 0 : 2;
        return std::nullopt;
    }
    asked.input = input == "json" ? format::json : format::sql;
    asked.output_format = output.value_or(input) == "json" ? format::json : format::sql;
    if (asked.input == format::json && asked.output_format == format::sql) {
        std::cerr << "--input json goes with --format json, which gives the ids back\n";
        *status = 2;
        return std::nullopt;
    }
    if (has_escapes)
        asked.plain_strings = backslashes::escape;
    if (asked.files.empty())
        asked.files.emplace_back("-");
    return asked;
}

} // namespace script
