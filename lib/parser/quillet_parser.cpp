#include "quillet_parser.h"

#include <cstdio>
#include <cstring>
#include <new>
#include <string_view>
#include <utility>

#include "quillet_limits.h"
#include "quillet_parse_tree.h"
#include "quillet_parser_tools.h"
#include "quillet_parsing.h"
#include "quillet_statement_parser.h"

using namespace quillet;

namespace {

constexpr const char *bisons_overflow = "memory exhausted";

} // namespace

// Reports a syntax error or an overflow of the parser's stacks, for which bison has words of its
// own.
extern "C" int yy_quillet_error(const char *message) {
    const bool overflow = std::strcmp(message, bisons_overflow) == 0;
    std::printf("Error: %s\n", overflow ? "parser stack overflow" : message);
    return 0;
}

// Parses what the scanner of the process reads, into the memory that this has.
int yy_quillet_parse(void) {
    quillet_parsing parsing;
    const int result = run(yy_quillet_query_parse, parsing, _quillet_scan.tree);
    root = parsing.root;
    return result;
}

namespace {

// The query while it is parsed.
class query_being_parsed {
public:
    query_being_parsed(const char *query, tree_memory &memory) {
        quillet_query = _quillet_parse_data_create(query);
        former_tree_ = std::exchange(_quillet_scan.tree, &memory);
    }
    ~query_being_parsed() {
        _quillet_scan.tree = former_tree_;
        _quillet_parse_data_free(quillet_query);
        quillet_query = nullptr;
    }
    query_being_parsed(const query_being_parsed &) = delete;
    query_being_parsed &operator=(const query_being_parsed &) = delete;

private:
    quillet_tree_memory *former_tree_;
};

// Parses a query where it stands, which takes less time. That can tell about a correct one alone,
// which is read to its end, leaves nothing to the next one, and prints nothing.
bool parse_in_place(std::string_view query, tree_memory &memory) {
    const parse_result result = parse_statement(query, memory);
    if (!result.root || result.has_trace) {
        memory.begin_again();
        return false;
    }
    root = result.root;
    return true;
}

int parse(std::string_view query, tree_memory &memory) {
    try {
        if (_quillet_scanner_is_fresh() && parse_in_place(query, memory))
            return QUILLET_PARSE_ACCEPTED;
        const query_being_parsed parsed(query.data(), memory);
        return yy_quillet_parse();
    } catch (const std::bad_alloc &) { // what was read is lost with it
        _quillet_scanner_reset();
        return QUILLET_PARSE_STACK_OVERFLOW;
    }
}

} // namespace

int quillet::parse_query(const char *query, tree_memory &memory) {
    root = nullptr;
    const std::string_view text = query;
    if (text.size() > QUILLET_QUERY_SIZE_MAXIMUM)
        return QUILLET_PARSE_STACK_OVERFLOW;
    const int result = parse(text, memory);
    // A statement may be complete, and in root, before what follows it turns out to be wrong.
    if (result != QUILLET_PARSE_ACCEPTED) {
        _quillet_scanner_forget_look();
        root = nullptr;
    }
    return result;
}

int quillet_parse(const char *query) {
    const tree_under_way tree(classic_tree_memory, tree_owner::host);
    const int result = parse_query(query, classic_tree_memory);
    if (result != QUILLET_PARSE_ACCEPTED || classic_tree_memory.keep())
        return result;
    root = nullptr;
    return QUILLET_PARSE_STACK_OVERFLOW;
}

node_main *quillet_take_root(void) { return std::exchange(root, nullptr); }
