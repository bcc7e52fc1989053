#include "splitter.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <deque>
#include <string>

#include "scanner.h"
#include "words.h"

namespace script {

std::size_t scan::read_on(char *to, std::size_t room) {
    constexpr std::size_t part = std::size_t{1} << 16;
    if (handed == window.size()) {
        window.erase(0, kept);
        moved += kept;
        begin = begin > kept ? begin - kept : 0;
        end -= kept;
        kept = 0;
        const std::size_t size = window.size();
        window.resize(size + std::max(part, size));
        window.resize(size + from.read(window.data() + size, window.size() - size));
        handed = size;
    }
    const std::size_t count = std::string_view(window).substr(handed).copy(to, room);
    handed += count;
    return count;
}

namespace {

// What the tokens are marks of, in their order.
constexpr mark_kind mark_kinds[] = {
    mark_kind::comment,         mark_kind::comment,       mark_kind::comment,
    mark_kind::string,          mark_kind::escape_string, mark_kind::dollar_string,
    mark_kind::prefixed_string, mark_kind::question,      mark_kind::dollar,
    mark_kind::named,           mark_kind::format,        mark_kind::pyformat,
    mark_kind::percents,
};
static_assert(std::size(mark_kinds) == static_cast<std::size_t>(token::end));

bool stands_between(token kind) {
    return kind == token::line_comment || kind == token::block_comment || kind == token::command;
}

// The commands of psql that send what has been read of a statement.
bool sends(std::string_view command) {
    constexpr std::string_view senders[] = {"g",     "gx",    "gset",        "gexec",
                                            "gdesc", "watch", "crosstabview"};
    const std::string_view name = first_word(command.substr(1));
    return std::find(std::begin(senders), std::end(senders), name) != std::end(senders);
}

// Whether the lines behind a \copy are its data.
bool copies_from_input(std::string_view command) {
    std::string_view before;
    for (std::string_view left = command.substr(1); !left.empty();) {
        left = without_blanks_before(left);
        const std::string_view word = first_word(left);
        if (is_word(before, "from") && is_word(word, "stdin"))
            return is_word(first_word(command.substr(1)), "copy");
        left.remove_prefix(std::min(left.size(), std::max<std::size_t>(word.size(), 1)));
        before = word;
    }
    return false;
}

bool is_end_of_copy_data(std::string_view line) {
    return line == "\\.\n" || line == "\\.\r\n" || line == "\\.";
}

// What the words of a statement tell of its end.
class statement_words {
public:
    void begin() { *this = {}; }

    void take(std::string_view word, std::size_t open_parentheses) {
        if (count_ > 0 && first_[0] != 'c')
            return; // no CREATE, no COPY
        if (count_ < first_.size())
            first_[count_] = in_lower_case(word[0]);
        ++count_;
        if (is_function() && open_parentheses == 0) {
            if (is_word(word, "begin") || (open_bodies_ > 0 && is_word(word, "case")))
                ++open_bodies_;
            else if (open_bodies_ > 0 && is_word(word, "end"))
                --open_bodies_;
        }
        has_from_stdin_ |= is_behind_from_ && is_word(word, "stdin");
        is_behind_from_ = is_word(word, "from");
    }

    // Whether it is in the body of a function, and a semicolon does not end it.
    bool is_in_body() const { return open_bodies_ > 0; }

    bool has_from_stdin() const { return has_from_stdin_; }

private:
    // CREATE [OR REPLACE] FUNCTION or PROCEDURE, told by the first letters as psql does.
    bool is_function() const {
        const auto is_kind = [this](std::size_t at) {
            return first_[at] == 'f' || first_[at] == 'p';
        };
        return first_[0] == 'c' &&
               (is_kind(1) || (first_[1] == 'o' && first_[2] == 'r' && is_kind(3)));
    }

    std::array<char, 4> first_{};
    std::size_t count_ = 0;
    std::size_t open_bodies_ = 0;
    bool is_behind_from_ = false;
    bool has_from_stdin_ = false;
};

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
        if (kind == token::end)
            return {kind, scan_.moved + scan_.end, scan_.moved + scan_.end};
        return {kind, scan_.moved + scan_.begin, scan_.moved + scan_.end};
    }

    std::string_view text_of(std::size_t begin, std::size_t end) const {
        return std::string_view(scan_.window).substr(begin - scan_.moved, end - begin);
    }

    const piece *give(piece_kind kind, std::size_t begin, std::size_t end);
    const piece *give(const part &given);
    const piece *give_copy_line(const part &line);
    const piece *read_statement(part first);
    void drop_to(std::size_t end);
    void mark_in_statement(const part &found, std::size_t statement);

    scan scan_;
    void *scanner_;
    piece piece_;
    std::size_t given_ = 0; // how far the script has been given out
    position at_;           // the position of that
    std::deque<part> waiting_;
    statement_words words_;
    bool is_behind_limit_ = false;
    bool begins_copy_data_ = false;
};

