// libpg_query's parser alone: no text is made of the tree.

#include <cstdlib>

#include <pg_query.h>

#include "contender.h"

// As in pg_query/pg_query_internal.h, which needs the headers of a server.
extern "C" {

struct pg_query_tree {
    void *tree;
    char *stderr_buffer;
    PgQueryError *error;
};

pg_query_tree pg_query_raw_parse(const char *input);
void pg_query_free_error(PgQueryError *error);
void *pg_query_enter_memory_context();
void pg_query_exit_memory_context(void *context);
}

namespace {

bool translate(const char *statement) {
    void *context = pg_query_enter_memory_context();
    const pg_query_tree parsed = pg_query_raw_parse(statement);
    const bool accepted = !parsed.error;
    std::free(parsed.stderr_buffer);
    if (parsed.error)
        pg_query_free_error(parsed.error);
    pg_query_exit_memory_context(context);
    return accepted;
}

} // namespace

int main(int argc, char **argv) { return quillet_bench::run_contender(argc, argv, translate); }
