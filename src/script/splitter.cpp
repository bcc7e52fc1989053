#include "splitter.h"

#include <algorithm>
#include <deque>
#include <string>

#include "psql_commands.h"
#include "scanner.h"
#include "statement_words.h"
#include "words.h"

namespace script {

std::size_t scan::read_on(char *to, std::size_t room) {
    if (handed == window.size()) {
        window.erase(0, kept);
        moved += kept;
        begin = begin > kept ? begin - kept : 0;
        end -= kept;
        kept = 0;
        handed = window.size();
        // The scanner reads a token of one part again, so one that is long is told to go on for as
        // long.
        const std::size_t unfinished = handed - end;
        std::size_t count = 0;
        do {
            count = from.read(part.data(), part.size());
            window.append(part.data(), count);
        } while (count > 0 && unfinished > part.size() && window.size() - handed < unfinished);
    }
    const std::size_t count = std::string_view(window).substr(handed).copy(to, room);
    handed += count;
    return count;
}

void scan::pass(token found) {
    switch (found) {
    case token::string:
    case token::escape_string:
    case token::continuation:
    case token::prefixed_string: next_part = part_of_string::in_next_line; break;
    case token::blank:
        if (next_part == part_of_string::none)
            break;
        if (text().find('\n') != std::string_view::npos)
            next_part = part_of_string::after_newline;
        else if (text().find('\r') != std::string_view::npos)
            next_part = std::max(next_part, part_of_string::after_return);
        break;
    case token::line_comment: break;
    default: next_part = part_of_string::none; break;
    }
}

namespace {

// What the tokens are marks of, in their order.
constexpr mark_kind mark_kinds[] = {
    mark_kind::comment,       mark_kind::comment,         mark_kind::comment,
    mark_kind::comment,       mark_kind::string,          mark_kind::escape_string,
    mark_kind::dollar_string, mark_kind::prefixed_string, mark_kind::question,
    mark_kind::dollar,        mark_kind::named,           mark_kind::format,
    mark_kind::pyformat,      mark_kind::percents,
};
static_assert(std::size(mark_kinds) == static_cast<std::size_t>(token::end));

bool stands_between(token kind) {
    return kind == token::blank || kind == token::line_comment || kind == token::block_comment ||
           kind == token::command || kind == token::copy_line;
}

bool is_end_of_copy_data(std::string_view line) {
    return line == "\\.\n" || line == "\\.\r\n" || line == "\\.";
}

} // namespace

class splitter::worker {
public:
    worker(source &from, backslashes plain_strings)
        : scan_(from, plain_strings), scanner_(scanner_begin(scan_)) {}
    ~worker() { scanner_end(scanner_); }
    worker(const worker &) = delete;
    worker &operator=(const worker &) = delete;

    const piece *next();

    void set_plain_strings(backslashes meaning) { scan_.plain_strings = meaning; }

private:
    // A token that is a piece of its own, or was behind the last one of a statement. Places are
    // those in the script, without the byte order mark.
    struct part {
        token kind;
        std::size_t begin;
        std::size_t end;
    };

    part read() {
        const token kind = scanner_next(scanner_);
        scan_.pass(kind);
        if (kind == token::command && copies_from_input(scan_.text()))
            ++scan_.copies_open;
        if (kind == token::copy_line && is_end_of_copy_data(scan_.text()) &&
            --scan_.copies_open == 0)
            scanner_end_copy_data(scanner_);
        if (kind == token::end)
            return {kind, scan_.moved + scan_.end, scan_.moved + scan_.end};
        return {kind, scan_.moved + scan_.begin, scan_.moved + scan_.end};
    }

    std::string_view text_of(std::size_t begin, std::size_t end) const {
        return std::string_view(scan_.window).substr(begin - scan_.moved, end - begin);
    }

    const piece *give(piece_kind kind, std::size_t begin, std::size_t end);
    const piece *give(const part &given);
    const piece *read_statement(const part &first);
    const piece *end_statement(const part &last);
    bool ends_statement(const part &found) const;
    void take(const part &found);
    void wait(const part &found);
    void wait_for_blank(std::size_t end);
    void mark(const part &found);
    void mark_waiting();

    scan scan_;
    void *scanner_;
    piece piece_;
    std::size_t given_ = 0; // how far the script has been given out
    position at_;           // the position of that
    std::deque<part> waiting_;

