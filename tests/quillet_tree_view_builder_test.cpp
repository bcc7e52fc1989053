#include "quillet_tree_view_builder.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <string>
#include <vector>

#include "support.h"

using namespace quillet_tests;

namespace {

TEST(TreeViewInfo, IsOneRecord) {
    const quillet_builder_info *info = quillet_tree_view_builder_get_info();
    EXPECT_EQ(info, &quillet_tree_view_builder_info);
    EXPECT_STREQ(info->builder_name, "tree");
    EXPECT_STREQ(info->builder_description, "outputs tree view of parse tree");
    EXPECT_EQ(info->constructor, quillet_tree_view_builder_create);
    EXPECT_EQ(info->get_error_code, nullptr);
    EXPECT_EQ(info->get_error_description, nullptr);
}

TEST(Print, IsOneLine) {
    EXPECT_EQ(taken(quillet_print(0, "main", 0)), "main [0]\n");
    EXPECT_EQ(taken(quillet_print(2, "select", 0)), "  select [0]\n");
    EXPECT_EQ(taken(quillet_print(1, "", 0)), "  [0]\n");
    EXPECT_EQ(taken(quillet_print(0, "x", 7)), "x [7]\n");
    EXPECT_EQ(taken(quillet_print(0, "x", -2)), "x [-2]\n");
    EXPECT_EQ(taken(quillet_print(0, "x", 42)), "x [42]\n");
    EXPECT_EQ(taken(quillet_print(5000, "x", 0)), std::string(5000, ' ') + "x [0]\n");
    EXPECT_EQ(taken(quillet_print(3, std::string(5000, 'l').c_str(), 0)),
              "   " + std::string(5000, 'l') + " [0]\n");
}

void *indentation(std::intptr_t blanks) { return reinterpret_cast<void *>(blanks); }

std::string viewed(const any_tree &tree, std::intptr_t blanks = 0) {
    const owned<builder> self(quillet_tree_view_builder_create());
    const outcome result = tree.render(self.get(), indentation(blanks));
    EXPECT_EQ(result.status, 0);
    return result.text.value_or("(no text)");
}

struct label_case {
    any_tree tree;
    const char *lines;
};

// A node of every kind without children: its label, and its codes at the margin.
TEST(TreeView, Labels) {
    const label_case cases[] = {
        {create<node_main>(), "main [0]\n"},
        {create<node_select>(), "select [0]\n"},
        {create<node_insert>(), "insert [0]\n"},
        {create<node_values_list>(), "values_list [0]\n"},
        {create<node_expression_or_default_list>(), "expression_or_default_list [0]\n0\n"},
        {create<node_expression_or_default_item>(), "expression_or_default_item [0]\n"},
        {create<node_update>(), "update [0]\n"},
        {create<node_set_clausule>(), "set_clausule [0]\n"},
        {create<node_set_list>(), "set_list [0]\n"},
        {create<node_set_item>(), "set_item [0]\n"},
        {create<node_delete>(), "delete [0]\n"},
        {create<node_distinct_select_list>(), "distinct_select_list [0]\n"},
        {create<node_tables>(), "tables [0]\n"},
        {create<node_tables_list>(), "tables_list [0]\n"},
        {create<node_table>(), "table [0]\n"},
        {create<node_join_list>(), "join_list [0]\n"},
        {create<node_join>(), "join [0]\n0\n0\n"},
        {create<node_join_type>(), "join_type [0]\n0\n"},
        {create<node_join_expression>(), "join_expression [0]\n"},
        {create<node_where_clausule>(), "where_clausule [0]\n"},
        {create<node_group_by_clausule>(), "group_by_clausule [0]\n"},
        {create<node_having_clausule>(), "having_clausule [0]\n"},
        {create<node_order_by_clausule>(), "order_by_clausule [0]\n"},
        {create<node_order_by_list>(), "order_by_list [0]\n"},
        {create<node_order_by_item>(), "order_by_item [0]\n0\n"},
        {create<node_limit_clausule>(), "limit_clausule [0]\n"},
        {create<node_distinct>(), "distinct [0]\n"},
        {create<node_select_list>(), "select_list [0]\n"},
        {create<node_expression>(), "expression [0]\n"},
        {create<node_case_expression>(), "case_expression [0]\n"},
        {create<node_when_list>(), "when_list [0]\n"},
        {create<node_when_item>(), "when_item [0]\n"},
        {create<node_else_clausule>(), "else_clausule [0]\n"},
        {create<node_overlaps_expression>(), "overlaps_expression [0]\n"},
        {create<node_cast_expression>(), "cast_expression [0]\n0\n"},
        {create<node_const_generic>(), "const_generic [0]\n0\n"},
        {create<node_at_time_zone>(), "at_time_zone [0]\n0\n"},
        {create<node_const_string>(), "const_string [0]\n"},
        {create<node_const_integer>(), "const_integer [0]\n"},
        {create<node_const_floating>(), "const_floating [0]\n"},
        {create<node_escape>(), "escape [0]\n"},
        {create<node_const_boolean>(), "const_boolean [0]\n0\n"},
        {create<node_select_item>(), "select_item [0]\n"},
        {create<node_identifier_list>(), "identifier_list [0]\n0\n"},
        {create<node_identifier>(), "identifier [0]\n"},
        {create<node_column_reference_list>(), "column_reference_list [0]\n"},
        {create<node_column_reference>(), "column_reference [0]\n"},
        {create<node_function_call>(), "function_call [0]\n"},
        {create<node_using_argument>(), "using_argument [0]\n"},
        {create<node_placing_from_for_argument>(), "placing_from_for_argument [0]\n"},
        {create<node_in_argument>(), "in_argument [0]\n"},
        {create<node_from_for_argument>(), "from_for_argument [0]\n"},
        {create<node_trim_argument>(), "trim_argument [0]\n0\n"},
        {create<node_expressions_list>(), "expressions_list [0]\n"},
        {create<node_agregate_expression>(), "agregate_expression [0]\n0\n"},
    };
    EXPECT_EQ(std::size(cases), 55U);
    for (const auto &[tree, lines] : cases) {
        EXPECT_EQ(viewed(tree), lines);
        EXPECT_EQ(viewed(tree, 4), std::string("    ") + lines);
    }
}

node_table *table() { return create<node_table>(); }
node_expression *expression() { return create<node_expression>(); }

// The codes and their place among the children.
TEST(TreeView, Codes) {
    const label_case cases[] = {
        {make(node_expression_or_default_list{
             .count = 7,
             .expression_or_default_list = create<node_expression_or_default_list>(),
             .expression_or_default_item = create<node_expression_or_default_item>()}),
         "expression_or_default_list [0]\n7\n  expression_or_default_list [0]\n0\n"
         "  expression_or_default_item [0]\n"},
        {make(node_identifier_list{.count = 3,
                                   .identifier_list = create<node_identifier_list>(),
                                   .identifier = identifier("a")}),
         "identifier_list [0]\n3\n  identifier_list [0]\n0\n  identifier [0]\n"},
        {make(node_join{.type = 4,
                        .natural = 1,
                        .table = table(),
                        .join_expression = create<node_join_expression>()}),
         "join [0]\n4\n1\n  table [0]\n  join_expression [0]\n"},
        {make(node_join_type{.type = 5}), "join_type [0]\n5\n"},
        {make(node_order_by_item{.type = 2, .expression = expression()}),
         "order_by_item [0]\n2\n  expression [0]\n"},
        {make(node_cast_expression{
             .expression = make(node_expression{.expression_1 = expression()}), .type = 18}),
         "cast_expression [0]\n  expression [0]\n    expression [0]\n18\n"},
        {make(node_const_generic{.const_boolean = const_boolean(2),
                                 .const_string = const_string("'a'"),
                                 .const_integer = const_integer("1"),
                                 .const_floating = const_floating("1.5"),
                                 .type = 6,
                                 .at_time_zone = make(node_at_time_zone{
                                     .type = 3, .const_string = const_string("'b'")})}),
         "const_generic [0]\n  const_boolean [0]\n2\n  const_string [0]\n  const_integer [0]\n"
         "  const_floating [0]\n6\n  at_time_zone [0]\n3\n    const_string [0]\n"},
        {const_boolean(1), "const_boolean [0]\n1\n"},
        {const_boolean(-5), "const_boolean [0]\n-5\n"},
        {const_boolean(INT_MAX), "const_boolean [0]\n2147483647\n"},
        {const_boolean(INT_MIN), "const_boolean [0]\n-2147483648\n"},
        {make(node_trim_argument{
             .mode = 2, .expression_1 = expression(), .expression_2 = expression()}),
         "trim_argument [0]\n2\n  expression [0]\n  expression [0]\n"},
        {make(node_agregate_expression{.type = 3, .expression = expression()}),
         "agregate_expression [0]\n3\n  expression [0]\n"},
    };
    for (const auto &[tree, lines] : cases)
        EXPECT_EQ(viewed(tree), lines);
}

TEST(TreeView, BeginsAtTheIndentationThatItGets) {
    EXPECT_EQ(viewed(const_boolean(1), 6), "      const_boolean [0]\n1\n");
    EXPECT_EQ(viewed(column("a"), 3),
              "   expression [0]\n     column_reference [0]\n       identifier [0]\n");
}

TEST(TreeView, ShowsNoTextsAndNoTypes) {
    node_expression *node = operation("operator_addition", integer("1"), integer("2"));
    node->sql_type = 9;
    EXPECT_EQ(viewed(node),
              "expression [0]\n"
              "  expression [0]\n    const_generic [0]\n      const_integer [0]\n0\n"
              "  expression [0]\n    const_generic [0]\n      const_integer [0]\n0\n");
    EXPECT_EQ(viewed(column("a")), viewed(column("b")));
    EXPECT_EQ(viewed(make(node_escape{.string = copy("'!'")})), "escape [0]\n");
}

// Every child field of the kinds with several of them, in the order of the fields.
TEST(TreeView, ChildrenInOrder) {
    const label_case cases[] = {
        {make(node_main{.select = create<node_select>(),
                        .insert = create<node_insert>(),
                        .update = create<node_update>(),
                        .delete_ = create<node_delete>()}),
         "main [0]\n  select [0]\n  insert [0]\n  update [0]\n  delete [0]\n"},
        {make(node_select{.distinct_select_list = create<node_distinct_select_list>(),
                          .tables = create<node_tables>(),
                          .where_clausule = create<node_where_clausule>(),
                          .group_by_clausule = create<node_group_by_clausule>(),
                          .order_by_clausule = create<node_order_by_clausule>(),
                          .limit_clausule = create<node_limit_clausule>()}),
         "select [0]\n  distinct_select_list [0]\n  tables [0]\n  where_clausule [0]\n"
         "  group_by_clausule [0]\n  order_by_clausule [0]\n  limit_clausule [0]\n"},
        {make(node_expression{
             .const_generic = create<node_const_generic>(),
             .operator_ = copy("operator_not"),
             .column_reference = create<node_column_reference>(),
             .expression_1 = make(node_expression{.escape = create<node_escape>()}),
             .expression_2 = create<node_expression>(),
             .expression_3 = make(node_expression{.const_boolean = const_boolean(1)}),
             .const_boolean = const_boolean(2),
             .escape = create<node_escape>(),
             .function_call = create<node_function_call>(),
             .cast_expression = create<node_cast_expression>(),
             .overlaps_expression_1 = create<node_overlaps_expression>(),
             .overlaps_expression_2 =
                 make(node_overlaps_expression{.expression_2 = create<node_expression>()}),
             .case_expression = create<node_case_expression>()}),
         "expression [0]\n  const_generic [0]\n0\n  column_reference [0]\n  expression [0]\n"
         "    escape [0]\n  expression [0]\n  expression [0]\n    const_boolean [0]\n1\n"
         "  const_boolean [0]\n2\n  escape [0]\n  function_call [0]\n  cast_expression [0]\n0\n"
         "  overlaps_expression [0]\n  overlaps_expression [0]\n    expression [0]\n"
         "  case_expression [0]\n"},
        {make(node_function_call{.function_name = identifier("f"),
                                 .expressions_list = create<node_expressions_list>(),
                                 .agregate_expression = create<node_agregate_expression>(),
                                 .using_argument = create<node_using_argument>(),
                                 .placing_from_for_argument =
                                     create<node_placing_from_for_argument>(),
                                 .in_argument = create<node_in_argument>(),
                                 .from_for_argument = create<node_from_for_argument>(),
                                 .trim_argument = create<node_trim_argument>()}),
         "function_call [0]\n  identifier [0]\n  expressions_list [0]\n"
         "  agregate_expression [0]\n0\n  using_argument [0]\n  placing_from_for_argument [0]\n"
         "  in_argument [0]\n  from_for_argument [0]\n  trim_argument [0]\n0\n"},
        {make(node_column_reference{.column_name = identifier("a")}),
         "column_reference [0]\n  identifier [0]\n"},
    };
    for (const auto &[tree, lines] : cases)
        EXPECT_EQ(viewed(tree), lines);
}

// Tables and joins come before the rest of their list, all other items after it.
TEST(TreeView, Lists) {
    const label_case cases[] = {
        {make(node_tables_list{.table = table(),
                               .tables_list = make(node_tables_list{.table = table()})}),
         "tables_list [0]\n  table [0]\n  tables_list [0]\n    table [0]\n"},
        {make(node_join_list{.join = create<node_join>(),
                             .join_list = make(node_join_list{.join = create<node_join>()})}),
         "join_list [0]\n  join [0]\n0\n0\n  join_list [0]\n    join [0]\n0\n0\n"},
#define LIST(list, item)                                                                           \
    {make(node_##list{.list = make(node_##list{.item = create<node_##item>()}),                    \
                      .item = create<node_##item>()}),                                             \
     #list " [0]\n  " #list " [0]\n    " #item " [0]\n  " #item " [0]\n"}
        LIST(set_list, set_item),
        LIST(select_list, select_item),
        LIST(when_list, when_item),
        LIST(column_reference_list, column_reference),
        LIST(expressions_list, expression),
#undef LIST
        {make(node_order_by_list{.order_by_list = make(node_order_by_list{
                                     .order_by_item = make(node_order_by_item{.type = 1})}),
                                 .order_by_item = make(node_order_by_item{.type = 2})}),
         "order_by_list [0]\n  order_by_list [0]\n    order_by_item [0]\n1\n"
         "  order_by_item [0]\n2\n"},
    };
    for (const auto &[tree, lines] : cases)
        EXPECT_EQ(viewed(tree), lines);
}

TEST(TreeView, OfAStatement) {
    const parsed outcome = parse("SELECT a FROM t");
    ASSERT_EQ(outcome.result, 0);
    const owned<builder> self(quillet_tree_view_builder_create());
    EXPECT_EQ(taken(call_slot(self.get(), outcome.tree.get())),
              gives("main [0]\n"
                    "  select [0]\n"
                    "    distinct_select_list [0]\n"
                    "      select_list [0]\n"
                    "        select_item [0]\n"
                    "          expression [0]\n"
                    "            column_reference [0]\n"
                    "              identifier [0]\n"
                    "    tables [0]\n"
                    "      tables_list [0]\n"
                    "        table [0]\n"
                    "          identifier [0]\n"));
}

// What stands in a slot gets the indentation; its status goes unseen.

std::vector<std::intptr_t> indentations;

build_result *shown_name(builder *, node_identifier *node, void *data) {
    indentations.push_back(reinterpret_cast<std::intptr_t>(data));
    build_result *result = quillet_build_result_create();
    result->query = copy((std::string(node->name) + '\n').c_str());
    result->build_result = -3;
    return result;
}

TEST(TreeView, ReplacedSlotsHoldAtEveryDepth) {
    const owned<builder> self(quillet_tree_view_builder_create());
    self->build_identifier = shown_name;
    indentations.clear();
    const any_tree tree(make(node_select_item{
        .expression = operation("operator_not", column("a", "t")), .identifier = identifier("x")}));
    EXPECT_EQ(tree.render(self.get(), indentation(1)),
              gives(" select_item [0]\n   expression [0]\n     expression [0]\n"
                    "       column_reference [0]\na\nt\nx\n"));
    EXPECT_EQ(indentations, (std::vector<std::intptr_t>{9, 9, 3}));
}

build_result *textless_escape(builder *, node_escape *, void *) {
    return quillet_build_result_create();
}

TEST(TreeView, ANodeWithoutTextShowsNothing) {
    const owned<builder> self(quillet_tree_view_builder_create());
    self->build_escape = textless_escape;
    EXPECT_EQ(any_tree(make(node_expression{.escape = create<node_escape>(),
                                            .function_call = create<node_function_call>()}))
                  .render(self.get()),
              gives("expression [0]\n  function_call [0]\n"));
}

} // namespace
