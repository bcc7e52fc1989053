#include "messages.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace script {

namespace {

struct colors {
    const char *severity;
    const char *strong;
    const char *caret;
    const char *end;
};

constexpr const char *green = "\033[1;32m";

colors colors_of(quillet::severity severity, bool has_color) {
    if (!has_color)
        return {"", "", "", ""};
    constexpr const char *strong = "\033[1m";
    constexpr const char *end = "\033[0m";
    switch (severity) {
    case quillet::severity::note: return {"\033[1;36m", strong, green, end};
    case quillet::severity::warning: return {"\033[1;35m", strong, green, end};
    default: return {"\033[1;31m", strong, green, end};
    }
}

bool wants_color(const std::string &when) {
    if (when != "auto")
        return when == "always";
    const char *no_color = std::getenv("NO_COLOR");
    const char *terminal = std::getenv("TERM");
    return ::isatty(STDERR_FILENO) == 1 && !(no_color && *no_color) &&
           !(terminal && std::strcmp(terminal, "dumb") == 0);
}

// The line of a place, or of a long one what is near it.
struct excerpt {
    std::string line;
    std::string carets;
};

// What stands in a line as something that a terminal shows in one column.
void append_shown(std::string &line, std::string_view text) {
    for (const char c : text)
        line.push_back(static_cast<unsigned char>(c) < ' ' && c != '\t' ? ' '
                       : c == '\x7f'                                    ? ' '
                                                                        : c);
}

void append_blanks_for(std::string &carets, std::string_view text) {
    for (const char c : text)
        if (begins_character(c))
            carets.push_back(c == '\t' ? '\t' : ' ');
}

std::size_t at_character(std::string_view text, std::size_t at) {
    while (at < text.size() && !begins_character(text[at]))
        ++at;
    return at;
}

excerpt excerpt_of(std::string_view text, std::size_t offset, std::size_t length) {
    constexpr std::size_t most_before = 100;
    constexpr std::size_t most_behind = 100;
    const std::size_t first = at_character(text, offset > most_before ? offset - most_before : 0);
    const std::size_t last = at_character(text, std::min(text.size(), offset + most_behind));
    const std::string_view before = text.substr(first, offset - first);
    const std::string_view behind = text.substr(offset, last - offset);
    const std::size_t line_begin = before.rfind('\n') + 1; // 0 without one
    const std::size_t line_end = std::min(behind.find_first_of("\r\n"), behind.size());
    const std::string_view shown_before = before.substr(line_begin);
    const std::string_view shown_behind = behind.substr(0, line_end);

    excerpt made;
    if (line_begin == 0 && first > 0) {
        made.line = "... ";
        made.carets = "    ";
    }
    append_shown(made.line, shown_before);
    append_shown(made.line, shown_behind);
    if (line_end == behind.size() && last < text.size())
        made.line.append(" ...");
    append_blanks_for(made.carets, shown_before);
    made.carets.push_back('^');
    const std::size_t width = count_characters(shown_behind.substr(0, length));
    if (width > 1)
        made.carets.append(width - 1, '~');
    return made;
}

} // namespace

messages::messages(const options &asked)
    : shows_each_note_(asked.shows_each_note), has_color_(wants_color(asked.color)),
      has_progress_(::isatty(STDERR_FILENO) == 1 && ::isatty(STDOUT_FILENO) != 1) {}

void messages::begin_file(const std::string &name) {
    file_ = name;
    said_notes_.clear();
}

void messages::show(const piece &about, const finding &found) {
    if (found.severity == quillet::severity::note && !shows_each_note_) {
        if (said_notes_.find(found.id) != said_notes_.end()) {
            ++unsaid_notes_;
            return;
        }
        said_notes_.emplace(found.id);
    }
    hide_progress();
    const colors color = colors_of(found.severity, has_color_);
    std::string message;
    append_shown(message, found.message);
    std::fprintf(stderr, "%s%s:%zu:%zu:%s %s%s:%s %s [%s]\n", color.strong, file_.c_str(),
                 found.at.line, found.at.column, color.end, color.severity,
                 name_of(found.severity).data(), color.end, message.c_str(), found.id.data());
    const excerpt shown = excerpt_of(about.text, found.offset, found.length);
    std::fprintf(stderr, "%s\n%s%s%s\n", shown.line.c_str(), color.caret, shown.carets.c_str(),
                 color.end);
    if (found.hint)
        std::fprintf(stderr, "hint: %.*s\n", static_cast<int>(found.hint->size()),
                     found.hint->data());
}

void messages::say(std::string_view line) {
    hide_progress();
    std::fprintf(stderr, "%.*s\n", static_cast<int>(line.size()), line.data());
}

void messages::show_progress(std::size_t bytes, std::size_t size, std::size_t statements) {
    if (!has_progress_)
        return;
    const clock::time_point now = clock::now();
    const std::chrono::duration<double> passed = now - begin_;
    const std::chrono::duration<double> since = now - shown_;
    if (passed.count() < 0.5 || since.count() < 0.2)
        return;
    shown_ = now;
    constexpr double mega = 1e6;
    std::string percent;
    if (size > 0)
        percent = std::to_string(std::min<std::size_t>(100, 100 * bytes / size)) + "% of ";
    std::fprintf(stderr, "\r\033[K%s: %s%.1f MB, %zu statements, %.0f a second", file_.c_str(),
                 percent.c_str(), static_cast<double>(size > 0 ? size : bytes) / mega, statements,
                 static_cast<double>(statements) / passed.count());
    std::fflush(stderr);
    is_progress_shown_ = true;
}

void messages::hide_progress() {
    if (is_progress_shown_)
        std::fputs("\r\033[K", stderr);
    is_progress_shown_ = false;
}

} // namespace script
