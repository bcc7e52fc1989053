// What the fuzzers share.

#ifndef QUILLET_FUZZ_SUPPORT_H
#define QUILLET_FUZZ_SUPPORT_H

#include <cstdint>
#include <string>

// Ends the run, as a sanitizer would, if something does not hold.
void require(bool holds, const char *what);

// The input as a text: what stands before its first NUL.
std::string text_of(const std::uint8_t *data, std::size_t size);

// Puts the scanner of statements back into its first state, also after the end of a process.
void reset_scanner();

// What has been printed on standard output since the last call of this.
std::string take_print();

// Thrown where the library would have ended the process.
struct process_ended {};

// While one lives, an end of the process is thrown; everything that the call had taken is freed on
// the way.
class ends_are_thrown {
public:
    ends_are_thrown();
    ~ends_are_thrown();
    ends_are_thrown(const ends_are_thrown &) = delete;
    ends_are_thrown &operator=(const ends_are_thrown &) = delete;
};

#endif
