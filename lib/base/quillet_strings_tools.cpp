#include "quillet_strings_tools.h"

#include <cstdlib>
#include <cstring>
#include <memory>

#include "quillet_concat.h"
#include "quillet_text_buffer.h"

namespace {

// Holds an argument that the operation consumes.
using owned_text = std::unique_ptr<char, quillet::freed>;

} // namespace

char *_quillet_concat(const char *first, const char *second, int space) {
    if (!first && !second)
        return nullptr;
    const std::size_t a = first ? std::strlen(first) : 0;
    const std::size_t b = second ? std::strlen(second) : 0;
    const std::size_t blank = a && b && space ? 1 : 0;
    char *joined = static_cast<char *>(std::malloc(a + blank + b + 1));
    if (!joined)
        return nullptr;
    if (a)
        std::memcpy(joined, first, a);
    if (blank)
        joined[a] = ' ';
    if (b)
        std::memcpy(joined + a + blank, second, b);
    joined[a + blank + b] = '\0';
    return joined;
}

char *quillet_concat(const char *first, const char *second) {
    return _quillet_concat(first, second, 0);
}

char *quillet_concat_free_first(char *first, const char *second) {
    const owned_text consumed(first);
    return quillet_concat(first, second);
}

char *quillet_concat_free_second(const char *first, char *second) {
    const owned_text consumed(second);
    return quillet_concat(first, second);
}

char *quillet_concat_free_both(char *first, char *second) {
    const owned_text consumed_second(second);
    const owned_text consumed_first(first);
    return quillet_concat(first, second);
}

char *quillet_sconcat(const char *first, const char *second) {
    return _quillet_concat(first, second, 1);
}

char *quillet_sconcat_free_first(char *first, const char *second) {
    const owned_text consumed(first);
    return quillet_sconcat(first, second);
}

char *quillet_sconcat_free_second(const char *first, char *second) {
    const owned_text consumed(second);
    return quillet_sconcat(first, second);
}

char *quillet_sconcat_free_both(char *first, char *second) {
    const owned_text consumed_second(second);
    const owned_text consumed_first(first);
    return quillet_sconcat(first, second);
}

char *quillet_extract_string(const char *string, int skeep_at_begin, int skeep_at_end) {
    const auto length = static_cast<long long>(string ? std::strlen(string) : 0);
    const long long kept = length - skeep_at_begin - skeep_at_end;
    const std::size_t n = string && kept > 0 ? static_cast<std::size_t>(kept) : 0;
    char *extracted = static_cast<char *>(std::malloc(n + 1));
    if (!extracted)
        return nullptr;
    if (n)
        std::memcpy(extracted, string + skeep_at_begin, n);
    extracted[n] = '\0';
    return extracted;
}

char *quillet_extract_string_free(char *string, int skeep_at_begin, int skeep_at_end) {
    const owned_text consumed(string);
    return quillet_extract_string(string, skeep_at_begin, skeep_at_end);
}
