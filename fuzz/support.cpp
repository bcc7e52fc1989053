#include "support.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "quillet_scanner.h"

extern "C" {

[[noreturn]] void __real_exit(int status);
[[noreturn]] void __wrap_exit(int status);

// What is printed goes to a file in memory, by whatever way it is printed.
int LLVMFuzzerInitialize(int *, char ***) {
    const int file = memfd_create("standard output", 0);
    return dup2(file, STDOUT_FILENO) == STDOUT_FILENO ? 0 : 1;
}
}

namespace {

bool is_end_thrown = false;

} // namespace

void __wrap_exit(int status) {
    if (is_end_thrown)
        throw process_ended();
    __real_exit(status);
}

ends_are_thrown::ends_are_thrown() { is_end_thrown = true; }
ends_are_thrown::~ends_are_thrown() { is_end_thrown = false; }

void require(bool holds, const char *what) {
    if (holds)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

std::string text_of(const std::uint8_t *data, std::size_t size) {
    const char *begin = reinterpret_cast<const char *>(data);
    return {begin, strnlen(begin, size)};
}

void reset_scanner() { _quillet_scanner_reset(); }

std::string take_print() {
    std::fflush(stdout);
    const off_t size = lseek(STDOUT_FILENO, 0, SEEK_CUR);
    std::string printed(static_cast<std::size_t>(size), '\0');
    require(pread(STDOUT_FILENO, printed.data(), printed.size(), 0) == size, "no print to read");
    lseek(STDOUT_FILENO, 0, SEEK_SET);
    return printed;
}
