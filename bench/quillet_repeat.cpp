// Translates the statements of a file with a builder, again and again, for others to count what
// that takes: quillet_repeat FILE BUILDER WAY ROUNDS, where WAY is the call to make, classic or
// translate.

#include <cstdlib>
#include <string>
#include <string_view>

#include "corpus.h"
#include "quillet.h"

namespace {

bool translate_query(const std::string &statement, int builder) {
    char *text = nullptr;
    const int code = quillet_translate_query(statement.c_str(), &text, builder);
    std::free(text);
    return code == QUILLET_SUCCESS;
}

bool translate(const std::string &statement, int builder) {
    quillet_translation *made =
        quillet_translate(statement.data(), statement.size(), builder, nullptr);
    const bool is_made = made->text != nullptr;
    quillet_translation_free(made);
    return is_made;
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 5)
        return EXIT_FAILURE;
    const std::string_view way = argv[3];
    if (way != "classic" && way != "translate")
        return EXIT_FAILURE;
    quillet_init();
    const int builder = quillet_get_builder_id(argv[2]);
    const auto call = way == "classic" ? translate_query : translate;
    const auto statements = quillet_bench::read_statements(argv[1]);
    for (int round = std::atoi(argv[4]); round > 0; --round)
        for (const std::string &statement : statements)
            if (!call(statement, builder))
                return EXIT_FAILURE;
}
