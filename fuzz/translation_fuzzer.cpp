// Translates any text with one builder, by both ways in, and checks what must hold of the outcome.

#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "host_builder.h"
#include "quillet.h"
#include "quillet_mysql_errors.h"
#include "support.h"
#include "translation_checks.h"

using namespace quillet_tests;

namespace {

struct freed {
    void operator()(char *text) const { std::free(text); }
};

int builder_id() { return quillet_get_builder_id(BUILDER_NAME); }

// What the classic call does with a statement.
struct outcome {
    int code = QUILLET_INVALID_QUERY;
    bool has_ended = false; // the process
    std::optional<std::string> text;
    std::string printed;
    bool operator==(const outcome &) const = default;
};

outcome translate_next(const std::string &statement) {
    outcome found;
    char *output = nullptr;
    try {
        const ends_are_thrown ends;
        found.code = quillet_translate_query(statement.c_str(), &output, builder_id());
    } catch (const process_ended &) {
        found.has_ended = true;
    }
    const std::unique_ptr<char, freed> owned(output);
    if (output)
        found.text = output;
    found.printed = take_print();
    return found;
}

// The same in a new process.
outcome translate(const std::string &statement) {
    reset_scanner();
    mysql_error_code = 0;
    return translate_next(statement);
}

// What the classic calls say of the last one.
struct last_reason {
    std::string description = quillet_get_error_description();
    int code = quillet_get_detailed_error_code();
    bool operator==(const last_reason &) const = default;
};

// By quillet_translate, with the invariants that hold of any outcome.
owned_translation translate_freely(std::string_view statement) {
    const last_reason before;
    owned_translation made = translated(statement, builder_id());
    require(take_print().empty(), "quillet_translate prints");
    require(last_reason() == before, "quillet_translate leaves a reason");
    const char *fault = fault_of(*made, statement);
    require(!fault, fault);
    return made;
}

// Operations of a host are called one inside the other: a deep statement would exhaust the stack.
constexpr std::size_t hosted_size_maximum = 200;

// A type whose printed name is none of its spellings does not come back, and DISTINCT ON comes back
// as a DISTINCT whose first item begins with parentheses.
bool comes_back(const std::string &text) {
    return text.find("CAHR") == std::string::npos && text.find("DISTINCT (") == std::string::npos;
}

void check_classic(const std::string &statement, const outcome &first) {
    require(first.code == 0 || first.code == -2 || first.code == -3, "an unknown code");
    require((first.code == 0) == first.text.has_value(), "a text must come with success alone");
    require(first == translate(statement), "the second time differs");
    if (!first.has_ended && first.code != 0)
        require(*quillet_get_error_description() != '\0', "a failure without description");
    if (std::strcmp(BUILDER_NAME, "postgresql") == 0 && first.text && comes_back(*first.text)) {
        const outcome again = translate(*first.text);
        require(again.code != 0 || again.text == first.text, "a rendering renders differently");
    }
}

// Both ways give the same text and code, for the same reason.
void check_same(const quillet_translation &made, const outcome &classic, int reason) {
    require(made.code == classic.code, "another code than the classic call's");
    require(!made.text == !classic.text, "a text by one way alone");
    require(!made.text || made.text == *classic.text, "another text than the classic call's");
    require(is_unscannable(made) == classic.has_ended, "the process does not end for this");
    const bool is_misspelt = classic.printed.find("Error: syntax error") != std::string::npos;
    require(has_id(made, "syntax-error") == is_misspelt, "a syntax error by one way alone");
    require(!reason || has_diagnostic(made,
                                      [=](const quillet_diagnostic &each) {
                                          return each.severity == QUILLET_REFUSAL &&
                                                 each.code == reason;
                                      }),
            "the builder's reason is missing");
    if (std::strcmp(BUILDER_NAME, "mysql") == 0 && classic.code == -3)
        require(reason != 0 || has_id(made, "too-deep"), "a refusal without its reason");
}

// Neither way sees what the other one does: a query that is left unread in part goes on as if
// nothing had been translated in between.
void check_remainder(const std::string &statement, const quillet_translation &made) {
    const std::string begin = statement.substr(0, statement.size() / 2);
    const std::string rest = statement.substr(begin.size());
    const outcome first = translate(begin);
    if (first.has_ended)
        return;
    const outcome next = translate_next(rest);

    require(translate(begin) == first, "the second time differs");
    require(are_same(*translate_freely(statement), made), "quillet_translate sees a remainder");
    require(translate_next(rest) == next, "quillet_translate changes what is left unread");
}

// A NUL is a character like another one, which no token can hold.
void check_beyond_nul(std::string_view whole, const std::string &statement,
                      const quillet_translation &made) {
    const owned_translation beyond = translate_freely(whole);
    require(!beyond->text, "a text in spite of a NUL");
    const bool fails_before = has_diagnostic(made, [&](const quillet_diagnostic &each) {
        return each.severity == QUILLET_ERROR && each.offset + each.length < statement.size();
    });
    if (made.code == 0)
        require(has_diagnostic(*beyond,
                               [&](const quillet_diagnostic &each) {
                                   return std::strcmp(each.id, "unknown-character") == 0 &&
                                          each.offset == statement.size() && each.length == 1;
                               }),
                "a NUL that is no unknown character");
    else if (fails_before && !has_id(made, "missing-part"))
        require(are_same(*beyond, made), "a NUL changes what comes before it");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string statement = text_of(data, size);
    const std::string_view whole(reinterpret_cast<const char *>(data), size);
    quillet_init();
    take_print();

    const outcome classic = translate(statement);
    const int reason = quillet_get_detailed_error_code();
    const owned_translation made = translate_freely(statement);
    check_same(*made, classic, reason);
    require(are_same(*translate_freely(statement), *made), "the second time differs");
    check_classic(statement, classic);
    check_remainder(statement, *made);
    if (whole.size() > statement.size())
        check_beyond_nul(whole, statement, *made);
    if (statement.size() <= hosted_size_maximum) {
        const hosted host(builder_id());
        require(translate(statement) == classic, "through a host's operations it differs");
        check_same(*translate_freely(statement), classic, reason);
    }
    return 0;
}
