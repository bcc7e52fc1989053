// The default rendering of hand-built trees, those among them that no statement gives.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "answering_builder.h"
#include "quillet_builder.h"
#include "quillet_mysql_builder.h"
#include "quillet_type_view_builder.h"
#include "quillet_types.h"
#include "support.h"

using namespace quillet_tests;

namespace {

// An INSERT hands its columns to its values.

node_identifier_list *names(const std::vector<const char *> &all) {
    node_identifier_list *list = nullptr;
    for (const char *name : all)
        list = make(node_identifier_list{.identifier_list = list, .identifier = identifier(name)});
    return list;
}

// NULL stands for DEFAULT.
node_values_list *values(const std::vector<const char *> &all) {
    node_expression_or_default_list *list = nullptr;
    for (const char *value : all)
        list = make(node_expression_or_default_list{
            .expression_or_default_list = list,
            .expression_or_default_item = make(
                node_expression_or_default_item{.expression = value ? integer(value) : nullptr})});
    return make(node_values_list{.expression_or_default_list = list});
}

node_table *table(const char *name, const char *alias = nullptr) {
    return make(
        node_table{.identifier = identifier(name), .alias = alias ? identifier(alias) : nullptr});
}

node_insert *insert(node_identifier_list *columns, node_values_list *rows) {
    return make(node_insert{.table = table("t"), .identifier_list = columns, .values_list = rows});
}

build_result *value_with_column(builder *self, node_expression_or_default_item *node, void *data) {
    visits.push_back({node, data});
    return quillet_expression_or_default_item_default_builder(self, node, data);
}

TEST(Insert, ValuesLearnTheirColumns) {
    const owned<builder> self(quillet_default_builder_create());
    self->build_expression_or_default_item = value_with_column;
    const owned<node_insert> node(insert(names({"a", "b", "c"}), values({"1", "2", nullptr})));
    visits.clear();
    EXPECT_EQ(taken(call_slot(self.get(), node.get())),
              gives("INSERT INTO t (a, b, c) VALUES (1, 2, DEFAULT)"));
    const node_identifier_list *columns = node->identifier_list;
    const node_expression_or_default_list *list = node->values_list->expression_or_default_list;
    EXPECT_EQ(columns->count, 3);
    EXPECT_EQ(columns->identifier_list->count, 2);
    EXPECT_EQ(columns->identifier_list->identifier_list->count, 1);
    EXPECT_EQ(list->count, 3);
    EXPECT_EQ(list->expression_or_default_list->count, 2);
    EXPECT_EQ(list->expression_or_default_list->expression_or_default_list->count, 1);
    ASSERT_EQ(visits.size(), 3U);
    EXPECT_EQ(visits[0].data, columns->identifier_list->identifier_list->identifier);
    EXPECT_EQ(visits[1].data, columns->identifier_list->identifier);
    EXPECT_EQ(visits[2].data, columns->identifier);
}

TEST(Insert, ValuesWithoutColumnsLearnNone) {
    const owned<builder> self(quillet_default_builder_create());
    self->build_expression_or_default_item = value_with_column;
    const owned<node_insert> node(insert(nullptr, values({"1", "2"})));
    visits.clear();
    EXPECT_EQ(taken(call_slot(self.get(), node.get())), gives("INSERT INTO t VALUES (1, 2)"));
    ASSERT_EQ(visits.size(), 2U);
    EXPECT_EQ(visits[0].data, nullptr);
    EXPECT_EQ(visits[1].data, nullptr);
}

// The data of every part between the INSERT and the item.
TEST(Insert, TheColumnsTravelThroughTheLists) {
    answering stub;
    const owned<node_insert> node(insert(names({"a"}), values({"1"})));
    answers[node->table] = gives("t");
    answers[node->identifier_list] = gives("a");
    answers[node->values_list] = gives("(1)");
    EXPECT_EQ(taken(quillet_insert_default_builder(&stub.self, node.get(), &stub)),
              gives("INSERT INTO t (a) VALUES (1)"));
    EXPECT_EQ(visits, (std::vector<visit>{{node->table, nullptr},
                                          {node->identifier_list, nullptr},
                                          {node->values_list, node->identifier_list}}));

    visits.clear();
    node_expression_or_default_list *list = node->values_list->expression_or_default_list;
    answers[list] = gives("1");
    EXPECT_EQ(taken(quillet_values_list_default_builder(&stub.self, node->values_list, &stub)),
              gives("(1)"));
    EXPECT_EQ(visits, (std::vector<visit>{{list, &stub}}));

    const owned<node_expression_or_default_list> two(make(node_expression_or_default_list{
        .expression_or_default_list = stub.child<node_expression_or_default_list>(gives("1")),
        .expression_or_default_item = stub.child<node_expression_or_default_item>(gives("2"))}));
    const owned<node_identifier_list> columns(names({"a", "b"}));
    visits.clear();
    two->expression_or_default_list->count = 41;
    EXPECT_EQ(taken(quillet_expression_or_default_list_default_builder(&stub.self, two.get(),
                                                                       columns.get())),
              gives("1, 2"));
    EXPECT_EQ(visits,
              (std::vector<visit>{{two->expression_or_default_list, columns->identifier_list},
                                  {two->expression_or_default_item, columns->identifier}}));
    EXPECT_EQ(two->count, 42);

    const owned<node_expression_or_default_item> item(
        make(node_expression_or_default_item{.expression = stub.expression(gives("1"))}));
    visits.clear();
    EXPECT_EQ(
        taken(quillet_expression_or_default_item_default_builder(&stub.self, item.get(), &stub)),
        gives("1"));
    EXPECT_EQ(visits, (std::vector<visit>{{item->expression, nullptr}}));
}

TEST(Insert, CountsMustMatch) {
    const owned<builder> self(quillet_default_builder_create());
    const auto render = [&](node_insert *node) { return any_tree(node).render(self.get()); };
    EXPECT_EQ(render(insert(names({"a", "b"}), values({"1"}))), textless(-2));
    EXPECT_EQ(render(insert(names({"a"}), values({"1", "2"}))), textless(-2));
    EXPECT_EQ(render(insert(names({"a", "b", "c", "d"}), values({nullptr}))), textless(-2));
    EXPECT_EQ(render(insert(names({"a"}), values({"1"}))), gives("INSERT INTO t (a) VALUES (1)"));
    EXPECT_EQ(render(insert(names({"a"}), make(node_values_list{}))).status, -2);
}

TEST(Insert, NeedsItsTableAndItsValues) {
    answering stub;
    EXPECT_EQ(stub.render(
                  quillet_insert_default_builder,
                  make(node_insert{.identifier_list = names({"a"}), .values_list = values({"1"})})),
              textless(-2));
    EXPECT_EQ(stub.render(quillet_insert_default_builder,
                          make(node_insert{.table = table("t"), .identifier_list = names({"a"})})),
              textless(-2));
    EXPECT_TRUE(visits.empty());
}

TEST(Insert, TheLastFailureCounts) {
    const auto render = [](int of_table, int of_columns, int of_values) {
        answering stub;
        node_insert *node = insert(names({"a"}), values({"1"}));
        answers[node->table] = gives("t", of_table);
        answers[node->identifier_list] = gives("a", of_columns);
        answers[node->values_list] = gives("(1)", of_values);
        return stub.render(quillet_insert_default_builder, node);
    };
    const std::string text = "INSERT INTO t (a) VALUES (1)";
    EXPECT_EQ(render(-3, 0, 0), gives(text, -3));
    EXPECT_EQ(render(0, -3, 0), gives(text, -3));
    EXPECT_EQ(render(0, 0, -3), gives(text, -3));
    EXPECT_EQ(render(-3, -2, 0), gives(text, -2));
    EXPECT_EQ(render(-2, -2, -3), gives(text, -3));
}

TEST(Insert, ColumnsWithoutTextAreNoColumns) {
    answering stub;
    node_insert *node = insert(names({"a", "b"}), values({"1"}));
    node->identifier_list->count = 2;
    answers[node->table] = gives("t");
    answers[node->identifier_list] = textless(0);
    answers[node->values_list] = gives("(1)");
    EXPECT_EQ(stub.render(quillet_insert_default_builder, node), gives("INSERT INTO t VALUES (1)"));
}

// Trees written out, among them those that no statement gives. The builder is the default one but
// for some names: "none" has no record, "mute" no text, "empty" the empty text, and "fail2" and
// "fail3" fail with a text.

build_result *special_identifier(builder *self, node_identifier *node, void *data) {
    const std::string name = node->name ? node->name : "";
    if (name == "none")
        return nullptr;
    build_result *result = quillet_identifier_default_builder(self, node, data);
    if (name == "mute" || name == "empty") {
        std::free(std::exchange(result->query, name == "empty" ? copy("") : nullptr));
    } else if (name == "fail2" || name == "fail3") {
        result->build_result = name == "fail2" ? -2 : -3;
    }
    return result;
}

struct tree_case {
    any_tree tree;
    outcome expected;
};

void expect_texts(const std::vector<tree_case> &cases) {
    const owned<builder> self(quillet_default_builder_create());
    self->build_identifier = special_identifier;
    for (std::size_t i = 0; i < cases.size(); ++i)
        EXPECT_EQ(cases[i].tree.render(self.get()), cases[i].expected) << "tree " << i;
}

node_select_list *columns(const std::vector<node_select_item *> &items) {
    node_select_list *list = nullptr;
    for (node_select_item *item : items)
        list = make(node_select_list{.select_list = list, .select_item = item});
    return list;
}

node_select_item *item(node_expression *expression, const char *name = nullptr) {
    return make(node_select_item{.expression = expression,
                                 .identifier = name ? identifier(name) : nullptr});
}

node_tables_list *tables(const std::vector<node_table *> &all) {
    node_tables_list *list = nullptr;
    for (node_table *one : all)
        list = make(node_tables_list{.table = one, .tables_list = list});
    return list;
}

node_order_by_list *keys(const std::vector<std::pair<const char *, int>> &all) {
    node_order_by_list *list = nullptr;
    for (const auto &[name, type] : all)
        list = make(node_order_by_list{
            .order_by_list = list,
            .order_by_item = make(node_order_by_item{.type = type, .expression = column(name)})});
    return list;
}

node_join *join(int type, const char *name, node_join_expression *expression = nullptr,
                int natural = 0) {
    return make(node_join{
        .type = type, .natural = natural, .table = table(name), .join_expression = expression});
}

node_join_expression *on(node_expression *expression) {
    return make(node_join_expression{.expression = expression});
}

node_join_expression *using_names(const std::vector<const char *> &all) {
    return make(node_join_expression{.identifier_list = names(all)});
}

node_where_clausule *where(node_expression *expression) {
    return make(node_where_clausule{.expression = expression});
}

node_set_item *assignment(const char *name, node_expression *expression) {
    return make(node_set_item{.column_reference = reference(name), .expression = expression});
}

node_set_clausule *assignments(const std::vector<node_set_item *> &all) {
    node_set_list *list = nullptr;
    for (node_set_item *one : all)
        list = make(node_set_list{.set_list = list, .set_item = one});
    return make(node_set_clausule{.set_list = list});
}

node_distinct_select_list *select_columns(const std::vector<node_select_item *> &items,
                                          node_distinct *distinct = nullptr) {
    return make(node_distinct_select_list{.distinct = distinct, .select_list = columns(items)});
}

node_tables *from(node_tables_list *list, node_join_list *joins = nullptr) {
    return make(node_tables{.tables_list = list, .join_list = joins});
}

node_group_by_clausule *group_by(const char *name, node_expression *having = nullptr) {
    return make(node_group_by_clausule{
        .column_reference_list =
            make(node_column_reference_list{.column_reference = reference(name)}),
        .having_clausule = having ? make(node_having_clausule{.expression = having}) : nullptr});
}

node_limit_clausule *limit(const char *count, const char *offset) {
    return make(node_limit_clausule{.const_integer_1 = count ? const_integer(count) : nullptr,
                                    .const_integer_2 = offset ? const_integer(offset) : nullptr});
}

TEST(Texts, OfStatements) {
    expect_texts({
        {create<node_main>(), no_record},
        {make(node_main{.select = make(node_select{.distinct_select_list =
                                                       select_columns({item(integer("1"))})}),
                        .delete_ = make(node_delete{.table = table("t")})}),
         gives("SELECT 1")},
        {make(node_main{.update = create<node_update>(), .delete_ = create<node_delete>()}),
         textless(-2)},
        {make(node_select{
             .distinct_select_list = select_columns({item(column("a")), item(column("b"))}),
             .tables = from(tables({table("t")})),
             .where_clausule = where(operation("operator_equal", column("x"), integer("1"))),
             .order_by_clausule = make(node_order_by_clausule{.order_by_list = keys({{"a", 1}})})}),
         gives("SELECT a, b FROM t WHERE x = 1 ORDER BY a ASC")},
        {make(node_select{
             .distinct_select_list = select_columns({item(nullptr)}, create<node_distinct>()),
             .tables = from(tables({table("t")})),
             .where_clausule = where(column("w")),
             .group_by_clausule = group_by("g", column("h")),
             .order_by_clausule =
                 make(node_order_by_clausule{.order_by_list = keys({{"a", 2}, {"b", 1}})}),
             .limit_clausule = limit("1", "2")}),
         gives("SELECT DISTINCT * FROM t WHERE w GROUP BY g HAVING h ORDER BY a DESC, b ASC "
               "LIMIT 1 OFFSET 2")},
        // without a table the later clauses go
        {make(node_select{.distinct_select_list = select_columns({item(integer("1"))}),
                          .where_clausule = where(column("w")),
                          .limit_clausule = limit("1", nullptr)}),
         gives("SELECT 1")},
        {make(node_select{.distinct_select_list = select_columns({item(integer("1"))}),
                          .where_clausule = where(column("fail3"))}),
         gives("SELECT 1", -3)},
        {make(node_select{.distinct_select_list = select_columns({item(integer("1"))}),
                          .tables = from(tables({table("mute")})),
                          .where_clausule = where(column("w"))}),
         gives("SELECT 1")},
        {make(node_select{.distinct_select_list = create<node_distinct_select_list>(),
                          .tables = from(tables({table("t")}))}),
         gives("SELECT  FROM t", -2)},
        {make(node_select{.distinct_select_list = select_columns({item(column("fail2"))}),
                          .tables = from(tables({table("fail3")}))}),
         gives("SELECT fail2 FROM fail3", -3)},
        {make(node_update{.table = table("t"),
                          .set_clausule = assignments(
                              {assignment("a", integer("1")), assignment("b", integer("2"))}),
                          .where_clausule = where(column("c"))}),
         gives("UPDATE t SET a = 1, b = 2 WHERE c")},
        {make(node_update{.table = table("t", "u"),
                          .set_clausule = assignments({assignment("a", string("'x'"))})}),
         gives("UPDATE t AS u SET a = 'x'")},
        {make(node_update{.table = table("none"),
                          .set_clausule = assignments({assignment("a", integer("1"))})}),
         gives("UPDATE SET a = 1")},
        {make(node_update{.table = table("t"), .set_clausule = create<node_set_clausule>()}),
         gives("UPDATE t", -2)},
        {make(node_delete{.table = table("t")}), gives("DELETE FROM t")},
        {make(node_delete{.table = table("t"), .where_clausule = where(column("a"))}),
         gives("DELETE FROM t WHERE a")},
        {make(node_delete{.table = table("t"), .where_clausule = create<node_where_clausule>()}),
         gives("DELETE FROM t", -2)},
        {values({"1"}), gives("(1)")},
        {values({"1", nullptr, "3"}), gives("(1, DEFAULT, 3)")},
        {create<node_values_list>(), textless(-2)},
        {create<node_expression_or_default_item>(), gives("DEFAULT")},
        {make(node_expression_or_default_item{.expression = column("mute")}), gives("DEFAULT")},
        {make(node_expression_or_default_item{.expression = create<node_expression>()}),
         gives("DEFAULT", -2)},
        {assignment("a", column("mute")), gives("a = ")},
        {assignment("mute", column("b")), gives(" = b")},
        {assignment("fail2", column("fail3")), gives("fail2 = fail3", -3)},
        {assignments({assignment("a", column("x")), assignment("b", column("y"))}),
         gives("SET a = x, b = y")},
    });
}

TEST(Texts, OfTablesAndJoins) {
    expect_texts({
        {table("t"), gives("t")},
        {table("t", "x"), gives("t AS x")},
        {table("t", "mute"), gives("t")},
        {table("t", "none"), gives("t")},
        {table("mute", "x"), gives(" AS x")},
        {table("mute"), textless(0)},
        {tables({table("a"), table("b", "c"), table("d")}), gives("a, b AS c, d")},
        {tables({table("mute"), table("b")}), gives("b")},
        {from(tables({table("t1"), table("t2")}),
              make(node_join_list{.join = join(3, "t3", nullptr, 1)})),
         gives("t1, t2 NATURAL LEFT OUTER JOIN t3")},
        {from(tables({table("none")})), textless(0)},
        {from(tables({table("none")}), make(node_join_list{.join = join(1, "b")})),
         gives("CROSS JOIN b")},
        {make(node_join_list{.join = join(2, "c", using_names({"x"})),
                             .join_list = make(node_join_list{.join = join(1, "b")})}),
         gives("CROSS JOIN b INNER JOIN c USING(x)")},
        {join(1, "t"), gives("CROSS JOIN t")},
        {join(2, "t"), gives("INNER JOIN t")},
        {join(3, "t"), gives("LEFT OUTER JOIN t")},
        {join(4, "t"), gives("RIGHT OUTER JOIN t")},
        {join(5, "t"), gives("FULL OUTER JOIN t")},
        {join(0, "t"), gives("t")},
        {join(6, "t"), gives("t")},
        {join(-1, "t"), gives("t")},
        {join(0, "t", on(column("a"))), gives("t ON a")},
        {join(0, "t", nullptr, 1), gives("NATURAL t")},
        {join(4, "t", nullptr, -1), gives("NATURAL RIGHT OUTER JOIN t")},
        {join(5, "t", on(column("a")), 2), gives("NATURAL FULL OUTER JOIN t ON a")},
        {join(2, "t2", using_names({"a", "b"})), gives("INNER JOIN t2 USING(a, b)")},
        {join(2, "none", on(column("a"))), gives("INNER JOIN ON a")},
        {join(2, "none"), gives("INNER JOIN ")},
        {create<node_join_expression>(), textless(0)},
        {on(column("a")), gives("ON a")},
        {make(node_join_expression{.expression = column("a"), .identifier_list = names({"b"})}),
         gives("ON a")},
        {make(node_join_expression{.expression = column("mute"), .identifier_list = names({"b"})}),
         gives("USING(b)")},
        {make(node_join_expression{.expression = column("mute"),
                                   .identifier_list = names({"mute"})}),
         textless(0)},
        {make(node_join_expression{.expression = column("fail3"),
                                   .identifier_list = names({"fail2"})}),
         gives("ON fail3", -2)},
        {make(node_join_type{.type = 3}), no_record},
    });
}

TEST(Texts, OfClauses) {
    expect_texts({
        {where(column("a")), gives("WHERE a")},
        {where(column("mute")), gives("WHERE ")},
        {where(create<node_expression>()), gives("WHERE ", -2)},
        {group_by("a"), gives("GROUP BY a")},
        {group_by("a", column("b")), gives("GROUP BY a HAVING b")},
        {group_by("mute", column("b")), gives("GROUP BY HAVING b")},
        {make(node_having_clausule{.expression = column("a")}), gives("HAVING a")},
        {make(node_order_by_clausule{.order_by_list = keys({{"a", 1}})}), gives("ORDER BY a ASC")},
        {keys({{"a", 1}, {"b", 2}, {"c", 0}, {"d", 3}, {"e", -1}}),
         gives("a ASC, b DESC, c DESC, d DESC, e DESC")},
        {keys({{"mute", 1}}), gives(" ASC")},
        {keys({{"fail3", 1}, {"a", 2}}), gives("fail3 ASC, a DESC", -3)},
        {limit("5", "10"), gives("LIMIT 5 OFFSET 10")},
        {limit("5", nullptr), gives("LIMIT 5")},
        {limit(nullptr, "10"), gives("OFFSET 10")},
        {limit(nullptr, nullptr), textless(0)},
        {make(node_limit_clausule{.const_integer_1 = create<node_const_integer>(),
                                  .const_integer_2 = const_integer("1")}),
         gives("OFFSET 1", -2)},
        {make(node_limit_clausule{.const_integer_1 = create<node_const_integer>()}), textless(-2)},
    });
}

TEST(Texts, OfSelectLists) {
    expect_texts({
        {create<node_distinct>(), gives("DISTINCT")},
        {make(node_distinct{.select_list = columns({item(column("a"))})}), gives("DISTINCT (a)")},
        {make(node_distinct{.select_list = columns({item(column("a")), item(column("b"), "c")})}),
         gives("DISTINCT (a, b AS c)")},
        {make(node_distinct{.select_list = create<node_select_list>()}), gives("DISTINCT", -2)},
        {select_columns({item(column("a"))}, create<node_distinct>()), gives("DISTINCT a")},
        {item(nullptr), gives("*")},
        {item(nullptr, "t"), gives("t.*")},
        {item(column("a")), gives("a")},
        {item(column("a", "t"), "x"), gives("t.a AS x")},
        {item(column("mute")), gives("*")},
        {item(column("mute"), "t"), gives("t.*")},
        {item(column("a"), "mute"), gives("a")},
        {item(nullptr, "none"), gives("*")},
        {item(column("fail2"), "fail3"), gives("fail2 AS fail3", -3)},
        {item(column("fail3"), "fail2"), gives("fail3 AS fail2", -2)},
        {item(column("fail3"), "a"), gives("fail3 AS a", -3)},
        {columns({item(column("a")), item(nullptr), item(nullptr, "t")}), gives("a, *, t.*")},
        // a list node without an item takes the items before it along
        {make(node_select_list{
             .select_list = make(node_select_list{.select_list = columns({item(column("a"))})}),
             .select_item = item(column("c"))}),
         gives("c", -2)},
    });
}

TEST(Texts, OfNames) {
    expect_texts({
        {identifier("a"), gives("a")},
        {identifier("\"A b\""), gives("\"A b\"")},
        {create<node_identifier>(), textless(-2)},
        {reference("a"), gives("a")},
        {reference("a", "t"), gives("t.a")},
        {reference("a", "mute"), gives("a")},
        {reference("a", "none"), gives("a")},
        {reference("mute", "t"), gives("t.")},
        {reference("mute"), textless(0)},
        {reference("fail3", "fail2"), gives("fail2.fail3", -3)},
        {reference("fail2", "fail3"), gives("fail3.fail2", -2)},
        {make(node_column_reference_list{.column_reference_list = make(node_column_reference_list{
                                             .column_reference = reference("a")}),
                                         .column_reference = reference("b", "t")}),
         gives("a, t.b")},
        {names({"a", "b", "c"}), gives("a, b, c")},
        {names({"none", "b"}), gives("b")},
        {names({"a", "mute"}), gives("a, ")},
    });
}

TEST(Texts, NamesAreCounted) {
    const owned<builder> self(quillet_default_builder_create());
    self->build_identifier = special_identifier;
    const auto count = [&](const std::vector<const char *> &all) {
        const owned<node_identifier_list> list(names(all));
        owned<build_result> result(call_slot(self.get(), list.get()));
        return list->count;
    };
    EXPECT_EQ(count({"a"}), 1);
    EXPECT_EQ(count({"a", "b", "c"}), 3);
    EXPECT_EQ(count({"mute", "b", "c"}), 2);
    EXPECT_EQ(count({"none"}), 1);
}

node_when_item *branch(const char *condition, const char *result) {
    return make(node_when_item{.expression_1 = column(condition), .expression_2 = column(result)});
}

node_case_expression *branches(const char *operand, const std::vector<node_when_item *> &items,
                               const char *otherwise) {
    node_when_list *list = nullptr;
    for (node_when_item *when : items)
        list = make(node_when_list{.when_list = list, .when_item = when});
    return make(node_case_expression{
        .expression = operand ? column(operand) : nullptr,
        .when_list = list,
        .else_clausule =
            otherwise ? make(node_else_clausule{.expression = column(otherwise)}) : nullptr});
}

TEST(Texts, OfCases) {
    expect_texts({
        {branches(nullptr, {branch("a", "b")}, nullptr), gives("CASE WHEN a THEN b  END")},
        {branches("x", {branch("a", "b")}, "c"), gives("CASE x WHEN a THEN b ELSE c END")},
        {branches("x", {branch("a", "b")}, nullptr), gives("CASE x WHEN a THEN b  END")},
        {branches(nullptr, {branch("a", "b"), branch("c", "d"), branch("e", "f")}, "g"),
         gives("CASE WHEN a THEN b WHEN c THEN d WHEN e THEN f ELSE g END")},
        {branches("mute", {branch("a", "b")}, "c"), gives("CASE WHEN a THEN b ELSE c END")},
        {branches("x", {}, "c"), textless(-2)},
        {branches("x", {create<node_when_item>()}, "c"), gives("CASE x ELSE c END", -2)},
        {branches("x", {create<node_when_item>(), branch("a", "b")}, nullptr),
         gives("CASE x WHEN a THEN b  END", -2)},
        {branches(nullptr, {create<node_when_item>()}, nullptr), gives("CASE  END", -2)},
        {branch("mute", "b"), gives("WHEN  THEN b")},
        {branch("a", "none"), gives("WHEN a THEN ")},
        {branch("fail3", "fail2"), gives("WHEN fail3 THEN fail2", -2)},
        {make(node_else_clausule{.expression = column("mute")}), gives("ELSE ")},
    });
}

node_at_time_zone *zone(int type, const char *text = "'UTC'") {
    return make(
        node_at_time_zone{.type = type, .const_string = text ? const_string(text) : nullptr});
}

TEST(Texts, OfLiterals) {
    expect_texts({
        {const_string("'a'"), gives("'a'")},
        {const_string(""), gives("")},
        {create<node_const_string>(), textless(-2)},
        {const_integer("007"), gives("007")},
        {create<node_const_integer>(), textless(-2)},
        {const_floating("1e-05"), gives("1e-05")},
        {create<node_const_floating>(), textless(-2)},
        {const_boolean(1), gives("TRUE")},
        {const_boolean(2), gives("FALSE")},
        {const_boolean(3), gives("UNKNOW")},
        {const_boolean(0), gives("UNKNOW")},
        {const_boolean(-1), gives("UNKNOW")},
        {make(node_escape{.string = copy("'!'")}), gives("ESCAPE '!'")},
        {create<node_escape>(), textless(-2)},
        {zone(1), gives("AT TIME ZONE 'UTC'")},
        {zone(2), gives("AT TIME ZONE INTERVAL 'UTC'")},
        {zone(3), textless(-2)},
        {zone(0), textless(-2)},
        {zone(-1), textless(-2)},
        {zone(1, nullptr), textless(-2)},
        {zone(3, nullptr), textless(-2)},
        {string("'a'"), gives("'a'")},
        {integer("1"), gives("1")},
        {floating("1.5"), gives("1.5")},
        {boolean(2), gives("FALSE")},
        {literal({}), gives("NULL")},
        {literal({.type = QUILLET_TYPE_DATE}), gives("NULL")},
        {literal({.at_time_zone = zone(1)}), gives("NULL")},
        {literal({.at_time_zone = zone(3)}), gives("NULL", -2)},
        {literal({.const_integer = create<node_const_integer>()}), gives("NULL", -2)},
        {typed(QUILLET_TYPE_DATE, "'2005-01-01'"), gives("DATE '2005-01-01'")},
        {typed(QUILLET_TYPE_INTERVAL, "'1 day'"), gives("INTERVAL '1 day'")},
        {typed(QUILLET_TYPE_CHAR, "'x'"), gives("CAHR 'x'")},
        {typed(99, "'x'"), gives("'x'")},
        {typed(-1, "'x'"), gives("'x'")},
        {typed(QUILLET_TYPE_TIMESTAMP, "'2005-01-01 10:00'", zone(1)),
         gives("TIMESTAMP '2005-01-01 10:00' AT TIME ZONE 'UTC'")},
        {typed(QUILLET_TYPE_INTERVAL, "'1 day'", zone(2)),
         gives("INTERVAL '1 day' AT TIME ZONE INTERVAL 'UTC'")},
        {typed(QUILLET_TYPE_TIMEZ, "'1'", zone(3)), gives("TIMEZ '1'", -2)},
        {typed(QUILLET_TYPE_VARCHAR, "'x'", zone(1)), gives("VARCHAR 'x'")},
        {typed(QUILLET_TYPE_VARCHAR, "'x'", zone(3)), gives("VARCHAR 'x'", -2)},
        {typed(QUILLET_TYPE_UNKNOWN, "'x'", zone(1)), gives("'x'")},
        // of several children the string is the literal, then the boolean and the integer
        {literal({.const_boolean = const_boolean(1),
                  .const_string = const_string("'a'"),
                  .const_integer = const_integer("1"),
                  .const_floating = const_floating("1.5")}),
         gives("'a'")},
        {literal({.const_boolean = const_boolean(1),
                  .const_integer = const_integer("1"),
                  .const_floating = const_floating("1.5")}),
         gives("TRUE")},
        {literal({.const_integer = const_integer("1"), .const_floating = const_floating("1.5")}),
         gives("1")},
        {literal({.const_string = create<node_const_string>(),
                  .const_floating = const_floating("1.5")}),
         gives("1.5", -2)},
        {boolean(1), gives("TRUE")},
    });
}

struct type_case {
    any_tree tree;
    int type;
};

void expect_types(const std::vector<type_case> &cases) {
    const owned<builder> self(quillet_default_builder_create());
    for (std::size_t i = 0; i < cases.size(); ++i) {
        cases[i].tree.render(self.get());
        EXPECT_EQ(cases[i].tree.sql_type(), cases[i].type) << "tree " << i;
    }
}

TEST(Types, OfLiterals) {
    expect_types({
        {const_string("'a'"), QUILLET_TYPE_VARCHAR},
        {const_integer("1"), QUILLET_TYPE_INT8},
        {const_floating("1.5"), QUILLET_TYPE_FLOAT8},
        {const_boolean(1), QUILLET_TYPE_BOOL},
        {const_boolean(3), QUILLET_TYPE_BOOL},
        {string("'a'"), QUILLET_TYPE_VARCHAR},
        {integer("1"), QUILLET_TYPE_INT8},
        {floating("1.5"), QUILLET_TYPE_FLOAT8},
        {boolean(2), QUILLET_TYPE_BOOL},
        {literal({}), QUILLET_TYPE_UNKNOWN},
        {make(node_const_generic{.sql_type = 5}), QUILLET_TYPE_UNKNOWN},
        {make(node_const_generic{.const_integer = const_integer("1"), .type = QUILLET_TYPE_DATE}),
         QUILLET_TYPE_INT8},
        {column("a"), QUILLET_TYPE_UNKNOWN},
        {calling(call_of("now")), QUILLET_TYPE_TIMESTAMP},
        {make(node_expression{.case_expression = branches("a", {branch("b", "c")}, "d")}),
         QUILLET_TYPE_UNKNOWN},
        {parentheses(operation("operator_addition", integer("1"), integer("2"))),
         QUILLET_TYPE_INT8},
        {parentheses(parentheses(typed(QUILLET_TYPE_DATE, "'1'"))), QUILLET_TYPE_DATE},
        {operation("operator_addition", integer("1"), floating("2.5")), QUILLET_TYPE_FLOAT8},
        {operation("operator_addition", typed(QUILLET_TYPE_DATE, "'1'"), integer("1")),
         QUILLET_TYPE_DATE},
        {operation("operator_substraction", typed(QUILLET_TYPE_TIMESTAMP, "'1'"),
                   typed(QUILLET_TYPE_TIMESTAMP, "'2'")),
         QUILLET_TYPE_INTERVAL},
        {operation("operator_uminus", floating("2.5")), QUILLET_TYPE_FLOAT8},
    });
}

TEST(Types, OfTypedLiteralsAndCasts) {
    const owned<builder> self(quillet_default_builder_create());
    for (int type = 0; type <= 18; ++type) {
        const std::string name = quillet_type_to_string(type);
        const any_tree constant(typed(type, "'x'"));
        EXPECT_EQ(constant.render(self.get()), gives(name + (name.empty() ? "" : " ") + "'x'"));
        EXPECT_EQ(constant.sql_type(), type ? type : QUILLET_TYPE_VARCHAR);
        const any_tree cast(make(node_cast_expression{.expression = column("x"), .type = type}));
        EXPECT_EQ(cast.render(self.get()), gives("CAST(x AS " + name + ")"));
        EXPECT_EQ(cast.sql_type(), type);
        const any_tree expression(make(node_expression{
            .cast_expression =
                make(node_cast_expression{.expression = column("x"), .type = type})}));
        EXPECT_EQ(expression.render(self.get()), gives("CAST(x AS " + name + ")"));
        EXPECT_EQ(expression.sql_type(), type);
        const any_tree zoned(typed(type, "'x'", zone(1)));
        EXPECT_EQ(zoned.render(self.get()),
                  gives(name + (name.empty() ? "" : " ") + "'x'" +
                        (quillet_is_datetime(type) ? " AT TIME ZONE 'UTC'" : "")));
    }
}

node_agregate_expression *quantified(int type, node_expression *expression) {
    return make(node_agregate_expression{.type = type, .expression = expression});
}

node_trim_argument *trimming(int mode, const char *characters, const char *text) {
    return make(node_trim_argument{.mode = mode,
                                   .expression_1 = characters ? string(characters) : nullptr,
                                   .expression_2 = text ? column(text) : nullptr});
}

TEST(Texts, OfArguments) {
    expect_texts({
        {call_of("NOW"), gives("NOW()")},
        {make(node_function_call{}), textless(-2)},
        {call_of("f", arguments(column("a"), integer("1"), string("'x'"))), gives("f(a, 1, 'x')")},
        {call_of("f", arguments(column("mute"), column("b"))), gives("f(b)")},
        {call_of("f", arguments(column("mute"))), gives("f()")},
        {call_of("f", arguments(column("fail2"), column("fail3"))), gives("f(fail2, fail3)", -3)},
        {call_of("f", arguments(column("fail3"), column("fail2"))), gives("f(fail3, fail2)", -2)},
        {call_of("f", arguments(nullptr, column("b"))), gives("f(b)", -2)},
        {call_of("f", create<node_expressions_list>()), gives("f()", -2)},
        {call_of("fail3", arguments(column("a"))), gives("fail3(a)", -3)},
        {quantified(1, column("a")), gives("DISTINCT a")},
        {quantified(2, column("a")), gives("ALL a")},
        {quantified(3, nullptr), gives("*")},
        {quantified(3, column("a")), gives("*")},
        {quantified(3, column("fail3")), gives("*", -3)},
        {quantified(1, nullptr), gives("DISTINCT ")},
        {quantified(2, column("mute")), gives("ALL ")},
        {quantified(0, column("a")), textless(0)},
        {quantified(4, column("a")), textless(0)},
        {quantified(-1, column("fail3")), textless(-3)},
        {make(node_function_call{.function_name = identifier("count"),
                                 .agregate_expression = quantified(3, nullptr)}),
         gives("count(*)")},
        {make(node_function_call{.function_name = identifier("count"),
                                 .agregate_expression = quantified(9, nullptr)}),
         gives("count()")},
        {make(node_using_argument{.expression = column("x"), .identifier = identifier("enc")}),
         gives("x USING enc")},
        {make(node_using_argument{.expression = column("mute"), .identifier = identifier("enc")}),
         gives(" USING enc")},
        {make(node_in_argument{.expression_1 = column("a"), .expression_2 = column("b")}),
         gives("a IN b")},
        {make(node_in_argument{.expression_1 = column("a"), .expression_2 = column("none")}),
         gives("a IN ")},
        {make(node_from_for_argument{.expression_1 = column("s"), .expression_2 = integer("2")}),
         gives("s FROM 2")},
        {make(node_from_for_argument{.expression_1 = column("s"),
                                     .expression_2 = integer("2"),
                                     .expression_3 = integer("3")}),
         gives("s FROM 2 FOR 3")},
        {make(node_from_for_argument{.expression_1 = column("s"),
                                     .expression_2 = column("mute"),
                                     .expression_3 = column("none")}),
         gives("s FROM ")},
        {make(node_placing_from_for_argument{.expression_1 = column("s"),
                                             .expression_2 = string("'x'")}),
         gives("s PLACING 'x'")},
        {make(node_placing_from_for_argument{.expression_1 = column("s"),
                                             .expression_2 = string("'x'"),
                                             .expression_3 = integer("2")}),
         gives("s PLACING 'x' FROM 2")},
        {make(node_placing_from_for_argument{.expression_1 = column("s"),
                                             .expression_2 = string("'x'"),
                                             .expression_4 = integer("1")}),
         gives("s PLACING 'x' FOR 1")},
        {make(node_placing_from_for_argument{.expression_1 = column("s"),
                                             .expression_2 = string("'x'"),
                                             .expression_3 = integer("2"),
                                             .expression_4 = integer("1")}),
         gives("s PLACING 'x' FROM 2 FOR 1")},
        {make(node_placing_from_for_argument{.expression_1 = column("mute"),
                                             .expression_2 = column("none"),
                                             .expression_3 = column("mute"),
                                             .expression_4 = column("none")}),
         gives(" PLACING ")},
        {trimming(1, "'x'", "s"), gives("BOTH 'x' FROM s")},
        {trimming(2, "'x'", "s"), gives("LEADING 'x' FROM s")},
        {trimming(3, "'x'", "s"), gives("TRAILING 'x' FROM s")},
        {trimming(0, "'x'", "s"), gives("'x' FROM s")},
        {trimming(4, "'x'", "s"), gives("'x' FROM s")},
        {trimming(1, nullptr, "s"), gives("BOTH FROM s")},
        {trimming(2, nullptr, "s"), gives("LEADING FROM s")},
        {trimming(3, nullptr, "s"), gives("TRAILING FROM s")},
        {trimming(0, nullptr, "s"), gives(" FROM s")},
        {trimming(-1, nullptr, "s"), gives(" FROM s")},
        {trimming(2, nullptr, nullptr), textless(-2)},
        {pair("a", "b"), gives("a, b")},
        {pair("mute", "b"), gives(", b")},
        {pair("fail2", "fail3"), gives("fail2, fail3", -3)},
    });
}

TEST(Texts, OfExpressionsWithoutText) {
    expect_texts({
        {column("mute"), textless(0)},
        {parentheses(column("mute")), gives("()")},
        {operation("operator_addition", column("a"), column("none")), gives("a + ")},
        {operation("operator_addition", column("mute"), column("b")), gives(" + b")},
        {operation("operator_addition", operation("operator_no", column("a")), integer("1")),
         gives(" + 1")},
        {operation("operator_and", column("fail2"), column("fail3")), gives("fail2 AND fail3", -3)},
        {operation("operator_and", column("fail3"), create<node_expression>()),
         gives("fail3 AND ", -2)},
        {operation("operator_between", column("a"), column("b")), textless(-2)},
        {operation("operator_not", column("empty")), gives("NOT ")},
    });
}

// What stands in a slot holds wherever a node of the kind stands.

int calls = 0;
builder *caller = nullptr;

template <class Node> build_result *counted(builder *self, Node *, void *) {
    ++calls;
    caller = self;
    build_result *result = quillet_build_result_create();
    result->query = copy("<here>");
    result->build_result = -9;
    return result;
}

// Together they hold every kind that the default builder renders, most of them nested.
constexpr const char *every_kind[] = {
    "SELECT (CASE f((a)) WHEN 1 THEN 'x' ELSE 2.5 END), t.*, count(ALL b), trim(BOTH 'x' FROM s), "
    "convert(a USING b), overlay(a PLACING b FROM 1 FOR 2), position(a IN b), "
    "substring(a FROM 1 FOR 2), time '1' AT time ZONE 'x', TRUE "
    "FROM t JOIN u ON CAST(a AS int) LIKE 'x' ESCAPE '!' WHERE (a, b) OVERLAPS (c, d) "
    "GROUP BY a HAVING b ORDER BY a LIMIT 1 OFFSET 2",
    "SELECT DISTINCT ON (a) b FROM t, u JOIN v USING (a, b)",
    "INSERT INTO t VALUES (1, DEFAULT)",
    "UPDATE t SET a = 1, b = 2 WHERE c",
    "DELETE FROM t WHERE a",
};

template <class Replace> int calls_with(Replace replace) {
    calls = 0;
    for (const char *statement : every_kind) {
        const parsed outcome = parse(statement);
        EXPECT_EQ(outcome.result, 0) << statement;
        const owned<builder> self(quillet_default_builder_create());
        replace(*self);
        const int before = calls;
        const auto result = taken(call_slot(self.get(), outcome.tree.get()));
        if (calls > before) {
            EXPECT_THAT(result.text.value_or(""), testing::HasSubstr("<here>"));
            EXPECT_EQ(result.status, -9);
            EXPECT_EQ(caller, self.get());
        } else {
            EXPECT_EQ(result.status, 0);
        }
    }
    return calls;
}

// A builder that holds next to nothing, so that nothing is written at all.

template <class Node> build_result *empty_record(builder *, Node *, void *) {
    return quillet_build_result_create();
}

template <class Node> build_result *empty_text(builder *, Node *, void *) {
    build_result *result = quillet_build_result_create();
    result->query = copy("");
    return result;
}

TEST(ZeroedBuilder, RendersExpressionsWithoutText) {
    builder self{};
    const auto render = [&] {
        const owned<node_expression> both(integer("1"));
        both->column_reference = reference("a");
        return taken(quillet_expression_default_builder(&self, both.get(), nullptr));
    };
    EXPECT_EQ(render(), textless()); // the column stands all the same
    self.build_const_generic = empty_record<node_const_generic>;
    EXPECT_EQ(render(), textless());
    self.build_column_reference = empty_text<node_column_reference>;
    EXPECT_EQ(render(), gives(""));
    self.build_const_generic = empty_text<node_const_generic>;
    EXPECT_EQ(render(), gives(""));
    self.build_column_reference = nullptr;
    EXPECT_EQ(render(), gives(""));
}

TEST(ReplacedSlots, AreUsedForEveryKind){
#define NODE(kind)                                                                                 \
    {                                                                                              \
        SCOPED_TRACE(#kind);                                                                       \
        const int found =                                                                          \
            calls_with([](builder &self) { self.build_##kind = counted<node_##kind>; });           \
        EXPECT_EQ(found > 0, #kind != std::string("join_type"));                                   \
    }
#include "quillet_nodes.def"
}

// Empty slots give gaps, and nothing else happens.
TEST(ReplacedSlots, MayBeEmptied) {
    // Once made, these are known to every rendering, and most of their own slots are empty.
    const owned<builder> type_view(quillet_type_view_builder_create());
    const owned<builder> mysql(quillet_mysql_builder_create());
#define NODE(kind)                                                                                 \
    if (#kind != std::string("identifier"))                                                        \
        for (const char *statement : every_kind) {                                                 \
            const parsed outcome = parse(statement);                                               \
            const owned<builder> self(quillet_default_builder_create());                           \
            self->build_##kind = nullptr;                                                          \
            const auto result = taken(call_slot(self.get(), outcome.tree.get()));                  \
            EXPECT_EQ(result.record,                                                               \
                      #kind != std::string("main") &&                                              \
                          !(#kind == std::string("select") && outcome.tree->select) &&             \
                          !(#kind == std::string("insert") && outcome.tree->insert) &&             \
                          !(#kind == std::string("update") && outcome.tree->update) &&             \
                          !(#kind == std::string("delete") && outcome.tree->delete_))              \
                << #kind << ' ' << statement;                                                      \
        }
#include "quillet_nodes.def"
}

build_result *numbered(builder *self, node_const_integer *node, void *data) {
    build_result *result = quillet_const_integer_default_builder(self, node, data);
    const owned<char> text(result->query);
    result->query = copy(('#' + std::string(text.get())).c_str());
    return result;
}

TEST(ReplacedSlots, HoldAtEveryDepth) {
    const owned<builder> self(quillet_default_builder_create());
    self->build_const_integer = numbered;
    const parsed outcome = parse(
        "SELECT 1, f(2, (3 + 4) * 5, g(6 FROM 7)), CASE 8 WHEN 9 THEN 10 ELSE - 11 END FROM t "
        "WHERE CAST(12 AS int) BETWEEN 13 AND 14 LIMIT 15 OFFSET 16");
    ASSERT_EQ(outcome.result, 0);
    EXPECT_EQ(
        taken(call_slot(self.get(), outcome.tree.get())),
        gives(
            "SELECT #1, f(#2, (#3 + #4) * #5, g(#6 FROM #7)), CASE #8 WHEN #9 THEN #10 ELSE - #11 "
            "END FROM t WHERE CAST(#12 AS INT4) BETWEEN #13 AND #14 LIMIT #15 OFFSET #16"));
}

// Long chains neither use up the stack nor slow down.
TEST(LongChains, AreRendered) {
    std::string list = "1";
    std::string sum = "1";
    for (int i = 0; i < 100'000; ++i) {
        list += ", 1";
        sum += " + 1";
    }
    const owned<builder> self(quillet_default_builder_create());
    for (const std::string &statement :
         {"SELECT " + list, "SELECT " + sum, "SELECT f(" + list + ")",
          "INSERT INTO t VALUES (" + list + ")"}) {
        const parsed outcome = parse(statement);
        ASSERT_EQ(outcome.result, 0);
        EXPECT_TRUE(taken(call_slot(self.get(), outcome.tree.get())) == gives(statement));
    }
}

} // namespace