const piece *splitter::worker::give(piece_kind kind, std::size_t begin, std::size_t end) {
    piece_.kind = kind;
    piece_.text = text_of(begin, end);
    piece_.begin = at_;
    piece_.offset = begin;
    drop_to(end);
    return &piece_;
}

// Goes on behind a text that is no piece, or is one now.
void splitter::worker::drop_to(std::size_t end) {
    at_ = at_.after(text_of(given_, end));
    given_ = end;
}

// The piece of a part that stands where the last one has ended; NULL at the end.
const piece *splitter::worker::give(const part &given) {
    switch (given.kind) {
    case token::end: return nullptr;
    case token::line_comment: return give(piece_kind::line_comment, given.begin, given.end);
    case token::block_comment: return give(piece_kind::block_comment, given.begin, given.end);
    case token::copy_line: return give_copy_line(given);
    case token::command:
        if (copies_from_input(text_of(given.begin, given.end)))
            scanner_expect_copy_data(scanner_, begins_copy_data_ = true);
        return give(piece_kind::command, given.begin, given.end);
    default: return read_statement(given);
    }
}

// A line of the data; what is left of the line before it comes first.
const piece *splitter::worker::give_copy_line(const part &line) {
    const std::string_view text = text_of(line.begin, line.end);
    const bool is_head = begins_copy_data_;
    begins_copy_data_ = false;
    if (!is_head && is_end_of_copy_data(text))
        scanner_expect_copy_data(scanner_, false);
    const bool is_blank_line = std::all_of(text.begin(), text.end(), is_blank);
    return give(is_head && is_blank_line ? piece_kind::blank : piece_kind::copy_data, line.begin,
                line.end);
}

void splitter::worker::mark_in_statement(const part &found, std::size_t statement) {
    const auto index = static_cast<std::size_t>(found.kind);
    if (index >= std::size(mark_kinds))
        return;
    const bool is_string = found.kind == token::string || found.kind == token::prefixed_string;
    piece_.marks.push_back({mark_kinds[index], found.begin - statement, found.end - statement,
                            is_string && scan_.is_plain, is_behind_limit_});
}

const piece *splitter::worker::read_statement(part first) {
    piece_.marks.clear();
    piece_.is_ended_by_command = false;
    words_.begin();
    is_behind_limit_ = false;

    const std::size_t begin = first.begin;
    std::size_t end = begin;
    std::size_t verb_size = 0;
    std::size_t open = 0;
    part found = first;
    for (; found.kind != token::end; found = read()) {
        if (found.kind == token::semicolon && open == 0 && !words_.is_in_body())
            break;
        if (found.kind == token::command && sends(text_of(found.begin, found.end))) {
            piece_.is_ended_by_command = true;
            break;
        }
        if (stands_between(found.kind)) {
            waiting_.push_back(found);
            continue;
        }
        for (const part &inside : waiting_)
            mark_in_statement(inside, begin);
        waiting_.clear();
        mark_in_statement(found, begin);
        end = found.end;
        is_behind_limit_ = false;
        if (found.kind == token::word) {
            const std::string_view word = text_of(found.begin, found.end);
            words_.take(word, open);
            is_behind_limit_ = is_word(word, "limit") || is_word(word, "offset");
            if (found.begin == begin)
                verb_size = word.size();
        } else if (found.kind == token::open) {
            ++open;
        } else if (found.kind == token::close && open > 0) {
            --open;
        }
    }
    const bool has_semicolon = found.kind == token::semicolon;
    const piece *const made = give(piece_kind::statement, begin, end);
    piece_.verb = piece_.text.substr(0, verb_size);
    // Blanks before the semicolon go with it; comments before it come behind it.
    if (has_semicolon && waiting_.empty())
        drop_to(found.end);
    else
        waiting_.push_back(found);
    if (has_semicolon && is_word(piece_.verb, "copy") && words_.has_from_stdin())
        scanner_expect_copy_data(scanner_, begins_copy_data_ = true);
    return made;
}

const piece *splitter::worker::next() {
    for (;;) {
        if (waiting_.empty()) {
            scan_.kept = given_ - scan_.moved;
            waiting_.push_back(read());
        }
        const part first = waiting_.front();
        if (first.begin > given_)
            return give(piece_kind::blank, given_, first.begin);
        waiting_.pop_front();
        if (first.kind != token::semicolon)
            return give(first);
        drop_to(first.end); // an empty statement, or what has ended one before comments
    }
}

splitter::splitter(source &from, backslashes plain_strings)
    : worker_(std::make_unique<worker>(from, plain_strings)) {}

splitter::~splitter() = default;

const piece *splitter::next() { return worker_->next(); }

void splitter::set_plain_strings(backslashes meaning) { worker_->set_plain_strings(meaning); }

} // namespace script
