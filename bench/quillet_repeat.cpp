// Translates the statements of a file with a builder, again and again, for others to count what
// that takes: quillet_repeat FILE BUILDER ROUNDS

#include <cstdlib>
#include <string>

#include "corpus.h"
#include "quillet.h"

int main(int argc, char **argv) {
    if (argc != 4)
        return EXIT_FAILURE;
    quillet_init();
    const int builder = quillet_get_builder_id(argv[2]);
    const auto statements = quillet_bench::read_statements(argv[1]);
    for (int round = std::atoi(argv[3]); round > 0; --round)
        for (const std::string &statement : statements) {
            char *text = nullptr;
            if (quillet_translate_query(statement.c_str(), &text, builder))
                return EXIT_FAILURE;
            std::free(text);
        }
}
