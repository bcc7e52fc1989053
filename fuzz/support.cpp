#include "support.h"

#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "quillet_parser.h"
#include "quillet_parser_tools.h"
#include "quillet_tree_node.h"

#include "quillet_bison_parser.h"

extern "C" {

int yy_quillet_lex_destroy(void);
[[noreturn]] void __real_exit(int status);
[[noreturn]] void __wrap_exit(int status);

// What the parser prints is not looked at.
int LLVMFuzzerInitialize(int *, char ***) { return std::freopen("/dev/null", "w", stdout) ? 0 : 1; }
}

namespace {

std::jmp_buf scanning;
bool is_scanning = false;

} // namespace

void __wrap_exit(int status) {
    if (is_scanning)
        std::longjmp(scanning, 1);
    __real_exit(status);
}

void require(bool holds, const char *what) {
    if (holds)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

std::string text_of(const std::uint8_t *data, std::size_t size) {
    const char *begin = reinterpret_cast<const char *>(data);
    return {begin, strnlen(begin, size)};
}

void reset_scanner() {
    yy_quillet_lex_destroy();
    quillet_comment_count = 0;
}

bool can_be_scanned(const std::string &statement) {
    reset_scanner();
    quillet_query = _quillet_parse_data_create(statement.c_str());
    is_scanning = true;
    volatile bool whole = false;
    if (setjmp(scanning) == 0) {
        while (const int token = yy_quillet_lex())
            if (token == TOKEN_IDENTIFIER || token == TOKEN_STRING || token == TOKEN_INTEGER ||
                token == TOKEN_FLOAT || token == TOKEN_CURRENT_DATETIME)
                std::free(yy_quillet_lval.v_string);
        whole = true;
    }
    is_scanning = false;
    _quillet_parse_data_free(quillet_query);
    quillet_query = nullptr;
    reset_scanner();
    return whole;
}
