#include "source.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace script {

file_error file_error::of(const std::string &name) {
    return file_error{name + ": " + std::strerror(errno)};
}

file_source::file_source(const std::string &name)
    : name_(name == "-" ? "<stdin>" : name),
      file_(name == "-" ? STDIN_FILENO : ::open(name.c_str(), O_RDONLY | O_CLOEXEC)) {
    struct stat about {};
    if (file_ < 0 || ::fstat(file_, &about) != 0)
        throw file_error::of(name_);
    if (S_ISREG(about.st_mode))
        size_ = static_cast<std::size_t>(about.st_size);
}

file_source::~file_source() {
    if (file_ > STDIN_FILENO)
        ::close(file_);
}

std::size_t file_source::read(char *to, std::size_t room) {
    if (bytes_read_ > 0)
        return read_bytes(to, room);
    constexpr std::string_view byte_order_mark = "\xef\xbb\xbf";
    std::size_t count = 0;
    while (count < byte_order_mark.size()) {
        const std::size_t more = read_bytes(to + count, room - count);
        if (more == 0)
            break;
        count += more;
    }
    const std::string_view begin(to, count);
    if (begin.starts_with("\xff\xfe") || begin.starts_with("\xfe\xff"))
        throw file_error(name_ + ": is UTF-16; a script is UTF-8");
    if (!begin.starts_with(byte_order_mark))
        return count;
    std::memmove(to, to + byte_order_mark.size(), count - byte_order_mark.size());
    return count > byte_order_mark.size() ? count - byte_order_mark.size() : read_bytes(to, room);
}

std::size_t file_source::read_bytes(char *to, std::size_t room) {
    for (;;) {
        const ssize_t count = ::read(file_, to, room);
        if (count >= 0) {
            bytes_read_ += static_cast<std::size_t>(count);
            return static_cast<std::size_t>(count);
        }
        if (errno != EINTR)
            throw file_error::of(name_);
    }
}

} // namespace script
