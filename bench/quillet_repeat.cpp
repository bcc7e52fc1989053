// Translates the statements of a file with a builder, again and again, for others to count what
// that takes: quillet_repeat FILE BUILDER WAY ROUNDS, where WAY is the call to make: classic;
// translate, without notes and warnings; or remarks, with them.

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

bool translate_for(const std::string &statement, int builder, int least_severity) {
    quillet_options options{};
    options.size = sizeof options;
    options.least_severity = least_severity;
    quillet_translation *made =
        quillet_translate(statement.data(), statement.size(), builder, &options);
    const bool is_made = made->text != nullptr;
    quillet_translation_free(made);
    return is_made;
}

bool translate(const std::string &statement, int builder) {
    return translate_for(statement, builder, QUILLET_REFUSAL);
}

bool translate_with_remarks(const std::string &statement, int builder) {
    return translate_for(statement, builder, QUILLET_NOTE);
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 5)
        return EXIT_FAILURE;
    const std::string_view way = argv[3];
    const auto call = way == "classic"     ? translate_query
                      : way == "translate" ? translate
                      : way == "remarks"   ? translate_with_remarks
                                           : nullptr;
    if (!call)
        return EXIT_FAILURE;
    quillet_init();
    const int builder = quillet_get_builder_id(argv[2]);
    const auto statements = quillet_bench::read_statements(argv[1]);
    for (int round = std::atoi(argv[4]); round > 0; --round)
        for (const std::string &statement : statements)
            if (!call(statement, builder))
                return EXIT_FAILURE;
}
