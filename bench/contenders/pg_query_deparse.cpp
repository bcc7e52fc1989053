// libpg_query, to PostgreSQL text: its parser, then its deparser.

#include <pg_query.h>

#include "contender.h"

namespace {

bool deparse(PgQueryProtobuf tree) {
    const PgQueryDeparseResult text = pg_query_deparse_protobuf(tree);
    const bool accepted = !text.error;
    pg_query_free_deparse_result(text);
    return accepted;
}

bool translate(const char *statement) {
    const PgQueryProtobufParseResult parsed = pg_query_parse_protobuf(statement);
    const bool accepted = !parsed.error && deparse(parsed.parse_tree);
    pg_query_free_protobuf_parse_result(parsed);
    return accepted;
}

} // namespace

int main(int argc, char **argv) { return quillet_bench::run_contender(argc, argv, translate); }
