// All state of the library, one for the process. Each piece is declared in the header of the unit
// that owns it. Elsewhere there are but the scanners' and the parser's own, which are generated
// (yy...), and the four builders' records (quillet_..._builder_info), which a host may change.

#include "quillet_globals.h"

#include "quillet_builder_info.h"
#include "quillet_date_format_scanner.h"
#include "quillet_mysql_errors.h"
#include "quillet_own_builders.h"
#include "quillet_parse_tree.h"
#include "quillet_parser.h"
#include "quillet_parser_values.h"
#include "quillet_rendering.h"
#include "quillet_scanner.h"

// What holds vectors is a constant where they can be, which older standard libraries do not know.
#ifdef __cpp_lib_constexpr_vector
#define CONSTINIT constinit
#else
#define CONSTINIT
#endif

// Owned by quillet.cpp: the registry, the last classic translation, the builders of classic
// translations; what translations in any thread leave for the next one.
quillet_builder_info *quillet_builders[4] = {};
const char *const error_descriptions[4] = {"", "no such builder", "invalid query",
                                           "can not translate"};
int32_t error_code = 0;
int32_t last_builder_id = 0;
constinit quillet::own_builders quillet::classic_builders;
constinit std::atomic<quillet::translation_context *>
    quillet::idle_contexts[idle_contexts_maximum] = {};

// Owned by the parser: the tree of the last parse; during a parse its text; how deep it is in
// comments, which the next parse goes on with; the value of the last token; the memory of the tree,
// and what is kept of it; what the scanner has read on for.
node_main *root = nullptr;
parse_data *quillet_query = nullptr;
int quillet_comment_count = 0;
quillet_value yy_quillet_lval = {};
CONSTINIT quillet::tree_memory quillet::classic_tree_memory;
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

// Owned by the renderings: what one leaves to the next, in the classic calls; and a pointer to what
// the translation under way in this thread has instead.
CONSTINIT quillet::rendering_memory quillet::kept_rendering_memory;
constinit thread_local quillet::rendering_memory *quillet::own_rendering_memory = nullptr;
