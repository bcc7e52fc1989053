// Where a script is read from.

#ifndef QUILLET_SCRIPT_SOURCE_H
#define QUILLET_SCRIPT_SOURCE_H

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace script {

// A file that cannot be read or written: its message says which and why.
class file_error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;

    // With the reason that errno has.
    static file_error of(const std::string &name);
};

class source {
public:
    source() = default;
    virtual ~source() = default;
    source(const source &) = delete;
    source &operator=(const source &) = delete;

    // Stores up to so many bytes and returns how many; 0 at the end.
    virtual std::size_t read(char *to, std::size_t room) = 0;
};

// A file, or standard input for "-", without a byte order mark.
class file_source final : public source {
public:
    explicit file_source(const std::string &name);
    ~file_source() override;

    std::size_t read(char *to, std::size_t room) override;

    const std::string &name() const { return name_; } // as messages show it
    std::size_t size() const { return size_; }        // in bytes; 0 if nobody knows
    std::size_t bytes_read() const { return bytes_read_; }

private:
    std::size_t read_bytes(char *to, std::size_t room);

    std::string name_;
    int file_ = -1;
    std::size_t size_ = 0;
    std::size_t bytes_read_ = 0;
};

class text_source final : public source {
public:
    explicit text_source(std::string_view text) : left_(text) {}

    std::size_t read(char *to, std::size_t room) override {
        const std::size_t count = left_.copy(to, room);
        left_.remove_prefix(count);
        return count;
    }

private:
    std::string_view left_;
};

} // namespace script

#endif
