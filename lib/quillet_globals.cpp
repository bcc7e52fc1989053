// All state of the library, one for the process. Each piece is declared in the header of the unit
// that owns it. Elsewhere there are but the scanners' and the parser's own, which are generated
// (yy...), and the four builders' records (quillet_..._builder_info), which a host may change.

#include "quillet_globals.h"

#include "quillet_builder_info.h"
#include "quillet_date_format_scanner.h"
#include "quillet_mysql_errors.h"
#include "quillet_parse_tree.h"
#include "quillet_parser.h"
#include "quillet_parser_values.h"
#include "quillet_rendering.h"
#include "quillet_scanner.h"

// Owned by quillet.cpp: the registry, the last translation, our own builders.
quillet_builder_info *quillet_builders[4] = {};
const char *const error_descriptions[4] = {"", "no such builder", "invalid query",
                                           "can not translate"};
int32_t error_code = 0;
int32_t last_builder_id = 0;
builder *quillet::kept_builders[4] = {};

// Owned by the parser: the tree of the last parse; during a parse its text; how deep it is in
// comments, which the next parse goes on with; the value of the last token; the memory of the tree,
// and what is kept of it; what the scanner has read on for.
node_main *root = nullptr;
parse_data *quillet_query = nullptr;
int quillet_comment_count = 0;
quillet_value yy_quillet_lval = {};
constinit quillet::tree_memory quillet::classic_tree_memory;
constinit quillet_scan _quillet_scan = [] {
    quillet_scan scan{};
    scan.tree = &quillet::classic_tree_memory;
    return scan;
}();

// Owned by the date-format parser: its pattern and text during a parse, the scanner's memory.
parse_data *quillet_date_format = nullptr;
char *quillet_format_string = nullptr;
quillet_blocks _quillet_date_format_blocks = {};

// Owned by the builder mysql: the reason of its last refusal. Nothing resets it.
int32_t mysql_error_code = 0;

// Owned by the renderings: the scratch that one leaves to the next, and the bound of the stack.
constinit quillet::rendering_memory quillet::kept_rendering_memory;
