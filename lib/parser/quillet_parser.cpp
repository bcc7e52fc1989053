#include "quillet_parser.h"

#include <cstdio>
#include <cstring>
#include <new>
#include <utility>

#include "quillet_limits.h"
#include "quillet_parse_tree.h"
#include "quillet_parser_tools.h"
#include "quillet_scanner.h"
#include "quillet_tree_memory.h"

extern "C" int yy_quillet_parse(void);

using quillet::recorded_tree;

// Reports a syntax error or an overflow of the parser's stacks, for which bison has words of its
// own. The end that the scanner puts to a tree that is too large is no error of the statement.
extern "C" int yy_quillet_error(const char *message) {
    if (_quillet_tree_is_too_large())
        return 0;
    const bool overflow = std::strcmp(message, "memory exhausted") == 0;
    std::printf("Error: %s\n", overflow ? "parser stack overflow" : message);
    return 0;
}

namespace {

// The query while it is parsed.
class query_being_parsed {
public:
    explicit query_being_parsed(const char *query) {
        quillet_query = _quillet_parse_data_create(query);
    }
    ~query_being_parsed() {
        _quillet_parse_data_free(quillet_query);
        quillet_query = nullptr;
    }
    query_being_parsed(const query_being_parsed &) = delete;
    query_being_parsed &operator=(const query_being_parsed &) = delete;
};

int parse(const char *query) {
    try {
        const query_being_parsed parsed(query);
        return yy_quillet_parse();
    } catch (const std::bad_alloc &) { // what was read is lost with it
        _quillet_blocks_give_all(&_quillet_parser_blocks);
        _quillet_scanner_reset();
        return QUILLET_PARSE_STACK_OVERFLOW;
    }
}

} // namespace

int quillet_parse(const char *query) {
    root = nullptr;
    if (std::strlen(query) > QUILLET_QUERY_SIZE_MAXIMUM)
        return QUILLET_PARSE_STACK_OVERFLOW;
    recorded_tree tree;
    int result = parse(query);
    if (_quillet_tree_is_too_large())
        result = QUILLET_PARSE_STACK_OVERFLOW;
    if (result == QUILLET_PARSE_ACCEPTED && !tree.keep())
        result = QUILLET_PARSE_STACK_OVERFLOW;
    // A statement may be complete, and in root, before what follows it turns out to be wrong.
    if (result != QUILLET_PARSE_ACCEPTED) {
        _quillet_scanner_forget_look();
        root = nullptr;
    }
    return result;
}

node_main *quillet_take_root(void) { return std::exchange(root, nullptr); }
