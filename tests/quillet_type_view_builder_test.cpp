#include "quillet_type_view_builder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "quillet_types.h"
#include "support.h"

using namespace quillet_tests;

namespace {

TEST(TypeViewInfo, IsOneRecord) {
    const quillet_builder_info *info = quillet_type_view_builder_get_info();
    EXPECT_EQ(info, &quillet_type_view_builder_info);
    EXPECT_STREQ(info->builder_name, "type_view");
    EXPECT_STREQ(info->builder_description,
                 "outputs postgresql statement with debug information about types");
    EXPECT_EQ(info->constructor, quillet_type_view_builder_create);
    EXPECT_EQ(info->get_error_code, nullptr);
    EXPECT_EQ(info->get_error_description, nullptr);
}

struct tree_case {
    any_tree tree;
    outcome expected;
};

void expect_texts(const std::vector<tree_case> &cases) {
    const owned<builder> self(quillet_type_view_builder_create());
    for (const auto &[tree, expected] : cases)
        EXPECT_EQ(tree.render(self.get()), expected);
}

node_expression *cast(node_expression *expression, int type) {
    return make(node_expression{
        .cast_expression = make(node_cast_expression{.expression = expression, .type = type})});
}

TEST(TypeView, Expressions) {
    expect_texts({
        {integer("1"), gives("INT8 ( 1 ) ")},
        {floating("1.5"), gives("FLOAT8 ( 1.5 ) ")},
        {string("'a'"), gives("VARCHAR ( 'a' ) ")},
        {boolean(1), gives("BOOL ( TRUE ) ")},
        {literal({}), gives(" ( NULL ) ")},
        {column("a"), gives(" ( a ) ")},
        {column("a", "t"), gives(" ( t.a ) ")},
        {operation("operator_addition", integer("1"), integer("2")),
         gives("INT8 ( INT8 ( 1 )  + INT8 ( 2 )  ) ")},
        {operation("operator_concatenate", string("'a'"), string("'b'")),
         gives("VARCHAR ( VARCHAR ( 'a' )  || VARCHAR ( 'b' )  ) ")},
        {operation("operator_uminus", floating("1.5")), gives("FLOAT8 ( - FLOAT8 ( 1.5 )  ) ")},
        {operation("operator_between", column("a"), integer("1"), floating("2.5")),
         gives("BOOL (  ( a )  BETWEEN INT8 ( 1 )  AND FLOAT8 ( 2.5 )  ) ")},
        {parentheses(integer("1")), gives("INT8 ( (INT8 ( 1 ) ) ) ")},
        {parentheses(parentheses(column("a"))), gives(" ( ( ( ( ( a ) ) ) ) ) ")},
        {cast(column("x"), QUILLET_TYPE_CHAR), gives("CAHR ( CAST( ( x )  AS CAHR) ) ")},
        {cast(integer("1"), QUILLET_TYPE_UNKNOWN), gives(" ( CAST(INT8 ( 1 )  AS ) ) ")},
        {typed(QUILLET_TYPE_DATE, "'2005-01-01'"), gives("DATE ( DATE '2005-01-01' ) ")},
        {calling(make(node_function_call{.function_name = identifier("now")})),
         gives("TIMESTAMP ( now() ) ")},
        {calling(
             make(node_function_call{.function_name = identifier("f"),
                                     .expressions_list = arguments(integer("1"), column("a"))})),
         gives(" ( f(INT8 ( 1 ) ,  ( a ) ) ) ")},
        {make(node_expression{
             .case_expression = make(node_case_expression{
                 .when_list = make(node_when_list{
                     .when_item = make(node_when_item{.expression_1 = boolean(1),
                                                      .expression_2 = integer("2")})})})}),
         gives(" ( CASE WHEN BOOL ( TRUE )  THEN INT8 ( 2 )   END ) ")},
    });
}

TEST(TypeView, FailuresAreKept) {
    expect_texts({
        {create<node_expression>(), gives(" (  ) ", -2)},
        {operation("operator_addition", integer("1")), gives(" (  ) ", -2)},
        {operation("operator_none", integer("1")), gives(" (  ) ")},
        {operation("operator_not", create<node_expression>()), gives("BOOL ( NOT  (  )  ) ", -2)},
        {calling(make(node_function_call{.function_name = identifier("abs"),
                                         .expressions_list = create<node_expressions_list>()})),
         gives("FLOAT8 ( abs() ) ", -2)},
    });
}

// Every name of a type, also of a node that has one already.
TEST(TypeView, TypeNames) {
    const owned<builder> self(quillet_type_view_builder_create());
    for (int type = 0; type <= 18; ++type) {
        node_expression *node = column("a");
        node->sql_type = type;
        EXPECT_EQ(any_tree(node).render(self.get()),
                  gives(std::string(quillet_type_to_string(type)) + " ( a ) "));
    }
    for (const int type : {-1, 19, 1000}) {
        node_expression *node = column("a");
        node->sql_type = type;
        EXPECT_EQ(any_tree(node).render(self.get()), gives(" ( a ) "));
    }
}

struct statement_case {
    const char *statement;
    const char *text;
};

constexpr statement_case statements[] = {
    {"SELECT 1", "SELECT INT8 ( 1 ) "},
    {"SELECT a AS b FROM t", "SELECT  ( a )  AS b FROM t"},
    {"SELECT * FROM t WHERE a LIMIT 1", "SELECT * FROM t WHERE  ( a )  LIMIT 1"},
    {"SELECT a FROM t GROUP BY a ORDER BY a",
     "SELECT  ( a )  FROM t GROUP BY a ORDER BY  ( a )  ASC"},
    {"UPDATE t SET a = 1", "UPDATE t SET a = INT8 ( 1 ) "},
    {"INSERT INTO t VALUES (1, DEFAULT)", "INSERT INTO t VALUES (INT8 ( 1 ) , DEFAULT)"},
    {"SELECT substring(a FROM 1 FOR 2)",
     "SELECT VARCHAR ( substring( ( a )  FROM INT8 ( 1 )  FOR INT8 ( 2 ) ) ) "},
    {"SELECT count(DISTINCT a)", "SELECT INT8 ( count(DISTINCT  ( a ) ) ) "},
};

TEST(TypeView, Statements) {
    for (const auto &[statement, text] : statements) {
        const parsed outcome = parse(statement);
        ASSERT_EQ(outcome.result, 0) << statement;
        const owned<builder> self(quillet_type_view_builder_create());
        EXPECT_EQ(taken(call_slot(self.get(), outcome.tree.get())), gives(text)) << statement;
    }
}

// The operation decorates what its parent gives, whatever that is, and goes on through the builder.
build_result *parent_expression(builder *, node_expression *node, void *data) {
    node->sql_type = QUILLET_TYPE_TEXT;
    build_result *result = quillet_build_result_create();
    result->query = copy(data ? "data" : "no data");
    result->build_result = -3;
    return result;
}

TEST(TypeView, DecoratesWhatTheParentGives) {
    const owned<builder> self(quillet_type_view_builder_create());
    self->parent->build_expression = parent_expression;
    const any_tree tree(integer("1"));
    int data = 0;
    EXPECT_EQ(tree.render(self.get(), &data), gives("TEXT ( data ) ", -3));
    EXPECT_EQ(any_tree(operation("operator_not", integer("1"))).render(self.get()),
              gives("TEXT ( no data ) ", -3));
    EXPECT_EQ(any_tree(make(node_where_clausule{.expression = integer("1")})).render(self.get()),
              gives("WHERE TEXT ( no data ) ", -3));
}

// Every sub-expression comes back through the operation, and so through its parent's.

int calls_of_the_parent = 0;

build_result *counting_expression(builder *self, node_expression *node, void *data) {
    ++calls_of_the_parent;
    return quillet_expression_default_builder(self, node, data);
}

struct count_case {
    const char *statement;
    int calls;
};

constexpr count_case counts[] = {
    {"select a", 1},
    {"select a + b + c", 5},
    {"select ((a))", 3},
    {"select not a", 2},
    {"select not not a", 3},
    {"select a::int", 2},
    {"select cast(a::int as text)", 3},
    {"select a is null", 2},
    {"select a like b escape 'c'", 3},
    {"select a between b and c", 4},
    {"select f(a, b + c)", 5},
    {"select case a when b then c else d end", 5},
    {"select (a, b) overlaps (c, d)", 5},
    {"select a from t where b order by c", 3},
};

TEST(TypeView, CallsTheParentForEveryExpression) {
    for (const auto &[statement, calls] : counts) {
        const parsed outcome = parse(statement);
        ASSERT_EQ(outcome.result, 0) << statement;
        const owned<builder> plain(quillet_type_view_builder_create());
        const quillet_tests::outcome expected = taken(call_slot(plain.get(), outcome.tree.get()));
        const parsed again = parse(statement);
        const owned<builder> self(quillet_type_view_builder_create());
        self->parent->build_expression = counting_expression;
        calls_of_the_parent = 0;
        EXPECT_EQ(taken(call_slot(self.get(), again.tree.get())), expected) << statement;
        EXPECT_EQ(calls_of_the_parent, calls) << statement;
    }
}

TEST(TypeView, GivesNothingWithoutAnOperationToAsk) {
    builder self{};
    const owned<node_expression> node(integer("1"));
    EXPECT_EQ(taken(quillet_expression_type_view_builder(&self, node.get(), nullptr)), no_record);
}

build_result *star(builder *, node_const_integer *, void *) {
    build_result *result = quillet_build_result_create();
    result->query = copy("*");
    return result;
}

TEST(TypeView, ReplacedSlotsHoldAtEveryDepth) {
    const owned<builder> self(quillet_type_view_builder_create());
    self->build_const_integer = star;
    EXPECT_EQ(any_tree(parentheses(operation("operator_not", integer("1")))).render(self.get()),
              gives("BOOL ( (BOOL ( NOT INT8 ( * )  ) ) ) "));
}

} // namespace
