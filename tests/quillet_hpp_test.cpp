#include "quillet.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "quillet_builder.h"
#include "quillet_strings_tools.h"

namespace {

using namespace std::string_view_literals;
using quillet::severity;
using quillet::target;
using quillet::translate;

static_assert(std::is_nothrow_move_constructible_v<quillet::translation>);
static_assert(std::is_nothrow_move_assignable_v<quillet::translation>);
static_assert(!std::is_copy_constructible_v<quillet::translation>);
static_assert(!std::is_copy_assignable_v<quillet::translation>);
static_assert(!std::is_convertible_v<quillet::translation, bool>);
static_assert(std::is_constructible_v<bool, const quillet::translation &>);

// What a temporary gives must not be gone before it is looked at.
template <class T>
concept gives_diagnostics = requires(T made) {
    std::forward<T>(made).diagnostics();
};
static_assert(gives_diagnostics<quillet::translation &>);
static_assert(!gives_diagnostics<quillet::translation>);
static_assert(std::is_same_v<decltype(translate("", 0).text()), std::string>);
static_assert(
    std::is_same_v<decltype(std::declval<quillet::translation &>().text()), std::string_view>);

// The names of the C headers stay what they are, whatever is used of the namespace.
namespace unambiguous {
using namespace quillet;
static_assert(std::is_same_v<builder, struct ::builder>);
} // namespace unambiguous

// All that is said of a statement, a line each: line:column+length severity code id.
std::string said(const quillet::translation &made) {
    std::ostringstream out;
    for (const quillet::diagnostic &each : made.diagnostics())
        out << each.line << ':' << each.column << '+' << each.length << ' '
            << static_cast<int>(each.severity) << ' ' << each.code << ' ' << each.id << '\n';
    return out.str();
}

TEST(Value, TargetsAreTheBuilders) {
    EXPECT_EQ(static_cast<int>(target::postgresql), quillet_get_builder_id("postgresql"));
    EXPECT_EQ(static_cast<int>(target::mysql), quillet_get_builder_id("mysql"));
    EXPECT_EQ(static_cast<int>(target::tree), quillet_get_builder_id("tree"));
    EXPECT_EQ(static_cast<int>(target::type_view), quillet_get_builder_id("type_view"));
}

TEST(Value, SeveritiesAreThoseOfC) {
    EXPECT_EQ(static_cast<int>(severity::note), QUILLET_NOTE);
    EXPECT_EQ(static_cast<int>(severity::warning), QUILLET_WARNING);
    EXPECT_EQ(static_cast<int>(severity::refusal), QUILLET_REFUSAL);
    EXPECT_EQ(static_cast<int>(severity::error), QUILLET_ERROR);
    EXPECT_LT(severity::warning, severity::refusal);
}

TEST(Value, GivesTextAndCode) {
    const auto made = translate("select a||1 from t", target::postgresql);
    EXPECT_TRUE(made);
    EXPECT_EQ(made.code(), QUILLET_SUCCESS);
    EXPECT_EQ(made.text(), "SELECT a || 1 FROM t");
    EXPECT_STREQ(made.text().data(), "SELECT a || 1 FROM t");
    EXPECT_TRUE(made.diagnostics().empty());
    EXPECT_EQ(made.diagnostics().begin(), made.diagnostics().end());
    EXPECT_EQ(translate("select a||1 from t", target::mysql).text(), "SELECT CONCAT(a, 1) FROM t");
    EXPECT_EQ(translate("select 1", target::type_view).text(), "SELECT INT8 ( 1 ) ");
    EXPECT_EQ(translate("select 1", target::tree).text().substr(0, 8), "main [0]");
}

TEST(Value, TakesAnyKindOfText) {
    const std::string owned = "select 1";
    EXPECT_EQ(translate(owned, target::postgresql).text(), "SELECT 1");
    EXPECT_EQ(translate(owned.c_str(), target::postgresql).text(), "SELECT 1");
    EXPECT_EQ(translate(std::string_view("select 123").substr(0, 8), target::postgresql).text(),
              "SELECT 1");
}

TEST(Value, TakesAnIdOfABuilder) {
    EXPECT_EQ(translate("select a||1", quillet_get_builder_id("MySQL")).text(),
              "SELECT CONCAT(a, 1)");
    EXPECT_EQ(translate("select a||1", 0).text(), "SELECT a || 1");
}

TEST(Value, NoBuilderHasAnotherId) {
    for (const int id : {std::numeric_limits<int>::min(), -1, 4, std::numeric_limits<int>::max()}) {
        const auto made = translate("select 1", id);
        EXPECT_FALSE(made);
        EXPECT_EQ(made.code(), QUILLET_NO_SUCH_BUILDER) << id;
        EXPECT_EQ(made.text(), "");
        EXPECT_EQ(said(made), "1:1+8 3 0 no-such-builder\n");
    }
    EXPECT_EQ(translate("select 1", static_cast<target>(4)).code(), QUILLET_NO_SUCH_BUILDER);
}

TEST(Value, TellsEveryRefusal) {
    const auto made = translate("select initcap(a),\n  btrim(b)\nfrom t", target::mysql);
    EXPECT_FALSE(made);
    EXPECT_EQ(made.code(), QUILLET_CAN_NOT_TRANSLATE);
    EXPECT_EQ(made.text(), "");
    EXPECT_NE(made.text().data(), nullptr);
    EXPECT_EQ(said(made), "1:8+10 2 -11 refused-initcap\n2:3+8 2 -8 refused-btrim\n");
    ASSERT_EQ(made.diagnostics().size(), 2);
    const quillet::diagnostic second = made.diagnostics()[1];
    EXPECT_EQ(second.severity, severity::refusal);
    EXPECT_EQ(second.offset, 21);
    EXPECT_EQ(second.message, "BTRIM function not implemented in MySQL backend");
    EXPECT_EQ(second.hint, "write trim(x), or trim(both 'c' from x) for a single character c");
}

TEST(Value, TellsASyntaxError) {
    const auto made = translate("select from", target::mysql);
    EXPECT_FALSE(made);
    EXPECT_EQ(made.code(), QUILLET_INVALID_QUERY);
    ASSERT_EQ(said(made), "1:8+4 3 0 syntax-error\n");
    EXPECT_EQ(made.diagnostics()[0].message, "syntax error at or near \"from\"");
    EXPECT_EQ(made.diagnostics()[0].hint, std::nullopt);
}

TEST(Value, TellsWhatIsNoFailure) {
    const auto made = translate("select a /* b", target::postgresql);
    EXPECT_TRUE(made);
    EXPECT_EQ(made.text(), "SELECT a");
    ASSERT_EQ(said(made), "1:10+4 1 0 unended-comment\n");
    EXPECT_EQ(made.diagnostics()[0].severity, severity::warning);
}

TEST(Value, CountsCharacters) {
    const auto made = translate("select 'żółć €', 'ß',\n '𝄞' || initcap('ł')", target::mysql);
    ASSERT_EQ(said(made), "2:9+13 2 -11 refused-initcap\n");
    EXPECT_EQ(made.diagnostics()[0].offset, 40);
    EXPECT_EQ(said(translate("select 'é', ż", target::mysql)), "1:13+2 3 0 unknown-character\n");
}

TEST(Value, AnEmptyStatementIsASyntaxError) {
    for (const std::string_view empty : {std::string_view(), ""sv}) {
        const auto made = translate(empty, target::postgresql);
        EXPECT_EQ(made.code(), QUILLET_INVALID_QUERY);
        EXPECT_EQ(said(made), "1:1+0 3 0 syntax-error\n");
    }
}

TEST(Value, ReadsBeyondANul) {
    const auto made = translate("select a\0, b"sv, target::postgresql);
    EXPECT_EQ(made.code(), QUILLET_INVALID_QUERY);
    ASSERT_EQ(said(made), "1:9+1 3 0 unknown-character\n");
    EXPECT_EQ(made.diagnostics()[0].message, "unknown character \"\\x00\"");
}

TEST(Value, KeepsToTheLimits) {
    constexpr std::string_view statement = "select a, b from t";
    EXPECT_TRUE(translate(statement, target::postgresql, {}));
    EXPECT_TRUE(translate(statement, target::postgresql, {1000, 100000}));
    constexpr std::size_t most = std::numeric_limits<std::size_t>::max();
    EXPECT_TRUE(translate(statement, target::postgresql, {most, most}));

    const auto long_text = translate(statement, target::postgresql, {10, 0});
    EXPECT_EQ(long_text.code(), QUILLET_CAN_NOT_TRANSLATE);
    EXPECT_EQ(said(long_text), "1:1+18 3 0 text-too-large\n");

    quillet::options asked;
    asked.tree_limit = 10;
    const auto large_tree = translate(statement, target::postgresql, asked);
    EXPECT_EQ(large_tree.code(), QUILLET_CAN_NOT_TRANSLATE);
    EXPECT_EQ(said(large_tree), "1:1+18 3 0 tree-too-large\n");
}

TEST(Value, MovesWithWhatItGaveOut) {
    auto first = translate("select initcap(a)", target::mysql);
    const std::string_view id = first.diagnostics()[0].id;
    const auto second = std::move(first);
    EXPECT_EQ(second.diagnostics()[0].id.data(), id.data());

    auto third = translate("select 1", target::mysql);
    const std::string_view text = third.text();
    auto fourth = translate("select 2", target::mysql);
    fourth = std::move(third);
    EXPECT_EQ(fourth.text().data(), text.data());
    EXPECT_EQ(text, "SELECT 1");
}

TEST(Value, IsAFailureWithoutAStatement) {
    auto first = translate("select 1", target::mysql);
    const auto second = std::move(first);
    const quillet::translation none;
    for (const quillet::translation *each : {&std::as_const(first), &none}) { // NOLINT: moved from
        EXPECT_FALSE(*each);
        EXPECT_EQ(each->code(), QUILLET_CAN_NOT_TRANSLATE);
        EXPECT_EQ(each->text(), "");
        EXPECT_TRUE(each->diagnostics().empty());
    }
    EXPECT_EQ(second.text(), "SELECT 1");
}

TEST(Value, TakesOverWhatTheCallReturned) {
    const quillet::translation made(quillet_translate("select 1", 8, 0, nullptr));
    EXPECT_EQ(made.text(), "SELECT 1");
}

TEST(Value, CanBeMadeInAContainer) {
    std::vector<quillet::translation> all;
    for (const char *statement : {"select 1", "select", "select 3"})
        all.push_back(translate(statement, target::postgresql));
    const auto is_made = [](const quillet::translation &each) { return bool(each); };
    EXPECT_EQ(std::count_if(all.begin(), all.end(), is_made), 2);
    EXPECT_EQ(all[2].text(), "SELECT 3");
}

TEST(Value, DiagnosticsGoThroughAlgorithms) {
    const auto made = translate("select initcap(a), btrim(b), age(c)", target::mysql);
    const auto all = made.diagnostics();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [](const auto &each) { return each.id == "refused-btrim"; });
    ASSERT_NE(found, all.end());
    EXPECT_EQ(found->column, 20);

