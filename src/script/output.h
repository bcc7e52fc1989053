// Where a run writes to: a file that appears as a whole or not at all, or standard output.

#ifndef QUILLET_SCRIPT_OUTPUT_H
#define QUILLET_SCRIPT_OUTPUT_H

#include <optional>
#include <string>
#include <string_view>

namespace script {

// What cannot be written throws a file_error.
class output {
public:
    // Nothing: standard output.
    explicit output(const std::optional<std::string> &name);
    ~output();
    output(const output &) = delete;
    output &operator=(const output &) = delete;

    void write(std::string_view text) {
        waiting_.append(text);
        if (waiting_.size() >= most_waiting)
            flush();
    }

    void flush();

    // Ends the writing: the file gets its name. Without this a file does not appear.
    void finish();

private:
    static constexpr std::size_t most_waiting = std::size_t{1} << 16;

    void open_temporary();

    std::string name_;
    std::string target_;    // where a temporary file goes in the end; "" without one
    std::string temporary_; // "" without one
    int file_ = 1;
    std::string waiting_;
};

} // namespace script

#endif