    // Of the statement that is read.
    std::size_t begin_ = 0;
    std::size_t end_ = 0; // of its last token
    std::size_t verb_size_ = 0;
    std::size_t open_ = 0;  // parentheses
    std::size_t blank_ = 0; // where the last token begins, if it is one; 0: it is none
    statement_words words_;
    bool is_behind_limit_ = false;
};

const piece *splitter::worker::give(piece_kind kind, std::size_t begin, std::size_t end) {
    at_ = at_.after(text_of(given_, begin));
    piece_.kind = kind;
    piece_.text = text_of(begin, end);
    piece_.begin = at_;
    piece_.offset = begin;
    at_ = at_.after(piece_.text);
    given_ = end;
    return &piece_;
}

const piece *splitter::worker::give(const part &given) {
    switch (given.kind) {
    case token::line_comment: return give(piece_kind::line_comment, given.begin, given.end);
    case token::block_comment: return give(piece_kind::block_comment, given.begin, given.end);
    case token::command: return give(piece_kind::command, given.begin, given.end);
    case token::copy_line: return give(piece_kind::copy_data, given.begin, given.end);
    default: return give(piece_kind::blank, given.begin, given.end);
    }
}

void splitter::worker::mark(const part &found) {
    const auto index = static_cast<std::size_t>(found.kind);
    if (index >= std::size(mark_kinds))
        return;
    const bool is_string = found.kind == token::string || found.kind == token::prefixed_string;
    piece_.marks.push_back({mark_kinds[index], found.begin - begin_, found.end - begin_,
                            is_string && scan_.is_plain, is_behind_limit_, scan_.has_end});
}

void splitter::worker::mark_waiting() {
    for (const part &inside : waiting_)
        mark(inside);
    waiting_.clear();
    blank_ = 0;
}

void splitter::worker::wait_for_blank(std::size_t end) {
    if (blank_ > 0)
        waiting_.push_back({token::blank, blank_, end});
    blank_ = 0;
}

void splitter::worker::wait(const part &found) {
    wait_for_blank(found.begin);
    waiting_.push_back(found);
}

bool splitter::worker::ends_statement(const part &found) const {
    switch (found.kind) {
    case token::end: return true;
    case token::semicolon: return open_ == 0 && !words_.is_in_body();
    case token::command: return sends(text_of(found.begin, found.end));
    default: return false;
    }
}

// Takes a token of the statement, or one that may be between its tokens.
void splitter::worker::take(const part &found) {
    if (found.kind == token::blank) {
        blank_ = found.begin;
        return;
    }
    if (stands_between(found.kind)) {
        wait(found);
        return;
    }
    end_ = found.end;
    if (found.kind == token::continuation) {
        waiting_.clear();
        blank_ = 0;
        piece_.marks.back().end = end_ - begin_;
        piece_.marks.back().has_end = scan_.has_end;
        return;
    }
    mark_waiting();
    mark(found);
    is_behind_limit_ = false;
    if (found.kind == token::word) {
        const std::string_view word = text_of(found.begin, found.end);
        words_.take(word, open_);
        is_behind_limit_ = is_word(word, "limit") || is_word(word, "offset");
        if (found.begin == begin_)
            verb_size_ = word.size();
    } else if (found.kind == token::open) {
        ++open_;
    } else if (found.kind == token::close && open_ > 0) {
        --open_;
    } else if (found.kind == token::semicolon && scan_.text() == "\\;") {
        words_.begin_next();
    }
}

const piece *splitter::worker::read_statement(const part &first) {
    piece_.marks.clear();
    words_.begin();
    blank_ = 0;
    is_behind_limit_ = false;
    begin_ = end_ = first.begin;
    verb_size_ = open_ = 0;
    part found = first;
    for (; !ends_statement(found); found = read()) {
        if (found.kind == token::command && forgets(text_of(found.begin, found.end))) {
            waiting_.clear();
            return give(piece_kind::command, begin_, found.end);
        }
        take(found);
    }
    return end_statement(found);
}

// Blanks before a semicolon go, comments before it come behind it; but COPY's data must come in the
// line after the semicolon.
const piece *splitter::worker::end_statement(const part &last) {
    const bool has_data =
        is_word(text_of(begin_, begin_ + verb_size_), "copy") && words_.has_from_stdin();
    if (last.kind != token::semicolon) {
        wait_for_blank(last.begin);
        if (last.kind == token::command)
            waiting_.push_back(last);
    } else if (waiting_.empty()) {
        blank_ = 0;
    } else if (has_data) {
        mark_waiting();
        end_ = last.begin;
    } else {
        wait_for_blank(last.begin);
    }
    if (last.kind != token::end && has_data)
        ++scan_.copies_open;
    const piece *const made = give(piece_kind::statement, begin_, end_);
    piece_.verb = piece_.text.substr(0, verb_size_);
    piece_.is_ended_by_command = last.kind == token::command;
    return made;
}

const piece *splitter::worker::next() {
    for (;;) {
        if (!waiting_.empty()) {
            const part first = waiting_.front();
            waiting_.pop_front();
            return give(first);
        }
        scan_.kept = given_ - scan_.moved;
        const part found = read();
        switch (found.kind) {
        case token::end: return nullptr;
        case token::copy_line:
        case token::blank:
        case token::line_comment:
        case token::block_comment:
        case token::command: return give(found);
        case token::semicolon: break; // an empty statement
        default: return read_statement(found);
        }
    }
}

splitter::splitter(source &from, backslashes plain_strings)
    : worker_(std::make_unique<worker>(from, plain_strings)) {}

splitter::~splitter() = default;

const piece *splitter::next() { return worker_->next(); }

void splitter::set_plain_strings(backslashes meaning) { worker_->set_plain_strings(meaning); }

} // namespace script
