#include "output.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>

#include "source.h"

namespace script {

namespace {

// The temporary files, which a signal that ends the run removes.
constexpr std::size_t most_files = 2;
std::array<std::array<char, PATH_MAX>, most_files> temporary_files{};

void remove_and_end(int signal) {
    for (const auto &name : temporary_files)
        if (name[0] != '\0')
            ::unlink(name.data());
    ::raise(signal); // as by default now
}

void keep_in_mind(const std::string &name) {
    for (auto &place : temporary_files) {
        if (place[0] == '\0' && name.size() < place.size()) {
            struct sigaction ending {};
            ending.sa_handler = remove_and_end;
            ending.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER);
            for (const int signal : {SIGHUP, SIGINT, SIGTERM})
                ::sigaction(signal, &ending, nullptr);
            name.copy(place.data(), name.size());
            return;
        }
    }
}

void forget(const std::string &name) {
    for (auto &place : temporary_files)
        if (name == place.data())
            place[0] = '\0';
}

// The file itself, if a name is a link to it.
std::string resolved(const std::string &name) {
    char *const path = ::realpath(name.c_str(), nullptr);
    std::string made = path ? path : name;
    std::free(path);
    return made;
}

} // namespace

output::output(const std::optional<std::string> &name) : name_(name ? *name : "standard output") {
    if (!name || *name == "-")
        return;
    struct stat about {};
    const bool exists = ::stat(name->c_str(), &about) == 0;
    if (!exists || S_ISREG(about.st_mode)) {
        target_ = resolved(*name);
        open_temporary();
        const mode_t mask = ::umask(0);
        ::umask(mask);
        ::fchmod(file_, exists ? about.st_mode & 07777 : 0666 & ~mask);
    } else {
        file_ = ::open(name->c_str(), O_WRONLY | O_CLOEXEC);
        if (file_ < 0)
            throw file_error::of(name_);
    }
}

void output::open_temporary() {
    std::string made = target_ + ".XXXXXX";
    file_ = ::mkostemp(made.data(), O_CLOEXEC);
    if (file_ < 0)
        throw file_error::of(name_);
    temporary_ = made;
    keep_in_mind(temporary_);
}

output::~output() {
    if (file_ > STDERR_FILENO)
        ::close(file_);
    if (!temporary_.empty()) {
        ::unlink(temporary_.c_str());
        forget(temporary_);
    }
}

void output::flush() {
    std::string_view left = waiting_;
    while (!left.empty()) {
        const ssize_t count = ::write(file_, left.data(), left.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0) {
            waiting_.clear();
            throw file_error::of(name_);
        }
        left.remove_prefix(static_cast<std::size_t>(count));
    }
    waiting_.clear();
}

void output::finish() {
    flush();
    if (temporary_.empty())
        return;
    const int closed = ::close(file_);
    file_ = -1;
    if (closed != 0 || ::rename(temporary_.c_str(), target_.c_str()) != 0)
        throw file_error::of(name_);
    forget(temporary_);
    temporary_.clear();
}

} // namespace script
