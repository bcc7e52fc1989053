// What a run says on standard error, as compilers do.

#ifndef QUILLET_SCRIPT_MESSAGES_H
#define QUILLET_SCRIPT_MESSAGES_H

#include <chrono>
#include <set>
#include <string>
#include <string_view>

#include "finding.h"
#include "options.h"
#include "splitter.h"

namespace script {

class messages {
public:
    explicit messages(const options &asked);

    void begin_file(const std::string &name);

    // Says a finding about a piece, with its line and a caret below the place.
    void show(const piece &about, const finding &found);

    // Says one line.
    void say(std::string_view line);

    // Shows how far the run is, in the last line of a terminal, now and then. size: 0 if nobody
    // knows.
    void show_progress(std::size_t bytes, std::size_t size, std::size_t statements);
    void hide_progress();

    std::size_t unsaid_notes() const { return unsaid_notes_; }

private:
    using clock = std::chrono::steady_clock;

    bool shows_each_note_;
    bool has_color_;
    bool has_progress_;
    bool is_progress_shown_ = false;
    clock::time_point begin_ = clock::now();
    clock::time_point shown_ = begin_;
    std::string file_;
    std::set<std::string, std::less<>> said_notes_;
    std::size_t unsaid_notes_ = 0;
};

} // namespace script

#endif
