// Translates any text with one builder and checks what must hold of the outcome.

#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <string>

#include "host_builder.h"
#include "quillet.h"
#include "support.h"

namespace {

struct freed {
    void operator()(char *text) const { std::free(text); }
};

struct outcome {
    int code;
    std::optional<std::string> text;
    bool operator==(const outcome &) const = default;
};

outcome translate(const std::string &statement, const char *builder) {
    reset_scanner();
    char *output = nullptr;
    const int code =
        quillet_translate_query(statement.c_str(), &output, quillet_get_builder_id(builder));
    const std::unique_ptr<char, freed> owned(output);
    return {code, output ? std::optional<std::string>(output) : std::nullopt};
}

// Operations of a host are called one inside the other: a deep statement would exhaust the stack.
constexpr std::size_t hosted_size_maximum = 200;

// A type whose printed name is none of its spellings does not come back, and DISTINCT ON comes back
// as a DISTINCT whose first item begins with parentheses.
bool comes_back(const std::string &text) {
    return text.find("CAHR") == std::string::npos && text.find("DISTINCT (") == std::string::npos;
}

void check(const std::string &statement, const char *builder, const outcome &first) {
    require(first.code == 0 || first.code == -2 || first.code == -3, "an unknown code");
    require((first.code == 0) == first.text.has_value(), "a text must come with success alone");
    require(first == translate(statement, builder), "the second time differs");
    if (statement.size() <= hosted_size_maximum) {
        const quillet_tests::hosted host(quillet_get_builder_id(builder));
        require(first == translate(statement, builder), "through a host's operations it differs");
    }
    if (first.code != 0)
        require(*quillet_get_error_description() != '\0', "a failure without description");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string statement = text_of(data, size);
    if (!can_be_scanned(statement))
        return 0;
    quillet_init();
    const outcome first = translate(statement, BUILDER_NAME);
    check(statement, BUILDER_NAME, first);

    if (std::strcmp(BUILDER_NAME, "postgresql") == 0 && first.text && comes_back(*first.text) &&
        can_be_scanned(*first.text)) {
        const outcome again = translate(*first.text, BUILDER_NAME);
        require(again.code != 0 || again.text == first.text, "a rendering renders differently");
    }
    if (std::strcmp(BUILDER_NAME, "mysql") == 0 && first.code == -3)
        require(quillet_get_detailed_error_code() != 0 &&
                    *quillet_get_detailed_error_description() != '\0',
                "a refusal without its sentence");
    return 0;
}
