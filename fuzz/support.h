// What the fuzzers share.

#ifndef QUILLET_FUZZ_SUPPORT_H
#define QUILLET_FUZZ_SUPPORT_H

#include <cstdint>
#include <string>

// Ends the run, as a sanitizer would, if something does not hold.
void require(bool holds, const char *what);

// The input as a text: what stands before its first NUL.
std::string text_of(const std::uint8_t *data, std::size_t size);

// Puts the scanner of statements back into its first state.
void reset_scanner();

// Whether a statement can be scanned to its end. One with an unknown character would end the
// process; the scanner's call of exit is intercepted here, where no node or text is left behind.
bool can_be_scanned(const std::string &statement);

#endif
