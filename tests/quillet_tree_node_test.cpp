#include "quillet_tree_node.h"

#include <gtest/gtest.h>
#include <pthread.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

#include "support.h"

using namespace quillet_tests;

namespace {

struct field_row {
    const char *name;
    std::size_t offset;
    std::size_t size;
};

template <class Declared, class Actual>
constexpr field_row row_of(const char *name, std::size_t offset) {
    static_assert(std::is_same_v<Declared, Actual>);
    return {name, offset, sizeof(Actual)};
}

#define FIELD(kind, field, type)                                                                   \
    row_of<type, decltype(node_##kind::field)>(#field, offsetof(node_##kind, field))
#define CHILD(kind, field, type) FIELD(kind, field, node_##type *)
#define CODE(kind, field) FIELD(kind, field, std::int32_t)
#define TEXT(kind, field) FIELD(kind, field, char *)

struct kind_row {
    const char *name;
    std::size_t size;
    std::vector<field_row> fields; // after sql_type
};

// clang-format off
const std::vector<kind_row> kinds = {
    {"main", sizeof(node_main), {CHILD(main, select, select), CHILD(main, insert, insert), CHILD(main, update, update), CHILD(main, delete_, delete)}},
    {"select", sizeof(node_select), {CHILD(select, distinct_select_list, distinct_select_list), CHILD(select, tables, tables), CHILD(select, where_clausule, where_clausule), CHILD(select, group_by_clausule, group_by_clausule), CHILD(select, order_by_clausule, order_by_clausule), CHILD(select, limit_clausule, limit_clausule)}},
    {"insert", sizeof(node_insert), {CHILD(insert, table, table), CHILD(insert, identifier_list, identifier_list), CHILD(insert, values_list, values_list)}},
    {"update", sizeof(node_update), {CHILD(update, table, table), CHILD(update, set_clausule, set_clausule), CHILD(update, where_clausule, where_clausule)}},
    {"delete", sizeof(node_delete), {CHILD(delete, table, table), CHILD(delete, where_clausule, where_clausule)}},
    {"distinct_select_list", sizeof(node_distinct_select_list), {CHILD(distinct_select_list, distinct, distinct), CHILD(distinct_select_list, select_list, select_list)}},
    {"distinct", sizeof(node_distinct), {CHILD(distinct, select_list, select_list)}},
    {"tables", sizeof(node_tables), {CHILD(tables, tables_list, tables_list), CHILD(tables, join_list, join_list)}},
    {"where_clausule", sizeof(node_where_clausule), {CHILD(where_clausule, expression, expression)}},
    {"group_by_clausule", sizeof(node_group_by_clausule), {CHILD(group_by_clausule, column_reference_list, column_reference_list), CHILD(group_by_clausule, having_clausule, having_clausule)}},
    {"having_clausule", sizeof(node_having_clausule), {CHILD(having_clausule, expression, expression)}},
    {"order_by_clausule", sizeof(node_order_by_clausule), {CHILD(order_by_clausule, order_by_list, order_by_list)}},
    {"order_by_item", sizeof(node_order_by_item), {CODE(order_by_item, type), CHILD(order_by_item, expression, expression)}},
    {"limit_clausule", sizeof(node_limit_clausule), {CHILD(limit_clausule, const_integer_1, const_integer), CHILD(limit_clausule, const_integer_2, const_integer)}},
    {"set_clausule", sizeof(node_set_clausule), {CHILD(set_clausule, set_list, set_list)}},
    {"set_item", sizeof(node_set_item), {CHILD(set_item, column_reference, column_reference), CHILD(set_item, expression, expression)}},
    {"values_list", sizeof(node_values_list), {CHILD(values_list, expression_or_default_list, expression_or_default_list)}},
    {"expression_or_default_item", sizeof(node_expression_or_default_item), {CHILD(expression_or_default_item, expression, expression)}},
    {"table", sizeof(node_table), {CHILD(table, identifier, identifier), CHILD(table, alias, identifier)}},
    {"join", sizeof(node_join), {CODE(join, type), CODE(join, natural), CHILD(join, table, table), CHILD(join, join_expression, join_expression)}},
    {"join_expression", sizeof(node_join_expression), {CHILD(join_expression, expression, expression), CHILD(join_expression, identifier_list, identifier_list)}},
    {"join_type", sizeof(node_join_type), {CODE(join_type, type)}},
    {"select_item", sizeof(node_select_item), {CHILD(select_item, expression, expression), CHILD(select_item, identifier, identifier)}},
    {"identifier", sizeof(node_identifier), {TEXT(identifier, name)}},
    {"column_reference", sizeof(node_column_reference), {CHILD(column_reference, column_name, identifier), CHILD(column_reference, correlation_name, identifier)}},
    {"select_list", sizeof(node_select_list), {CHILD(select_list, select_list, select_list), CHILD(select_list, select_item, select_item)}},
    {"tables_list", sizeof(node_tables_list), {CHILD(tables_list, table, table), CHILD(tables_list, tables_list, tables_list)}},
    {"join_list", sizeof(node_join_list), {CHILD(join_list, join, join), CHILD(join_list, join_list, join_list)}},
    {"set_list", sizeof(node_set_list), {CHILD(set_list, set_list, set_list), CHILD(set_list, set_item, set_item)}},
    {"identifier_list", sizeof(node_identifier_list), {CODE(identifier_list, count), CHILD(identifier_list, identifier_list, identifier_list), CHILD(identifier_list, identifier, identifier)}},
    {"expression_or_default_list", sizeof(node_expression_or_default_list), {CODE(expression_or_default_list, count), CHILD(expression_or_default_list, expression_or_default_list, expression_or_default_list), CHILD(expression_or_default_list, expression_or_default_item, expression_or_default_item)}},
    {"column_reference_list", sizeof(node_column_reference_list), {CHILD(column_reference_list, column_reference_list, column_reference_list), CHILD(column_reference_list, column_reference, column_reference)}},
    {"order_by_list", sizeof(node_order_by_list), {CHILD(order_by_list, order_by_list, order_by_list), CHILD(order_by_list, order_by_item, order_by_item)}},
    {"when_list", sizeof(node_when_list), {CHILD(when_list, when_list, when_list), CHILD(when_list, when_item, when_item)}},
    {"expressions_list", sizeof(node_expressions_list), {CHILD(expressions_list, expressions_list, expressions_list), CHILD(expressions_list, expression, expression)}},
    {"expression", sizeof(node_expression), {CHILD(expression, const_generic, const_generic), TEXT(expression, operator_), CHILD(expression, column_reference, column_reference), CHILD(expression, expression_1, expression), CHILD(expression, expression_2, expression), CHILD(expression, expression_3, expression), CHILD(expression, const_boolean, const_boolean), CHILD(expression, escape, escape), CHILD(expression, function_call, function_call), CHILD(expression, cast_expression, cast_expression), CHILD(expression, overlaps_expression_1, overlaps_expression), CHILD(expression, overlaps_expression_2, overlaps_expression), CHILD(expression, case_expression, case_expression)}},
    {"case_expression", sizeof(node_case_expression), {CHILD(case_expression, expression, expression), CHILD(case_expression, when_list, when_list), CHILD(case_expression, else_clausule, else_clausule)}},
    {"when_item", sizeof(node_when_item), {CHILD(when_item, expression_1, expression), CHILD(when_item, expression_2, expression)}},
    {"else_clausule", sizeof(node_else_clausule), {CHILD(else_clausule, expression, expression)}},
    {"overlaps_expression", sizeof(node_overlaps_expression), {CHILD(overlaps_expression, expression_1, expression), CHILD(overlaps_expression, expression_2, expression)}},
    {"cast_expression", sizeof(node_cast_expression), {CHILD(cast_expression, expression, expression), CODE(cast_expression, type)}},
    {"escape", sizeof(node_escape), {TEXT(escape, string)}},
    {"const_generic", sizeof(node_const_generic), {CHILD(const_generic, const_boolean, const_boolean), CHILD(const_generic, const_string, const_string), CHILD(const_generic, const_integer, const_integer), CHILD(const_generic, const_floating, const_floating), CODE(const_generic, type), CHILD(const_generic, at_time_zone, at_time_zone)}},
    {"const_boolean", sizeof(node_const_boolean), {CODE(const_boolean, value)}},
    {"const_string", sizeof(node_const_string), {TEXT(const_string, string)}},
    {"const_integer", sizeof(node_const_integer), {TEXT(const_integer, integer)}},
    {"const_floating", sizeof(node_const_floating), {TEXT(const_floating, floating)}},
    {"at_time_zone", sizeof(node_at_time_zone), {CODE(at_time_zone, type), CHILD(at_time_zone, const_string, const_string)}},
    {"function_call", sizeof(node_function_call), {CHILD(function_call, function_name, identifier), CHILD(function_call, expressions_list, expressions_list), CHILD(function_call, agregate_expression, agregate_expression), CHILD(function_call, using_argument, using_argument), CHILD(function_call, placing_from_for_argument, placing_from_for_argument), CHILD(function_call, in_argument, in_argument), CHILD(function_call, from_for_argument, from_for_argument), CHILD(function_call, trim_argument, trim_argument)}},
    {"agregate_expression", sizeof(node_agregate_expression), {CODE(agregate_expression, type), CHILD(agregate_expression, expression, expression)}},
    {"using_argument", sizeof(node_using_argument), {CHILD(using_argument, expression, expression), CHILD(using_argument, identifier, identifier)}},
    {"placing_from_for_argument", sizeof(node_placing_from_for_argument), {CHILD(placing_from_for_argument, expression_1, expression), CHILD(placing_from_for_argument, expression_2, expression), CHILD(placing_from_for_argument, expression_3, expression), CHILD(placing_from_for_argument, expression_4, expression)}},
    {"in_argument", sizeof(node_in_argument), {CHILD(in_argument, expression_1, expression), CHILD(in_argument, expression_2, expression)}},
    {"from_for_argument", sizeof(node_from_for_argument), {CHILD(from_for_argument, expression_1, expression), CHILD(from_for_argument, expression_2, expression), CHILD(from_for_argument, expression_3, expression)}},
    {"trim_argument", sizeof(node_trim_argument), {CODE(trim_argument, mode), CHILD(trim_argument, expression_1, expression), CHILD(trim_argument, expression_2, expression)}},
};
// clang-format on

#undef FIELD
#undef CHILD
#undef CODE
#undef TEXT

TEST(TreeNodes, ThereAreFiftyFive) { EXPECT_EQ(kinds.size(), 55U); }

// Each field begins where the one before it ends, so none is missing and none is too many.
TEST(TreeNodes, FieldsInOrder) {
    const auto placed = [](std::size_t end, std::size_t size) {
        return (end + size - 1) / size * size;
    };
    for (const kind_row &kind : kinds) {
        std::size_t end = sizeof(std::int32_t);
        std::size_t alignment = sizeof(std::int32_t);
        for (const field_row &field : kind.fields) {
            EXPECT_EQ(field.offset, placed(end, field.size)) << kind.name << '.' << field.name;
            end = field.offset + field.size;
            alignment = std::max(alignment, field.size);
        }
        EXPECT_EQ(kind.size, placed(end, alignment)) << kind.name;
    }
}

TEST(TreeNodes, EveryRecordBeginsWithItsType) {
#define NODE(kind)                                                                                 \
    static_assert(std::is_same_v<decltype(node_##kind::sql_type), std::int32_t>);                  \
    EXPECT_EQ(offsetof(node_##kind, sql_type), 0U) << #kind;
#include "quillet_nodes.def"
}

template <class Node> bool is_zero(const Node &node) {
    const std::vector<char> zeros(sizeof node);
    return std::memcmp(&node, zeros.data(), sizeof node) == 0;
}

TEST(TreeNodes, AreCreatedZero) {
    // Memory that was used before, so that a record that is not cleared shows it.
    for (std::size_t size = 8; size < 128; size += 8) {
        char *used[16];
        for (char *&memory : used) {
            memory = static_cast<char *>(std::malloc(size));
            std::memset(memory, 0x5a, size);
        }
        for (char *memory : used)
            std::free(memory);
    }
    int created = 0;
#define NODE(kind)                                                                                 \
    {                                                                                              \
        const owned<node_##kind> node(quillet_node_##kind##_create());                             \
        EXPECT_TRUE(is_zero(*node)) << #kind;                                                      \
        ++created;                                                                                 \
    }
#include "quillet_nodes.def"
    EXPECT_EQ(created, 55);
}

TEST(TreeNodes, FreeIgnoresNull) {
#define NODE(kind) quillet_node_##kind##_free(nullptr);
#include "quillet_nodes.def"
}

// One of every kind with every child and text set. What is not freed, or freed twice, is the
// sanitizers' to see.
TEST(TreeNodes, FreeReleasesEveryField) {
    int freed = 0;
#define NODE(kind)                                                                                 \
    {                                                                                              \
        auto *node = create<node_##kind>();
#define CHILD(kind, type, field) node->field = create<node_##type>();
#define CODE(kind, field) node->field = 12345;
#define TEXT(kind, field) node->field = copy("text");
#define END(kind)                                                                                  \
    quillet_node_##kind##_free(node);                                                              \
    ++freed;                                                                                       \
    }
#include "quillet_nodes.def"
    EXPECT_EQ(freed, 55);
}

TEST(TreeNodes, MainReleasesTheWholeTree) {
    parsed statement = parse(
        "SELECT DISTINCT ON (a) a AS x, t.*, CAST('1' AS int), count(*), trim(BOTH 'x' FROM b), "
        "CASE WHEN a LIKE 'x' ESCAPE '!' THEN 1.5 ELSE TRUE END FROM t AS u JOIN v USING (c), "
        "w");
    EXPECT_EQ(statement.result, 1); // a comma does not follow a join
    statement = parse(
        "SELECT DISTINCT ON (a) a AS x, t.*, CAST('1' AS int), count(*), trim(BOTH 'x' FROM b), "
        "CASE WHEN a LIKE 'x' ESCAPE '!' THEN 1.5 ELSE TRUE END FROM t AS u JOIN v USING (c) "
        "WHERE (a, b) OVERLAPS (c, d) GROUP BY a HAVING TRUE ORDER BY a DESC LIMIT 1 OFFSET 2");
    ASSERT_EQ(statement.result, 0);
    ASSERT_NE(statement.tree, nullptr);
    quillet_node_main_free(statement.tree.release());
}

// Runs a task on a stack of 256 KiB.
template <class Task> void on_a_small_stack(Task task) {
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, 256 * 1024), 0);
    pthread_t thread;
    const auto run = [](void *argument) -> void * {
        (*static_cast<Task *>(argument))();
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, run, &task), 0);
    ASSERT_EQ(pthread_join(thread, nullptr), 0);
    pthread_attr_destroy(&attributes);
}

template <class Node> Node *chain(Node *Node::*link) {
    Node *head = nullptr;
    for (int i = 0; i < 1'000'000; ++i) {
        Node *next = create<Node>();
        next->*link = head;
        head = next;
    }
    return head;
}

// Frees a chain of a million nodes on a small stack.
#define DEEP_CHAIN(kind, link)                                                                     \
    TEST(DeepChains, kind##_##link) {                                                              \
        node_##kind *head = chain(&node_##kind::link);                                             \
        on_a_small_stack([head] { quillet_node_##kind##_free(head); });                            \
    }

DEEP_CHAIN(select_list, select_list)
DEEP_CHAIN(tables_list, tables_list)
DEEP_CHAIN(join_list, join_list)
DEEP_CHAIN(set_list, set_list)
DEEP_CHAIN(identifier_list, identifier_list)
DEEP_CHAIN(expression_or_default_list, expression_or_default_list)
DEEP_CHAIN(column_reference_list, column_reference_list)
DEEP_CHAIN(order_by_list, order_by_list)
DEEP_CHAIN(when_list, when_list)
DEEP_CHAIN(expressions_list, expressions_list)
DEEP_CHAIN(expression, expression_1)
DEEP_CHAIN(expression, expression_2)
DEEP_CHAIN(expression, expression_3)

TEST(DeepChains, ThroughSeveralKinds) {
    node_expression *inner = column("a");
    for (int i = 0; i < 250'000; ++i)
        inner = calling(make(node_function_call{
            .function_name = identifier("f"), .expressions_list = arguments(column("b"), inner)}));
    on_a_small_stack([inner] { quillet_node_expression_free(inner); });
}

} // namespace
