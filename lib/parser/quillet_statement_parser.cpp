#include "quillet_statement_parser.h"

#include <algorithm>
#include <cstring>
#include <memory>

namespace quillet {

namespace {

parse_fault fault_of(quillet_scan_fault fault) {
    switch (fault) {
    case QUILLET_SCAN_UNKNOWN_CHARACTER: return parse_fault::unknown_character;
    case QUILLET_SCAN_UNENDED_STRING: return parse_fault::unended_string;
    case QUILLET_SCAN_UNENDED_NAME: return parse_fault::unended_name;
    case QUILLET_SCAN_EMPTY_NAME: return parse_fault::empty_name;
    case QUILLET_SCAN_NO_FAULT: break;
    }
    return parse_fault::none;
}

// A statement while it is parsed. What the generated code holds goes with it.
class statement_parse {
public:
    statement_parse(std::string_view statement, tree_memory &memory)
        : text_(new char[statement.size() + QUILLET_SCAN_WORD]) {
        const std::size_t size = std::min(statement.find('\0'), statement.size());
        std::memcpy(text_.get(), statement.data(), size);
        std::memset(text_.get() + size, '\0', QUILLET_SCAN_WORD);
        scan_.tree = &memory;
        scan_.text = scan_.at = text_.get();
        scan_.end = scan_.text + size;
        scan_.is_cut = size < statement.size() ? 1 : 0;
        scan_.room = &room_;
        parsing_.scan = &scan_;
    }
    statement_parse(const statement_parse &) = delete;
    statement_parse &operator=(const statement_parse &) = delete;

    parse_result result_of(parser made_by_bison) {
        parse_result result;
        if (run(made_by_bison, parsing_, scan_.tree) == 0)
            result.root = parsing_.root;
        else
            explain(result);
        result.has_lost_type = parsing_.has_lost_type;
        result.has_trace = scan_.has_trace != 0;
        result.has_open_comment = scan_.has_open_comment != 0;
        if (result.has_open_comment)
            result.open_comment = parsing_.place_of(scan_.comment_begin, scan_.end);
        return result;
    }

private:
    void explain(parse_result &result) {
        result.fault = fault_of(scan_.fault);
        if (result.fault != parse_fault::none) {
            result.where = parsing_.place_of(scan_.fault_begin, scan_.fault_end);
            return;
        }
        result.fault = parsing_.is_too_deep ? parse_fault::too_deep : parse_fault::syntax_error;
        result.where = parsing_.last_token();
    }

    std::unique_ptr<char[]> text_;
    quillet_scan scan_ = {};
    quillet_scan_room room_;
    quillet_parsing parsing_;
};

} // namespace

parse_result parse_statement(std::string_view statement, tree_memory &memory) {
    return statement_parse(statement, memory).result_of(yy_quillet_statement_parse);
}

parse_result parse_statement_with_places(std::string_view statement, tree_memory &memory) {
    parse_result result = statement_parse(statement, memory).result_of(yy_quillet_places_parse);
    result.has_places = true;
    return result;
}

} // namespace quillet
