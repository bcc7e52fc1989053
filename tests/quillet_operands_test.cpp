// The composer: whatever way operands go into a text, the text is the same; and the choice among
// alternatives, and what rows can say.

#include "quillet_operands.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "answering_builder.h"

using namespace quillet_tests;
using quillet::first_with_text;
using quillet::operands;
using quillet::rendering;
using quillet::text_template;

namespace {

class Operands : public testing::Test {
protected:
    node_expression *expression(const char *text, int status = 0) {
        owned_nodes.push_back(owned<node_expression>(
            builder_.expression(text ? gives(text, status) : textless(status))));
        return owned_nodes.back().get();
    }

    // Renders operands that answer with these texts and writes them into a text.
    std::string written(std::string_view text, const std::vector<const char *> &texts,
                        bool is_known_before, std::size_t skipped = 0) {
        rendering r(&builder_.self);
        r.out.append("<");
        const text_template marked(text);
        operands all(r, is_known_before ? &marked : nullptr);
        for (const char *operand : texts)
            all.add(expression(operand));
        const quillet::outcome result = all.write(marked, skipped);
        EXPECT_TRUE(result.record);
        EXPECT_TRUE(result.text);
        EXPECT_EQ(result.status, 0);
        r.out.append(">");
        return std::string(r.out.settle({}));
    }

