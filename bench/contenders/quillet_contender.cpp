// Quillet, with the builder BUILDER_NAME.

#include <cstdlib>
#include <memory>

#include "contender.h"
#include "quillet.h"

namespace {

struct freed {
    void operator()(char *text) const { std::free(text); }
};

bool translate(const char *statement) {
    static const int builder = quillet_get_builder_id(BUILDER_NAME);
    char *text = nullptr;
    const int code = quillet_translate_query(statement, &text, builder);
    const std::unique_ptr<char, freed> owned(text);
    return code == QUILLET_SUCCESS;
}

} // namespace

int main(int argc, char **argv) {
    quillet_init();
    return quillet_bench::run_contender(argc, argv, translate);
}
