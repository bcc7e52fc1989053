#include "quillet_date_format_parser.h"

#include <cstdlib>
#include <new>
#include <utility>

#include "quillet_date_format_scanner.h"
#include "quillet_parser_tools.h"
#include "quillet_strings_tools.h"

using quillet::date_format_list;

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

namespace {

// The pattern while it is scanned.
class pattern_being_scanned {
public:
    explicit pattern_being_scanned(const char *pattern) {
        quillet_date_format = _quillet_parse_data_create(pattern);
    }
    ~pattern_being_scanned() {
        _quillet_parse_data_free(quillet_date_format);
        quillet_date_format = nullptr;
    }
    pattern_being_scanned(const pattern_being_scanned &) = delete;
    pattern_being_scanned &operator=(const pattern_being_scanned &) = delete;
};

template <class Result> Result *or_throw(Result *made) {
    if (!made)
        throw std::bad_alloc();
    return made;
}

// The text of a quoted token without its quotes.
char *taken_string() {
    return or_throw(
        quillet_extract_string_free(std::exchange(quillet_format_string, nullptr), 1, 1));
}

void scan(const char *pattern, date_format_list &head) {
    date_format_node *last = nullptr;
    const auto append = [&] {
        date_format_node *node = or_throw(quillet_date_format_node_create());
        if (last)
            last->next = node;
        else
            head.reset(node);
        last = node;
    };

    const pattern_being_scanned scanned(pattern);
    while (const int token = yy_quillet_date_format_lex()) {
        switch (token) {
        case DATE_FORMAT_STRING:
            append();
            last->format = token;
            last->string = taken_string();
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
}

} // namespace

void quillet::date_format_freed::operator()(date_format_node *list) const {
    quillet_date_format_node_free(list);
}

date_format_list quillet::parse_date_format(const char *pattern) {
    date_format_list head;
    try {
        scan(pattern, head);
    } catch (const std::bad_alloc &) {
        std::free(std::exchange(quillet_format_string, nullptr));
        _quillet_date_format_scanner_reset();
        throw;
    }
    return head;
}

date_format_node *quillet_date_format_parse(const char *pattern) {
    try {
        return quillet::parse_date_format(pattern).release();
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}
