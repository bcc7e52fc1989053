// Takes any date-format pattern apart and checks the words.

#include <cstdlib>

#include "quillet_date_format_parser.h"
#include "quillet_mysql_rendering.h"
#include "support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string pattern = text_of(data, size);
    date_format_node *words = quillet_date_format_parse(pattern.c_str());
    std::size_t count = 0;
    for (const date_format_node *word = words; word; word = word->next) {
        ++count;
        require((word->format == DATE_FORMAT_STRING) == (word->string != nullptr),
                "quoted text and nothing else has a string");
        require(word->format != 0 || word->prefix != 0, "an empty word");
        std::free(_quillet_mysql_date_format(word));
    }
    require(count <= pattern.size(), "more words than characters");
    quillet_date_format_node_free(words);
    return 0;
}
