// The default rendering of expressions: the operators, and the choice of what an expression is.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "answering_builder.h"
#include "quillet_builder.h"
#include "quillet_types.h"
#include "support.h"

using namespace quillet_tests;

namespace {

// The operators: their texts with the operands a, b and c, the truth value TRUE and the pairs p, q
// and r, s.

struct type_rule {
    int (*of_two)(int left, int right) = nullptr;
    int (*of_one)(int type) = nullptr;

    type_rule(int (*rule)(int, int)) : of_two(rule) {}
    type_rule(int (*rule)(int)) : of_one(rule) {}
    int operator()(int left, int right) const {
        return of_two ? of_two(left, right) : of_one(left);
    }
};

int always_bool(int) { return QUILLET_TYPE_BOOL; }

enum needed : std::uint8_t { nothing = 0, a = 1, b = 2, c = 4, truth = 8, pairs = 16 };

struct operator_case {
    const char *name;
    build_result *(*operation)(builder *, node_expression *, void *);
    const char *text;
    int operands; // a set of needed
    bool required;
    type_rule type;
};

#define OPERATOR_CASE(name, text, operands, required, type)                                        \
    { "operator_" #name, quillet_operator_##name##_default_builder, text, operands, required, type }
#define NEEDING(name, text, operands, rule)                                                        \
    OPERATOR_CASE(name, text, operands, true, quillet_get_result_type_##rule)
#define NEEDING_FOR_BOOL(name, text, operands)                                                     \
    OPERATOR_CASE(name, text, operands, true, always_bool)
#define NEEDING_NOTHING(name, text)                                                                \
    OPERATOR_CASE(name, text, a | b, false, quillet_get_result_type_bool)

const operator_case operators[] = {
    NEEDING(multiplicity, "a * b", a | b, add),
    NEEDING(divide, "a / b", a | b, divide),
    NEEDING(modulo, "a % b", a | b, modulo),
    NEEDING(addition, "a + b", a | b, add),
    NEEDING(substraction, "a - b", a | b, sub),
    NEEDING(uminus, "- a", a, same),
    NEEDING(and, "a AND b", a | b, bool),
    NEEDING(or, "a OR b", a | b, bool),
    NEEDING(not, "NOT a", a, bool_one),
    NEEDING_FOR_BOOL(between, "a BETWEEN b AND c", a | b | c),
    NEEDING_FOR_BOOL(not_between, "a NOT BETWEEN b AND c", a | b | c),
    NEEDING(is_null, "a IS NULL", a, bool_one),
    NEEDING(is_not_null, "a IS NOT NULL", a, bool_one),
    NEEDING(distinct_from, "a IS DISTINCT FROM b", a | b, bool),
    NEEDING_FOR_BOOL(is, "a IS TRUE", a | truth),
    NEEDING_FOR_BOOL(is_not, "a IS NOT TRUE", a | truth),
    NEEDING_NOTHING(like, "a LIKE b"),
    NEEDING_NOTHING(not_like, "a NOT LIKE b"),
    NEEDING_NOTHING(ilike, "a ILIKE b"),
    NEEDING_NOTHING(not_ilike, "a NOT ILIKE b"),
    NEEDING_NOTHING(similar_to, "a SIMILAR TO b"),
    NEEDING_NOTHING(not_similar_to, "a NOT SIMILAR TO b"),
    NEEDING(equal, "a = b", a | b, bool),
    NEEDING(not_equal, "a != b", a | b, bool),
    NEEDING(greater, "a > b", a | b, bool),
    NEEDING(not_greater, "a <= b", a | b, bool),
    NEEDING(lesser, "a < b", a | b, bool),
    NEEDING(not_lesser, "a >= b", a | b, bool),
    NEEDING(square_root, "|/a", a, float),
    NEEDING(cubic_root, "||/a", a, float),
    NEEDING(factorial, "a!", a, int),
    NEEDING(shift_left, "a << b", a | b, modulo),
    NEEDING(shift_right, "a >> b", a | b, modulo),
    NEEDING(concatenate, "a || b", a | b, string),
    NEEDING(abs, "@a", a, same),
    NEEDING(power, "a ^ b", a | b, add),
    NEEDING(bitwise_and, "a & b", a | b, int2),
    NEEDING(bitwise_or, "a | b", a | b, int2),
    NEEDING(bitwise_xor, "a # b", a | b, int2),
    NEEDING(bitwise_not, "~a", a, int),
    NEEDING(regex, "a ~ b", a | b, bool),
    NEEDING(iregex, "a ~* b", a | b, bool),
    NEEDING(not_regex, "a !~ b", a | b, bool),
    NEEDING(not_iregex, "a !~* b", a | b, bool),
    NEEDING_FOR_BOOL(overlaps, "(p, q) OVERLAPS (r, s)", pairs),
};

// An application of the operator to columns, without the operands left out.
node_expression *application(const operator_case &tested, int left_out = nothing) {
    const int operands = tested.operands & ~left_out;
    return make(node_expression{
        .operator_ = copy(tested.name),
        .expression_1 = operands & a ? column("a") : nullptr,
        .expression_2 = operands & b ? column("b") : nullptr,
        .expression_3 = operands & c ? column("c") : nullptr,
        .const_boolean = operands & truth ? const_boolean(1) : nullptr,
        .overlaps_expression_1 = operands & pairs ? pair("p", "q") : nullptr,
        .overlaps_expression_2 = operands & pairs ? pair("r", "s") : nullptr,
    });
}

TEST(Operators, ThereAreFortyFive) { EXPECT_EQ(std::size(operators), 45U); }

TEST(Operators, Texts) {
    const owned<builder> self(quillet_default_builder_create());
    for (const operator_case &tested : operators) {
        const any_tree tree(application(tested));
        EXPECT_EQ(tree.render(self.get()), gives(tested.text)) << tested.name;
        EXPECT_EQ(tree.sql_type(), tested.type(0, 0)) << tested.name;
        const owned<node_expression> node(application(tested));
        EXPECT_EQ(taken(tested.operation(self.get(), node.get(), nullptr)), gives(tested.text))
            << tested.name;
        EXPECT_EQ(node->sql_type, tested.type(0, 0)) << tested.name;
    }
}

TEST(Operators, RequiredOperands) {
    for (const operator_case &tested : operators)
        for (const int left_out : {a, b, c, truth})
            if (tested.required && tested.operands & left_out) {
                answering stub;
                EXPECT_EQ(stub.render(tested.operation, application(tested, left_out)),
                          textless(-2))
                    << tested.name << ' ' << left_out;
                EXPECT_TRUE(visits.empty()) << tested.name;
            }
}

TEST(Operators, RequiredPairs) {
    const owned<builder> self(quillet_default_builder_create());
    const auto overlaps = [&](bool first, bool second) {
        const any_tree tree(make(node_expression{
            .operator_ = copy("operator_overlaps"),
            .overlaps_expression_1 = first ? pair("p", "q") : nullptr,
            .overlaps_expression_2 = second ? pair("r", "s") : nullptr,
        }));
        return tree.render(self.get());
    };
    EXPECT_EQ(overlaps(true, false), textless(-2));
    EXPECT_EQ(overlaps(false, true), textless(-2));
    EXPECT_EQ(overlaps(false, false), textless(-2));
}

TEST(Operators, TypesOfTypedOperands) {
    for (const operator_case &tested : operators)
        for (int left = 0; left <= 18; ++left)
            for (int right = 0; right <= 18; ++right) {
                answering stub;
                node_expression *node = application(tested);
                for (auto [operand, type] : {std::pair(node->expression_1, left),
                                             {node->expression_2, right},
                                             {node->expression_3, 0}})
                    if (operand)
                        stub.child(operand, gives("x"))->sql_type = type;
                stub.render(tested.operation, node);
                EXPECT_EQ(stub.rendered_type, tested.type(left, right))
                    << tested.name << ' ' << left << ' ' << right;
            }
}

// What has no record has no type either.
TEST(Operators, TypesOfOperandsWithoutRecord) {
    answering stub;
    stub.render(
        quillet_operator_addition_default_builder,
        make(node_expression{.expression_1 = stub.expression(no_record, QUILLET_TYPE_DATE),
                             .expression_2 = stub.expression(gives("1"), QUILLET_TYPE_INT8)}));
    EXPECT_EQ(stub.rendered_type, QUILLET_TYPE_FLOAT8);
    stub.render(
        quillet_operator_addition_default_builder,
        make(node_expression{.expression_1 = stub.expression(gives("1"), QUILLET_TYPE_INT8),
                             .expression_2 = stub.expression(no_record, QUILLET_TYPE_DATE)}));
    EXPECT_EQ(stub.rendered_type, QUILLET_TYPE_FLOAT8);
    stub.render(
        quillet_operator_uminus_default_builder,
        make(node_expression{.expression_1 = stub.expression(no_record, QUILLET_TYPE_DATE)}));
    EXPECT_EQ(stub.rendered_type, QUILLET_TYPE_UNKNOWN);
}

// The text without the operands that gave none.
std::string gaps(const operator_case &tested) {
    std::string text;
    for (const char *letter = tested.text; *letter; ++letter)
        if (!std::strchr("abc", *letter))
            text += *letter;
    if (tested.operands & truth)
        text.resize(text.size() - std::strlen("TRUE"));
    return tested.operands & pairs ? "() OVERLAPS ()" : text;
}

TEST(Operators, OperandsWithoutTextLeaveGaps) {
    for (const operator_case &tested : operators)
        for (const outcome &answer : {no_record, textless(0)}) {
            answering stub;
            node_expression *node = application(tested);
            for (node_expression *operand :
                 {node->expression_1, node->expression_2, node->expression_3})
                answers[operand] = answer;
            EXPECT_EQ(stub.render(tested.operation, node), gives(gaps(tested))) << tested.name;
        }
}

TEST(Operators, TheLastFailureCounts) {
    for (const operator_case &tested : operators) {
        answering stub;
        node_expression *node = application(tested);
        const std::vector<const void *> operands = [&] {
            std::vector<const void *> all;
            for (const void *operand : {static_cast<const void *>(node->expression_1),
                                        static_cast<const void *>(node->expression_2),
                                        static_cast<const void *>(node->expression_3),
                                        static_cast<const void *>(node->const_boolean),
                                        static_cast<const void *>(node->overlaps_expression_1),
                                        static_cast<const void *>(node->overlaps_expression_2)})
                if (operand)
                    all.push_back(operand);
            return all;
        }();
        int status = -100;
        std::vector<visit> order;
        for (const void *operand : operands) {
            answers[operand] = gives("x", --status);
            order.push_back({operand, nullptr});
        }
        const outcome result = stub.render(tested.operation, node);
        EXPECT_EQ(result.status, status) << tested.name;
        EXPECT_TRUE(result.text.has_value()) << tested.name;
        EXPECT_EQ(visits, order) << tested.name;
    }
}

TEST(Operators, PatternsWithEscape) {
    const owned<builder> self(quillet_default_builder_create());
    for (const operator_case &tested : operators) {
        if (tested.required)
            continue;
        const std::string word = gaps(tested);
        const auto rendered = [&](bool left, bool right, bool escape) {
            node_expression *node = operation(tested.name, left ? column("a") : nullptr,
                                              right ? string("'x%'") : nullptr);
            node->escape = escape ? make(node_escape{.string = copy("'!'")}) : nullptr;
            const any_tree tree(node);
            const outcome result = tree.render(self.get());
            EXPECT_EQ(tree.sql_type(), QUILLET_TYPE_BOOL);
            return result;
        };
        EXPECT_EQ(rendered(true, true, true), gives("a" + word + "'x%' ESCAPE '!'"));
        EXPECT_EQ(rendered(true, true, false), gives("a" + word + "'x%'"));
        EXPECT_EQ(rendered(true, false, true), gives("a" + word + "ESCAPE '!'"));
        EXPECT_EQ(rendered(false, true, true), gives(word + "'x%' ESCAPE '!'"));
        EXPECT_EQ(rendered(true, false, false), gives("a" + word));
        EXPECT_EQ(rendered(false, true, false), gives(word + "'x%'"));
    }
    EXPECT_EQ(any_tree(operation("operator_like", nullptr, column("b"))).render(self.get()),
              gives(" LIKE b"));
}

TEST(Operators, TruthValues) {
    const owned<builder> self(quillet_default_builder_create());
    const auto is = [&](int value) {
        node_expression *node = operation("operator_is", column("x"));
        node->const_boolean = const_boolean(value);
        return any_tree(node).render(self.get());
    };
    EXPECT_EQ(is(1), gives("x IS TRUE"));
    EXPECT_EQ(is(2), gives("x IS FALSE"));
    EXPECT_EQ(is(3), gives("x IS UNKNOW"));
    EXPECT_EQ(is(0), gives("x IS UNKNOW"));
    EXPECT_EQ(is(-1), gives("x IS UNKNOW"));
}

// The slot of an operator gets the node; without an operation there is no record.
TEST(Operators, AreDispatchedToTheirSlots){
#define OPERATOR(name, ...)                                                                        \
    {                                                                                              \
        answering stub;                                                                            \
        const owned<node_expression> node(                                                         \
            operation("operator_" #name, create<node_expression>()));                              \
        answers[node.get()] = gives("from the slot", -7);                                          \
        EXPECT_EQ(taken(quillet_expression_default_builder(&stub.self, node.get(), &stub)),        \
                  gives("from the slot", -7));                                                     \
        EXPECT_EQ(visits, (std::vector<visit>{{node.get(), nullptr}})) << #name;                   \
        stub.self.build_operator_##name = nullptr;                                                 \
        EXPECT_EQ(taken(quillet_expression_default_builder(&stub.self, node.get(), nullptr)),      \
                  no_record)                                                                       \
            << #name;                                                                              \
    }
#include "quillet_operators.def"
}

TEST(Operators, UnknownNamesRenderAsNothing) {
    for (const char *name :
         {"", "operator", "operator_", "addition", "operator_Addition", "OPERATOR_ADDITION",
          "operator_additions", "operator_additio", " operator_addition", "operator_addition ",
          "operator_is_", "operator_plus", "+", "build_operator_addition"}) {
        answering stub;
        EXPECT_EQ(stub.render(quillet_expression_default_builder,
                              operation(name, column("a"), column("b"))),
                  textless(0))
            << name;
        EXPECT_TRUE(visits.empty()) << name;
    }
}

// Which of an expression's children is its text, and what type it gets.

TEST(Expressions, ChildrenInOrder) {
    answering stub;
    node_expression *node = make(node_expression{
        .const_generic = stub.child<node_const_generic>(gives("constant", -3)),
        .column_reference = stub.child<node_column_reference>(gives("column", -2)),
        .function_call = stub.child<node_function_call>(gives("call", -1)),
        .cast_expression = stub.child<node_cast_expression>(gives("cast", -4)),
        .case_expression = stub.child<node_case_expression>(gives("case", -5)),
    });
    const std::vector<visit> order = {{node->function_call, nullptr},
                                      {node->column_reference, nullptr},
                                      {node->const_generic, nullptr},
                                      {node->cast_expression, nullptr},
                                      {node->case_expression, nullptr}};
    EXPECT_EQ(stub.render(quillet_expression_default_builder, node), gives("constant", -5));
    EXPECT_EQ(visits, order);
}

struct choice_case {
    const char *constant; // NULL: no such child; "-": one without text
    const char *call;
    const char *column;
    const char *cast;
    const char *chosen_case;
    const char *expected; // NULL: no text
    int type;
};

constexpr choice_case choices[] = {
    // constant, call, column, cast, case, expected, type (100 unchanged, else as the child's)
    {"k", "f", "c", "t", "w", "k", 1},
    {"-", "f", "c", "t", "w", "f", 2},
    {nullptr, "f", "c", "t", "w", "f", 2},
    {nullptr, "-", "c", "t", "w", "c", 100},
    {nullptr, nullptr, "c", "t", "w", "c", 100},
    {nullptr, nullptr, "-", "t", "w", nullptr, 100},
    {"-", "-", "-", "t", "w", nullptr, 100},
    {nullptr, nullptr, nullptr, "t", "w", "t", 3},
    {"-", "-", nullptr, "t", "w", "t", 3},
    {nullptr, nullptr, nullptr, "-", "w", "w", 100},
    {nullptr, nullptr, nullptr, nullptr, "w", "w", 100},
    {"k", nullptr, nullptr, nullptr, nullptr, "k", 1},
    {nullptr, "f", nullptr, nullptr, nullptr, "f", 2},
};

TEST(Expressions, TheFirstApplicableChildIsTheText) {
    for (const choice_case &tested : choices) {
        answering stub;
        const auto child = [&]<class Node>(const Node &fields, const char *text) -> Node * {
            if (!text)
                return nullptr;
            return stub.child(make(fields), *text == '-' ? textless(0) : gives(text));
        };
        node_expression *node = make(node_expression{
            .sql_type = 100,
            .const_generic = child(node_const_generic{.sql_type = 1}, tested.constant),
            .column_reference = child(node_column_reference{.sql_type = 4}, tested.column),
            .function_call = child(node_function_call{.sql_type = 2}, tested.call),
            .cast_expression = child(node_cast_expression{.sql_type = 3}, tested.cast),
            .case_expression = child(node_case_expression{.sql_type = 5}, tested.chosen_case),
        });
        EXPECT_EQ(stub.render(quillet_expression_default_builder, node),
                  tested.expected ? gives(tested.expected) : textless(0));
        EXPECT_EQ(stub.rendered_type, tested.type);
    }
}

TEST(Expressions, Parentheses) {
    answering stub;
    const auto render = [&](const outcome &inner, node_function_call *call = nullptr) {
        return stub.render(
            quillet_expression_default_builder,
            make(node_expression{.expression_1 = stub.expression(inner, QUILLET_TYPE_TIME),
                                 .function_call = call}));
    };
    EXPECT_EQ(render(gives("x")), gives("(x)"));
    EXPECT_EQ(stub.rendered_type, QUILLET_TYPE_TIME);
    EXPECT_EQ(render(gives("x", -3)), gives("(x)", -3));
    EXPECT_EQ(render(textless(-2)), gives("()", -2));
    EXPECT_EQ(render(no_record), gives("()"));
    EXPECT_EQ(render(gives("x"), stub.child<node_function_call>(textless(-3))), gives("(x)", -3));
    EXPECT_EQ(render(gives("x", -2), stub.child<node_function_call>(textless(-3))),
              gives("(x)", -2));
}

TEST(Expressions, OfNothingLackAPart) {
    answering stub;
    EXPECT_EQ(stub.render(quillet_expression_default_builder, create<node_expression>()),
              textless(-2));
    EXPECT_EQ(stub.render(quillet_expression_default_builder,
                          make(node_expression{.const_boolean = const_boolean(1)})),
              textless(-2));
    // A failure that is already there is kept.
    EXPECT_EQ(stub.render(quillet_expression_default_builder,
                          make(node_expression{.function_call =
                                                   stub.child<node_function_call>(textless(-3))})),
              textless(-3));
    EXPECT_EQ(stub.render(quillet_expression_default_builder,
                          make(node_expression{.function_call =
                                                   stub.child<node_function_call>(textless(0))})),
              textless(-2));
}

TEST(Expressions, AnOperatorForgetsTheFailuresBeforeIt) {
    answering stub;
    node_expression *node = operation("operator_not", column("a"));
    node->function_call = stub.child<node_function_call>(textless(-3));
    answers[node] = gives("NOT a");
    EXPECT_EQ(stub.render(quillet_expression_default_builder, node), gives("NOT a"));
}

TEST(Expressions, AnOperatorIsNotLookedAtBesideALeaf) {
    answering stub;
    node_expression *node = operation("operator_not", column("a"));
    node->const_generic = stub.child<node_const_generic>(gives("1"));
    EXPECT_EQ(stub.render(quillet_expression_default_builder, node), gives("1"));
}

} // namespace
