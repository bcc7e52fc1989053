#include "quillet_date_format_parser.h"

#include <cstdlib>
#include <new>
#include <string>
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

// A scanner, and the text of its last quoted token, which is owned until it is taken.
struct token_source {
    int (*lex)(char **string, void *scanner);
    void *scanner;
    char *&string;

    int next() const { return lex(&string, scanner); }

    // The text without its quotes.
    char *taken_string() const {
        return or_throw(quillet_extract_string_free(std::exchange(string, nullptr), 1, 1));
    }
};

void scan(const token_source &source, date_format_list &head) {
    date_format_node *last = nullptr;
    const auto append = [&] {
        date_format_node *node = or_throw(quillet_date_format_node_create());
        if (last)
            last->next = node;
        else
            head.reset(node);
        last = node;
    };

    while (const int token = source.next()) {
        switch (token) {
        case DATE_FORMAT_STRING:
            append();
            last->format = token;
            last->string = source.taken_string();
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

// What a scanner in place holds.
struct in_place_memory {
    in_place_memory() = default;
    ~in_place_memory() {
        std::free(string);
        _quillet_blocks_give_all(&blocks);
    }
    in_place_memory(const in_place_memory &) = delete;
    in_place_memory &operator=(const in_place_memory &) = delete;

    quillet_blocks blocks = {};
    char *string = nullptr;
};

} // namespace

void quillet::date_format_freed::operator()(date_format_node *list) const {
    quillet_date_format_node_free(list);
}

date_format_list quillet::parse_date_format(const char *pattern) {
    date_format_list head;
    try {
        const pattern_being_scanned scanned(pattern);
        scan({_quillet_date_format_pattern_lex, nullptr, quillet_format_string}, head);
    } catch (const std::bad_alloc &) {
        std::free(std::exchange(quillet_format_string, nullptr));
        _quillet_date_format_scanner_reset();
        throw;
    }
    return head;
}

date_format_list quillet::parse_date_format_in_place(std::string_view pattern) {
    std::string text(pattern);
    text.append(2, '\0');
    in_place_memory memory;
    void *scanner =
        _quillet_date_format_in_place_begin(&memory.blocks, text.data(), pattern.size());
    date_format_list head;
    scan({_quillet_date_format_in_place_lex, scanner, memory.string}, head);
    return head;
}

date_format_node *quillet_date_format_parse(const char *pattern) {
    try {
        return quillet::parse_date_format(pattern).release();
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}
