#include "options.h"

#include <CLI/CLI.hpp>

#include <iostream>

#include "known_findings.h"
#include "output.h"

namespace script {

namespace {

// What is given on the command line as words.
struct words {
    std::string input = "sql";
    std::optional<std::string> output;
    std::string placeholders;
    std::string placeholders_out;
    bool has_escapes = false;
};

std::vector<std::string> placeholder_names() {
    std::vector<std::string> names;
    for (const placeholder_row &row : placeholder_rows)
        names.emplace_back(row.name);
    return names;
}

placeholder_style placeholder_style_of(const std::string &name) {
    for (const placeholder_row &row : placeholder_rows)
        if (row.name == name)
            return row.style;
    return name == "auto" ? placeholder_style::any : placeholder_style::none;
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

// An option that may come again and again, each time with what it does.
void add_each(CLI::App &app, const std::string &name, const std::string &type,
              const std::string &help, const std::function<void(const std::string &)> &take) {
    app.add_option_function<std::string>(name, take, help)
        ->trigger_on_parse()
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
        ->type_name(type);
}

void add_input(CLI::App &app, options &asked, words &given) {
    std::vector<std::string> styles = placeholder_names();
    styles.emplace_back("auto");
    app.add_option("FILE", asked.files, "Scripts, one after the other");
    app.add_option("--input", given.input,
                   R"(The input: sql, or json for lines of {"id": 1, "statement": "..."})")
        ->check(CLI::IsMember({"sql", "json"}))
        ->type_name("FORMAT")
        ->capture_default_str();
    app.add_option("--placeholders", given.placeholders,
                   "Placeholders in the input: dollar ($1), question (?), named (:name),\n"
                   "format (%s), pyformat (%(name)s), or auto, where a statement's\n"
                   "first one decides")
        ->check(CLI::IsMember(styles))
        ->type_name("STYLE");
    app.add_flag("--backslash-escapes", given.has_escapes,
                 "A backslash in a string escapes what follows, as with\n"
                 "standard_conforming_strings off");
}

void add_output(CLI::App &app, options &asked, words &given) {
    app.add_option("--to", asked.to, "The builder")
        ->check(CLI::IsMember({"mysql", "postgresql", "type_view", "tree"}))
        ->type_name("BUILDER")
        ->capture_default_str();
    app.add_option("-o,--output", asked.output, "Write there, once all is done")->type_name("FILE");
    app.add_option("--format", given.output,
                   "The output: sql, or json for an object a line and statement;\n"
                   "without it, as the input")
        ->check(CLI::IsMember({"sql", "json"}))
        ->type_name("FORMAT");
    app.add_option("--placeholders-out", given.placeholders_out,
                   "Those in the output; without it question for mysql, otherwise dollar")
        ->check(CLI::IsMember(placeholder_names()))
        ->type_name("STYLE");
    app.add_option("--report", asked.report, "Write a page about all statements there")
        ->type_name("FILE.html");
    app.add_option("--docs", asked.docs, "Where the report's links find the documentation")
        ->type_name("URL")
        ->capture_default_str();
}

void add_messages(CLI::App &app, options &asked) {
    add_each(app, "--warn", "ID|all|warnings|none",
             "Say this warning or note, all of them, the warnings alone,\nor none",
             [&asked](const std::string &what) { choose_remarks(asked.remarks, what, true); });
    add_each(app, "--no-warn", "ID|all", "Do not say this warning or note, or any",
             [&asked](const std::string &what) { choose_remarks(asked.remarks, what, false); });
    app.add_flag("--notes", asked.shows_each_note, "Say a note each time, not once a file");
    app.add_flag("--strict", asked.is_strict,
                 "A warning counts as a refusal: its text is withheld");
    app.add_option("--color", asked.color, "Colours in messages: auto, always or never")
        ->check(CLI::IsMember({"auto", "always", "never"}))
        ->type_name("WHEN")
        ->capture_default_str();
}

void write_ids() {
    output to(std::nullopt);
    to.write(list_of_known_findings());
    to.finish();
    throw CLI::Success(); // the run ends here
}

} // namespace

quillet::target options::target() const {
    return static_cast<quillet::target>(quillet_get_builder_id(to.c_str()));
}

std::optional<options> read_options(int argc, char **argv, int *status) {
    constexpr int usage_error = 2;
    options asked;
    asked.docs = QUILLET_DOCS;
    words given;
    CLI::App app(
        "Translates scripts of SQL statements in the PostgreSQL dialect, and says what is\n"
        "different, refused or not understood. Without a FILE, or for -, reads standard\n"
        "input.",
        "quillet-script");
    add_input(app, asked, given);
    add_output(app, asked, given);
    add_messages(app, asked);
    app.add_flag_callback("--list-ids", write_ids, "Print each id with its severity and message");
    app.set_version_flag("--version", "quillet-script " QUILLET_VERSION, "Print the version");
    app.footer("The exit status is 0 if all was translated or copied, 1 if something was not, and\n"
               "2 for a wrong option or a file that cannot be read or written.");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        *status = app.exit(error) == 0 ? 0 : usage_error;
        return std::nullopt;
    }

    asked.input = given.input == "json" ? format::json : format::sql;
    asked.output_format = given.output.value_or(given.input) == "json" ? format::json : format::sql;
    if (asked.input == format::json && asked.output_format == format::sql) {
        std::cerr << "--input json goes with --format json, which gives the ids back\n";
        *status = usage_error;
        return std::nullopt;
    }
    asked.placeholders = placeholder_style_of(given.placeholders);
    asked.placeholders_out = placeholder_style_of(given.placeholders_out);
    if (given.has_escapes)
        asked.plain_strings = backslashes::escape;
    if (asked.files.empty())
        asked.files.emplace_back("-");
    return asked;
}

} // namespace script
