#include "quillet_date_format_parser.h"

#include <cstdlib>

#include "quillet_date_format_scanner.h"
#include "quillet_parser_tools.h"
#include "quillet_strings_tools.h"

date_format_node *quillet_date_format_node_create(void) {
    return static_cast<date_format_node *>(std::calloc(1, sizeof(date_format_node)));
}

void quillet_date_format_node_free(date_format_node *list) {
    while (list) {
        date_format_node *next = list->next;
        std::free(list->string);
        std::free(list);
        list = next;
    }
}

date_format_node *quillet_date_format_parse(const char *pattern) {
    date_format_node *head = nullptr;
    date_format_node *last = nullptr;
    const auto append = [&] {
        date_format_node *node = quillet_date_format_node_create();
        (last ? last->next : head) = node;
        last = node;
    };

    quillet_date_format = _quillet_parse_data_create(pattern);
    while (const int token = yy_quillet_date_format_lex()) {
        switch (token) {
        case DATE_FORMAT_STRING:
            append();
            last->format = token;
            last->string = quillet_extract_string_free(quillet_format_string, 1, 1);
            quillet_format_string = nullptr;
            break;
        case DATE_FORMAT_SUFFIX_TH_UPPER:
        case DATE_FORMAT_SUFFIX_TH_LOWER:
        case DATE_FORMAT_SUFFIX_SP:
            if (last)
                last->suffix = token;
            break;
        case DATE_FORMAT_PREFIX_FM:
        case DATE_FORMAT_PREFIX_FX:
            append();
            last->prefix = token;
            break;
        default: // a word or a character, which completes a prefix before it
            if (!last || last->format != 0)
                append();
            last->format = token;
            break;
        }
    }
    _quillet_parse_data_free(quillet_date_format);
    quillet_date_format = nullptr;
    return head;
}
