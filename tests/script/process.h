// Runs a program: arguments and standard input in; standard output, standard error and status out.

#ifndef QUILLET_TESTS_PROCESS_H
#define QUILLET_TESTS_PROCESS_H

#include <filesystem>
#include <string>
#include <vector>

// A directory that goes with its owner.
class scratch_directory {
public:
    scratch_directory();
    ~scratch_directory();
    scratch_directory(const scratch_directory &) = delete;
    scratch_directory &operator=(const scratch_directory &) = delete;

    const std::filesystem::path &path() const { return path_; }
    std::filesystem::path write(const std::string &name, const std::string &text) const;
    std::string read(const std::string &name) const;
    std::vector<std::string> names() const; // of its files, in order

private:
    std::filesystem::path path_;
};

// Where standard output or standard error goes.
enum class sink { text, full_device, closed_pipe, terminal };

struct process {
    std::vector<std::string> arguments;
    std::string input{};
    std::filesystem::path directory{"."};
    std::vector<std::string> environment{}; // "NAME=value"
    sink output = sink::text;
    sink errors = sink::text;
};

struct process_result {
    std::string output;
    std::string errors;
    int status = -1; // -1: ended by a signal
};

// Runs the program that is tested.
process_result run(const process &asked);

#endif
