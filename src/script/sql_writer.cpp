#include <algorithm>

#include "comments.h"
#include "words.h"
#include "writer.h"

namespace script {

namespace {

// Writes the script again. What is taken out of it stays as a comment.
class sql_writer final : public writer {
public:
    sql_writer(output &to, const options &asked) : to_(to), target_(asked.target()) {}

    void begin_file(const std::string &) override {
        newline_ = "\n";
        has_newline_ = false;
    }

    void write_statement(const piece &statement, const translation &made) override {
        end_comment({});
        if (!made.text) {
            write_as_comment(statement, made);
            holds_back_command_ = statement.is_ended_by_command;
            return;
        }
        put(*made.text);
        if (!statement.is_ended_by_command || !keeps_commands())
            put(";");
    }

    void write_between(const piece &other) override {
        switch (other.kind) {
        case piece_kind::line_comment:
            end_comment({});
            put(line_comment_for(target_, other.text));
            break;
        case piece_kind::block_comment:
            end_comment({});
            put(block_comment_for(target_, other.text));
            break;
        case piece_kind::command: write_command(other.text); break;
        case piece_kind::blank:
            learn_newline(other.text);
            put_blanks(end_comment(other.text));
            break;
        default: put(other.text); break;
        }
        is_behind_line_comment_ = other.kind == piece_kind::line_comment;
    }

    void end_file() override {
        end_comment({});
        waiting_blanks_.clear();
        if (!is_at_line_start_)
            put(newline_);
    }

private:
    bool keeps_commands() const { return target_ == quillet::target::postgresql; }

    void put(std::string_view text) {
        if (text.empty())
            return;
        if (text != newline_)
            to_.write(waiting_blanks_);
        waiting_blanks_.clear();
        to_.write(text);
        const std::size_t line = text.rfind('\n');
        const std::string_view last = line == std::string_view::npos ? text : text.substr(line + 1);
        const bool is_blank_line = std::all_of(last.begin(), last.end(), is_blank);
        is_at_line_start_ = is_blank_line && (line != std::string_view::npos || is_at_line_start_);
    }

    // Those at the end are written when something follows on their line.
    void put_blanks(std::string_view text) {
        const std::size_t line = text.rfind('\n') + 1; // 0 without one
        put(text.substr(0, line));
        waiting_blanks_.append(text.substr(line));
    }

    // Statements and commands that became comments end with their line. Returns what is left to
    // write of the blanks that follow.
    std::string_view end_comment(std::string_view blanks) {
        if (is_behind_line_comment_ && !blanks.empty() && blanks[0] == '\r' &&
            !blanks.starts_with("\r\n"))
            put(newline_); // only psql takes it for the end of a line
        is_behind_line_comment_ = false;
        if (!is_in_comment_)
            return blanks;
        is_in_comment_ = false;
        const std::size_t line = blanks.find('\n');
        if (line == std::string_view::npos) {
            put(newline_);
            return {};
        }
        put(newline_);
        return blanks.substr(line + 1);
    }

    void learn_newline(std::string_view blanks) {
        const std::size_t line = blanks.find('\n');
        if (has_newline_ || line == std::string_view::npos)
            return;
        has_newline_ = true;
        newline_ = line > 0 && blanks[line - 1] == '\r' ? "\r\n" : "\n";
    }

    void put_comment_lines(std::string_view text) {
        for (bool is_first = true; is_first || !text.empty(); is_first = false) {
            const std::size_t end = std::min(text.find('\n'), text.size());
            std::string_view line = text.substr(0, end);
            if (!line.empty() && line.back() == '\r')
                line.remove_suffix(1);
            text.remove_prefix(std::min(end + 1, text.size()));
            if (!is_first || !is_at_line_start_)
                put(newline_);
            put(line.empty() ? "--" : "-- ");
            put_line(line);
        }
    }

    // A carriage return would end the comment for psql.
    void put_line(std::string_view line) {
        for (std::size_t cr = line.find('\r'); cr != std::string_view::npos; cr = line.find('\r')) {
            put(line.substr(0, cr));
            put(" ");
            line.remove_prefix(cr + 1);
        }
        put(line);
    }

    void write_as_comment(const piece &statement, const translation &made) {
        for (const finding &each : made.findings) {
            if (each.severity == quillet::severity::note)
                continue;
            std::string line = std::to_string(each.at.line);
            line.append(":").append(std::to_string(each.at.column)).append(": ");
            line.append(name_of(each.severity)).append(": ").append(each.message);
            line.append(" [").append(each.id).append("]");
            put_comment_lines(line);
            if (each.hint)
                put_comment_lines(std::string("hint: ").append(*each.hint));
        }
        put_comment_lines(statement.text);
        put(";");
        is_in_comment_ = true;
    }

    void write_command(std::string_view command) {
        end_comment({});
        if (keeps_commands() && !holds_back_command_) {
            put(command);
            return;
        }
        holds_back_command_ = false;
        put_comment_lines(command);
        is_in_comment_ = true;
    }

    output &to_;
    quillet::target target_;
    std::string waiting_blanks_;
    std::string_view newline_ = "\n";
    bool has_newline_ = false;
    bool is_at_line_start_ = true;
    bool is_in_comment_ = false; // of a line, that is not ended yet
    bool is_behind_line_comment_ = false;
    bool holds_back_command_ = false;
};

} // namespace

std::unique_ptr<writer> make_sql_writer(output &to, const options &asked) {
    return std::make_unique<sql_writer>(to, asked);
}

} // namespace script
