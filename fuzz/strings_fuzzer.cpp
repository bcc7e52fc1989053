// Joins and cuts any texts and checks the lengths.

#include <cstdlib>
#include <cstring>

#include "quillet_mysql_rendering.h"
#include "quillet_strings_tools.h"
#include "support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    if (size < 2)
        return 0;
    const int begin = static_cast<std::int8_t>(data[0]) & 0x7f;
    const int end = static_cast<std::int8_t>(data[1]) & 0x7f;
    const std::string text = text_of(data + 2, size - 2);
    const std::size_t split = text.size() / 2;
    const std::string first = text.substr(0, split);
    const std::string second = text.substr(split);

    char *joined = quillet_concat(first.c_str(), second.c_str());
    require(text == joined, "a join loses something");
    char *spaced = quillet_sconcat(first.c_str(), second.c_str());
    const std::size_t blank = !first.empty() && !second.empty() ? 1 : 0;
    require(std::strlen(spaced) == text.size() + blank, "a blank too many or too few");
    std::free(spaced);

    char *cut = quillet_extract_string_free(joined, begin, end);
    const std::size_t dropped = static_cast<std::size_t>(begin + end);
    require(std::strlen(cut) == (text.size() > dropped ? text.size() - dropped : 0),
            "a cut of another length");

    char *interval = _quillet_mysql_extract_interval(cut);
    require(std::strlen(interval) <= 12 * text.size() + 1, "an interval grows too much");
    std::free(interval);
    return 0;
}
