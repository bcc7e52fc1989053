// Translates whole scripts: quillet-script.

#include <csignal>
#include <cstdio>
#include <exception>
#include <memory>
#include <new>
#include <optional>
#include <string>

#include "script/comments.h"
#include "script/json_input.h"
#include "script/messages.h"
#include "script/options.h"
#include "script/output.h"
#include "script/report.h"
#include "script/source.h"
#include "script/splitter.h"
#include "script/summary.h"
#include "script/translator.h"
#include "script/writer.h"

namespace {

using namespace script;

enum status { all_translated = 0, some_not_translated = 1, could_not_run = 2 };

// Writes what there is before it waits for more.
class flushing_source final : public source {
public:
    flushing_source(source &from, output &to) : from_(from), to_(to) {}

    std::size_t read(char *to, std::size_t room) override {
        to_.flush();
        return from_.read(to, room);
    }

private:
    source &from_;
    output &to_;
};

// One run over all files.
class run {
public:
    explicit run(const options &asked)
        : asked_(asked), to_(asked.output), messages_(asked), translator_(asked),
          writer_(asked.output_format == format::json ? make_json_writer(to_, asked)
                                                      : make_sql_writer(to_, asked)) {
        if (asked.report)
            report_.emplace(asked);
    }

    status do_all() {
        for (const std::string &name : asked_.files)
            do_file(name);
        to_.finish();
        if (report_)
            report_->finish();
        say_summary();
        return summary_.has_failure() ? some_not_translated : all_translated;
    }

private:
    void do_file(const std::string &name) {
        file_source from(name);
        messages_.begin_file(from.name());
        writer_->begin_file(from.name());
        if (asked_.input == format::json)
            do_lines(from);
        else
            do_script(from);
        writer_->end_file();
    }

    void do_script(file_source &from) {
        backslashes plain_strings = asked_.plain_strings;
        flushing_source flushed(from, to_);
        splitter pieces(flushed, plain_strings);
        while (const piece *next = pieces.next()) {
            if (next->kind != piece_kind::statement) {
                do_between(from.name(), *next);
                continue;
            }
            const translation made = translator_.translate(*next, plain_strings);
            writer_->write_statement(*next, made);
            take(from, *next, made);
            if (const auto meaning = plain_strings_after(*next)) {
                plain_strings = *meaning;
                pieces.set_plain_strings(plain_strings);
            }
        }
    }

    void do_between(const std::string &file, const piece &other) {
        writer_->write_between(other);
        const own_finding *said = nullptr;
        if (other.kind == piece_kind::command && asked_.output_format == format::sql &&
            asked_.target() != quillet::target::postgresql)
            said = &psql_command;
        if (other.kind == piece_kind::block_comment && !has_end(other.text))
            said = &unended_comment;
        if (!said || !asked_.remarks.has(said->severity, said->id))
            return;
        finding found = make_finding(*said, 0, other.text.size());
        found.at = other.begin;
        messages_.show(other, found);
        if (report_)
            report_->add(file, other, found);
    }

    // A line has one object for it, whatever is in it.
    void do_lines(file_source &from) {
        flushing_source flushed(from, to_);
        json_input lines(flushed);
        for (json_statement next; lines.read(next);) {
            const std::string_view text = next.text ? std::string_view(*next.text) : lines.line();
            const only_statement only(text, asked_.plain_strings);
            const own_finding *fault = !next.text    ? &not_json
                                       : !only.get() ? &not_one_statement
                                                     : nullptr;
            piece whole;
            whole.kind = piece_kind::statement;
            whole.text = text;
            const piece &statement = fault ? whole : *only.get();
            const translation made = fault ? untranslated(*fault, text.size())
                                           : translator_.translate(statement, asked_.plain_strings);
            to_.write(json_line(from.name(), asked_.to, statement, made, next.id));
            take(from, statement, made, next.id);
        }
    }

    // Does with a translated statement what does not depend on how it is written.
    void take(const file_source &from, const piece &statement, const translation &made,
              const std::string &id = "") {
        summary_.add(made);
        if (report_)
            report_->add(from.name(), statement, made, id);
        if (asked_.output_format == format::sql)
            for (const finding &each : made.findings)
                messages_.show(statement, each);
        constexpr std::size_t some = 64;
        if (summary_.statements() % some == 0)
            messages_.show_progress(from.bytes_read(), from.size(), summary_.statements());
    }

    void say_summary() {
        std::string line = summary_.line();
        if (const std::size_t more = messages_.unsaid_notes(); more > 0)
            line += "; " + std::to_string(more) + (more == 1 ? " more note" : " more notes") +
                    " (--notes shows each)";
        messages_.say(line);
    }

    const options &asked_;
    output to_;
    messages messages_;
    translator translator_;
    std::unique_ptr<writer> writer_;
    std::optional<report> report_;
    summary summary_;
};

} // namespace

int main(int argc, char **argv) {
    std::signal(SIGPIPE, SIG_IGN); // a closed pipe is an error like others
    try {
        int status = all_translated;
        const std::optional<options> asked = read_options(argc, argv, &status);
        return asked ? run(*asked).do_all() : status;
    } catch (const std::bad_alloc &) {
        std::fputs("quillet-script: there is not enough memory\n", stderr);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "quillet-script: %s\n", error.what());
    }
    return could_not_run;
}
