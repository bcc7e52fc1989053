// Prints the statements that libpg_query finds in scripts: pg_query_statements FILE...
//
//   file NAME
//   statement BEGIN END       in bytes
//   error                     it does not know where they end

#include <pg_query.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

namespace {

bool print_statements(const char *name) {
    std::printf("file %s\n", name);
    std::ifstream from(name, std::ios::binary);
    if (!from)
        return false;
    const std::string script(std::istreambuf_iterator<char>(from), {});
    const PgQuerySplitResult found = pg_query_split_with_scanner(script.c_str());
    if (found.error)
        std::puts("error");
    for (int i = 0; !found.error && i < found.n_stmts; ++i)
        std::printf("statement %d %d\n", found.stmts[i]->stmt_location,
                    found.stmts[i]->stmt_location + found.stmts[i]->stmt_len);
    pg_query_free_split_result(found);
    return true;
}

} // namespace

int main(int argc, char **argv) {
    for (int i = 1; i < argc; ++i)
        if (!print_statements(argv[i]))
            return 2;
    return 0;
}