    answering builder_;
    std::vector<owned<node_expression>> owned_nodes;
};

struct written_case {
    const char *text;
    std::vector<const char *> operands;
    const char *written;
};

const written_case cases[] = {
    {"", {}, "<>"},
    {"RAND()", {}, "<RAND()>"},
    {"$1", {"a"}, "<a>"},
    {"f($1)", {"a"}, "<f(a)>"},
    {"$1 + $2", {"a", "b"}, "<a + b>"},
    {"f($1, $2)!", {"a", "b"}, "<f(a, b)!>"},
    {"$2, $1", {"a", "bc"}, "<bc, a>"},
    {"$1 = $1", {"ab"}, "<ab = ab>"},
    {"IF($1, $2, $1 != $2)", {"a", "b"}, "<IF(a, b, a != b)>"},
    {"($3)($1)($4)($2)", {"a", "b", "c", "d"}, "<(c)(a)(d)(b)>"},
    {"f($1)", {""}, "<f()>"},
    {"$1 + $2", {nullptr, "b"}, "< + b>"},
    {"$2 + $1", {"a", nullptr}, "< + a>"},
};

TEST_F(Operands, AreWrittenIntoATextKnownBeforeOrAfter) {
    for (const written_case &tested : cases) {
        EXPECT_EQ(written(tested.text, tested.operands, true), tested.written) << tested.text;
        EXPECT_EQ(written(tested.text, tested.operands, false), tested.written) << tested.text;
    }
}

// A text that is chosen afterwards may leave some of them out.
TEST_F(Operands, AreDroppedIfTheTextLacksThem) {
    EXPECT_EQ(written("f($1)", {"a", "b"}, false), "<f(a)>");
    EXPECT_EQ(written("f($2)", {"a", "b"}, false), "<f(b)>");
    EXPECT_EQ(written("f()", {"a"}, false), "<f()>");
}

TEST_F(Operands, LeaveOutCharactersOfTheFirst) {
    EXPECT_EQ(written("-$1", {"abc"}, false, 2), "<-c>");
    EXPECT_EQ(written("$1, $2", {"abc", "de"}, false, 1), "<bc, de>");
    EXPECT_EQ(written("-$1", {"abc"}, false, 9), "<->");
}

TEST_F(Operands, KeepTheLastStatus) {
    rendering r(&builder_.self);
    operands all(r);
    EXPECT_EQ(all.add(expression("a", -3)).status, -3);
    EXPECT_EQ(all.status(), -3);
    all.add(expression("b", -2));
    all.add(expression("c"));
    EXPECT_EQ(all.status(), -2);
    all.fail_with({true, false, -7});
    EXPECT_EQ(all.write(text_template("$3$1")).status, -7);
    EXPECT_EQ(r.out.text_since({}), "ca");
}

TEST_F(Operands, MayBeTextsThatAreThere) {
    for (const char *text : {"f($1, '$2')", "'$2'$1"}) {
        rendering r(&builder_.self);
        const text_template marked{std::string_view(text)};
        operands all(r);
        all.add(expression("a"));
        all.add_text("%Y");
        EXPECT_EQ(all.write(marked).status, 0);
        EXPECT_EQ(r.out.settle({}), text[0] == 'f' ? "f(a, '%Y')" : "'%Y'a");
    }
}

TEST_F(Operands, KeepTheirDistanceIfBothHaveAText) {
    const text_template marked("$1 LIKE $2$e");
    struct spaced_case {
        const char *pattern;
        const char *escape;
        const char *written;
    };
    for (const auto &[pattern, escape, text] : {spaced_case{"b", "c", "a LIKE b c"},
                                                {"b", nullptr, "a LIKE b"},
                                                {"b", "", "a LIKE b"},
                                                {"", "c", "a LIKE c"},
                                                {nullptr, "c", "a LIKE c"},
                                                {"", "", "a LIKE "}}) {
        rendering r(&builder_.self);
        operands all(r, &marked);
        all.add(expression("a"));
        all.add(expression(pattern));
        all.add_spaced(expression(escape));
        all.write(marked);
        EXPECT_EQ(r.out.text_since({}), text);
    }
}

TEST_F(Operands, AreDropped) {
    rendering r(&builder_.self);
    r.out.append("kept");
    operands all(r);
    all.add(expression("a"));
    all.add(expression("b"));
    all.drop();
    EXPECT_EQ(r.out.settle({}), "kept");
}

TEST_F(Operands, GoOnAfterTheFirst) {
    for (const char *text : {"f($1, $2)", "f($2, $1)"}) {
        const text_template marked{std::string_view(text)};
        rendering r(&builder_.self);
        r.out.append("<");
        const quillet::output::place begin = r.out.here();
        operands(r, &marked).before();
        const quillet::outcome first = r.child(expression("a", -3));
        operands all(r, &marked, begin);
        all.resume(first);
        all.add(expression("b"));
        EXPECT_EQ(all.write(marked).status, -3);
        EXPECT_EQ(r.out.settle({}), text[3] == '1' ? "<f(a, b)" : "<f(b, a)");
    }
}

// Alternatives.

struct alternative {
    const char *text;
    int rank;
    bool stands_without_text = false;
    bool is_chosen = false; // so far
};

struct choice_case {
    std::vector<alternative> alternatives;
    const char *text;
    bool is_decided;
    bool has_text;
};

const choice_case choices[] = {
    {{}, "", false, false},
    {{{nullptr, 0}, {nullptr, 0}}, "", false, false},
    {{{"a", 0, false, true}, {"b", 0}, {"c", 0}}, "a", true, true},
    {{{nullptr, 0}, {"b", 0, false, true}, {"c", 0}}, "b", true, true},
    {{{"a", 2, false, true}, {"b", 1, false, true}, {"c", 3}}, "b", true, true},
    {{{"a", 1, false, true}, {nullptr, 0}, {"c", 2}}, "a", true, true},
    {{{"", 0, false, true}, {"b", 0}}, "", true, true},
    {{{nullptr, 2, true, true}, {"b", 3}}, "", true, false},
    {{{nullptr, 2, true, true}, {"b", 1, false, true}}, "b", true, true},
    {{{"a", 1, false, true}, {nullptr, 2, true}}, "a", true, true},
    {{{"a", 3, false, true}, {nullptr, 2, true, true}}, "", true, false},
};

TEST_F(Operands, AlternativesAreChosenByTheirRank) {
    for (std::size_t i = 0; i < std::size(choices); ++i) {
        rendering r(&builder_.self);
        r.out.append("<");
        first_with_text chosen(r);
        for (const alternative &tried : choices[i].alternatives)
            EXPECT_EQ(chosen.add(expression(tried.text), tried.rank, tried.stands_without_text),
                      tried.is_chosen)
                << i;
        EXPECT_EQ(r.out.settle({}), std::string("<") + choices[i].text) << i;
        EXPECT_EQ(chosen.is_decided(), choices[i].is_decided) << i;
        EXPECT_EQ(chosen.has_text(), choices[i].has_text) << i;
    }
}

TEST_F(Operands, AlternativesKeepTheLastStatus) {
    rendering r(&builder_.self);
    first_with_text chosen(r);
    chosen.add(expression("a", -3));
    chosen.add(expression("b", -2));
    chosen.add(expression(nullptr));
    chosen.add(static_cast<node_expression *>(nullptr));
    EXPECT_EQ(chosen.status(), -2);
}

// Rows for node kinds, of a dialect of the test's.

std::int32_t kept_reason = 0;

enum class reason : std::int32_t { FULL_JOIN = -7 };

const quillet::dialect of_the_test = [] {
    quillet::dialect own{};
    own.keep_reason = [](std::int32_t code) { kept_reason = code; };
    return own;
}();

outcome render_by(const quillet::kind_rule<node_join> &rule, int type) {
    const owned<builder> self(quillet_default_builder_create());
    const owned<node_join> join(
        make(node_join{.type = type, .table = make(node_table{.identifier = identifier("t")})}));
    kept_reason = 0;
    rendering r(self.get());
    return taken(r.finish(r.by_rule(rule, of_the_test, join.get(), nullptr)));
}

TEST(Rows, RefuseAKindUnderACondition) {
    constexpr quillet::kind_rule<node_join> rule = quillet::rows::refused_if(
        reason::FULL_JOIN, [](const node_join &node) { return node.type == QUILLET_JOIN_FULL; });
    EXPECT_EQ(render_by(rule, QUILLET_JOIN_FULL), textless(-3));
    EXPECT_EQ(kept_reason, -7);
    EXPECT_EQ(render_by(rule, QUILLET_JOIN_LEFT), gives("LEFT OUTER JOIN t"));
    EXPECT_EQ(kept_reason, 0);
}

TEST(Rows, RefuseAKind) {
    constexpr quillet::kind_rule<node_join> rule = quillet::rows::refused(reason::FULL_JOIN);
    EXPECT_EQ(render_by(rule, QUILLET_JOIN_LEFT), textless(-3));
    EXPECT_EQ(kept_reason, -7);
}

quillet::outcome render_own_join(rendering &r, node_join *, void *) {
    r.out.append("own");
    return quillet::a_text;
}

TEST(Rows, RenderAKindByAFunction) {
    constexpr quillet::kind_rule<node_join> rule = quillet::rows::own(render_own_join);
    EXPECT_EQ(render_by(rule, QUILLET_JOIN_FULL), gives("own"));
    EXPECT_EQ(kept_reason, 0);
}

TEST(Rows, LeaveAKindToTheDefault) {
    EXPECT_EQ(render_by({}, QUILLET_JOIN_FULL), gives("FULL OUTER JOIN t"));
}

// Sets of types.
TEST(TypeSets, HoldTheirTypesAlone) {
    using quillet::type_set;
    const type_set two = type_set::of(QUILLET_TYPE_INT8) | type_set::of(QUILLET_TYPE_TIMESTAMPZ);
    for (int type = -2; type <= 40; ++type) {
        EXPECT_EQ(two.has(type), type == QUILLET_TYPE_INT8 || type == QUILLET_TYPE_TIMESTAMPZ);
        EXPECT_EQ(two.without(type_set::of(QUILLET_TYPE_INT8)).has(type),
                  type == QUILLET_TYPE_TIMESTAMPZ);
        EXPECT_TRUE(quillet::any_type.has(type));
    }
}

} // namespace