    auto next = found;
    EXPECT_EQ((*next++).id, "refused-btrim");
    EXPECT_EQ(next->id, "refused-age");
    EXPECT_EQ(++next, all.end());
    EXPECT_EQ(found->id, "refused-btrim");

    const std::vector<quillet::diagnostic> copies(all.begin(), all.end());
    ASSERT_EQ(copies.size(), 3);
    EXPECT_EQ(copies[2].id, "refused-age");
}

// While one lives the builder postgresql is a host's, which translates within a translation: each
// name becomes a statement with a call of it in MySQL text.
class hosted {
public:
    hosted() : info(*quillet_get_builder_info(0)) {
        constructor = info.constructor;
        info.constructor = create;
    }
    ~hosted() { info.constructor = constructor; }
    hosted(const hosted &) = delete;
    hosted &operator=(const hosted &) = delete;

private:
    static builder *create() {
        builder *made = constructor();
        made->build_identifier = translate_name;
        return made;
    }

    static build_result *translate_name(builder *, node_identifier *node, void *) {
        const auto nested = translate(std::string("select ") + node->name + "(1)", target::mysql);
        build_result *result = quillet_build_result_create();
        if (nested)
            result->query = quillet_concat(nested.text().data(), nullptr);
        else
            result->build_result = QUILLET_BUILD_CANNOT_RENDER;
        return result;
    }

    quillet_builder_info &info;
    static inline builder *(*constructor)() = nullptr;
};

TEST(Value, GoesThroughAHostsBuilder) {
    quillet_init();
    const hosted host;
    EXPECT_EQ(translate("select chr, cbrt", target::postgresql).text(),
              "SELECT SELECT CHAR(1), SELECT POWER(1, 1/3)");
    const auto refused = translate("select chr, initcap", target::postgresql);
    EXPECT_EQ(refused.code(), QUILLET_CAN_NOT_TRANSLATE);
    EXPECT_EQ(said(refused), "1:13+7 2 0 refused\n");
}

} // namespace
