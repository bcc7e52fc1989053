#include "process.h"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string_view>

scratch_directory::scratch_directory() {
    std::string name = (std::filesystem::temp_directory_path() / "quillet-script-XXXXXX").string();
    if (!::mkdtemp(name.data()))
        throw std::runtime_error("no scratch directory");
    path_ = name;
}

scratch_directory::~scratch_directory() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::filesystem::path scratch_directory::write(const std::string &name,
                                               const std::string &text) const {
    std::ofstream(path_ / name, std::ios::binary) << text;
    return path_ / name;
}

std::string scratch_directory::read(const std::string &name) const {
    std::ostringstream text;
    text << std::ifstream(path_ / name, std::ios::binary).rdbuf();
    return text.str();
}

std::vector<std::string> scratch_directory::names() const {
    std::vector<std::string> found;
    for (const auto &entry : std::filesystem::directory_iterator(path_))
        found.push_back(entry.path().filename().string());
    std::sort(found.begin(), found.end());
    return found;
}

namespace {

constexpr int none = -1;

// The two ends of a pipe, or of a terminal: what the program writes to, and what is read here.
struct channel {
    int written = none;
    int read = none;
};

channel open_channel(sink to) {
    std::array<int, 2> ends{none, none};
    switch (to) {
    case sink::full_device: return {::open("/dev/full", O_WRONLY | O_CLOEXEC), none};
    case sink::terminal: {
        channel made;
        if (::openpty(&made.read, &made.written, nullptr, nullptr, nullptr) != 0)
            throw std::runtime_error("no terminal");
        ::fcntl(made.read, F_SETFD, FD_CLOEXEC);
        return made;
    }
    default:
        if (::pipe2(ends.data(), O_CLOEXEC) != 0)
            throw std::runtime_error("no pipe");
        if (to == sink::closed_pipe) {
            ::close(ends[0]);
            ends[0] = none;
        }
        return {ends[1], ends[0]};
    }
}

[[noreturn]] void become_program(const process &asked, int input, int output, int errors) {
    ::dup2(input, STDIN_FILENO);
    ::dup2(output, STDOUT_FILENO);
    ::dup2(errors, STDERR_FILENO);
    if (::chdir(asked.directory.c_str()) != 0)
        std::_Exit(127);
    for (const std::string &variable : asked.environment)
        ::putenv(const_cast<char *>(variable.c_str()));
    std::vector<char *> arguments{const_cast<char *>("quillet-script")};
    for (const std::string &argument : asked.arguments)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);
    ::execv(PROGRAM, arguments.data());
    std::_Exit(127);
}

void close_end(int &end) {
    if (end != none)
        ::close(end);
    end = none;
}

// Reads what there is; closes the end when the other one is closed.
void read_some(int &end, std::string &text) {
    std::array<char, 65536> part{};
    const ssize_t count = ::read(end, part.data(), part.size());
    if (count > 0)
        text.append(part.data(), static_cast<std::size_t>(count));
    else if (count == 0 || errno != EINTR)
        close_end(end);
}

void write_some(int &end, std::string_view &left) {
    const ssize_t count = ::write(end, left.data(), left.size());
    if (count > 0)
        left.remove_prefix(static_cast<std::size_t>(count));
    if (left.empty() || (count < 0 && errno != EINTR && errno != EAGAIN))
        close_end(end);
}

} // namespace

process_result run(const process &asked) {
    std::signal(SIGPIPE, SIG_IGN);
    std::array<int, 2> input{none, none};
    if (::pipe2(input.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    channel output = open_channel(asked.output);
    channel errors = open_channel(asked.errors);
    const pid_t child = ::fork();
    if (child == 0) {
        std::signal(SIGPIPE, SIG_DFL);
        become_program(asked, input[0], output.written, errors.written);
    }
    close_end(input[0]);
    close_end(output.written);
    close_end(errors.written);
    ::fcntl(input[1], F_SETFL, O_NONBLOCK);

    process_result result;
    std::string_view left = asked.input;
    if (left.empty())
        close_end(input[1]);
    while (input[1] != none || output.read != none || errors.read != none) {
        std::array<pollfd, 3> ends{
            {{input[1], POLLOUT, 0}, {output.read, POLLIN, 0}, {errors.read, POLLIN, 0}}};
        if (::poll(ends.data(), ends.size(), -1) < 0)
            continue;
        if (ends[0].revents != 0)
            write_some(input[1], left);
        if (ends[1].revents != 0)
            read_some(output.read, result.output);
        if (ends[2].revents != 0)
            read_some(errors.read, result.errors);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}
