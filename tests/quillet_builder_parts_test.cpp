// The children of every default operation: their order, the required ones, their statuses.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <vector>

#include "answering_builder.h"
#include "quillet_builder.h"
#include "support.h"

using namespace quillet_tests;

namespace {

template <class Node, class Child> struct part {
    Child *Node::*field;
    bool required;
};

template <class Node, class Child> part<Node, Child> needs(Child *Node::*field) {
    return {field, true};
}

template <class Node, class Child> part<Node, Child> may(Child *Node::*field) {
    return {field, false};
}

template <class Node, class... Children> class parts_check {
public:
    using operation = build_result *(*)(builder *, Node *, void *);

    parts_check(operation rendering, const Node &codes, part<Node, Children>... parts)
        : render(rendering), fields(codes), required{parts.required...},
          fill([parts...](Node *node) {
              return std::vector<const void *>{(node->*parts.field = create<Children>())...};
          }),
          clear([parts...](Node *node, std::size_t position) {
              std::size_t i = 0;
              ((i++ == position ? (release()(node->*parts.field), node->*parts.field = nullptr)
                                : nullptr),
               ...);
          }) {}

    void run() {
        constexpr std::size_t count = sizeof...(Children);
        expect(count, {}, 0);
        for (std::size_t i = 0; i < count; ++i) {
            expect_absent(i);
            expect(count, {{i, -2}}, -2);
            expect(count, {{i, -3}}, -3);
            expect(count, {{i, -17}}, -17);
            for (std::size_t j = i + 1; j < count; ++j) {
                expect(count, {{i, -2}, {j, -3}}, -3);
                expect(count, {{i, -3}, {j, -2}}, -2);
            }
        }
        expect_no_records();
    }

private:
    // All children are there, some fail: all are rendered in order, the last failure counts.
    void expect(std::size_t count, const std::map<std::size_t, int> &failures, int status) {
        answering stub;
        const owned<Node> node(make(fields));
        const std::vector<const void *> children = fill(node.get());
        std::vector<visit> order;
        for (std::size_t i = 0; i < count; ++i) {
            const auto failure = failures.find(i);
            answers[children[i]] = gives("part", failure == failures.end() ? 0 : failure->second);
            order.push_back({children[i], nullptr});
        }
        const outcome result = taken(render(&stub.self, node.get(), nullptr));
        EXPECT_TRUE(result.text.has_value());
        EXPECT_EQ(result.status, status);
        EXPECT_EQ(visits, order);
    }

    // One child is NULL: without a required one nothing is rendered.
    void expect_absent(std::size_t absent) {
        answering stub;
        const owned<Node> node(make(fields));
        const std::vector<const void *> children = fill(node.get());
        clear(node.get(), absent);
        std::vector<visit> order;
        for (std::size_t i = 0; i < children.size(); ++i)
            if (i != absent) {
                answers[children[i]] = gives("part");
                order.push_back({children[i], nullptr});
            }
        const outcome result = taken(render(&stub.self, node.get(), nullptr));
        if (required[absent]) {
            EXPECT_EQ(result, textless(-2)) << absent;
            EXPECT_TRUE(visits.empty()) << absent;
        } else {
            EXPECT_EQ(result.status, 0) << absent;
            EXPECT_EQ(visits, order) << absent;
        }
    }

    void expect_no_records() {
        answering stub;
        const owned<Node> node(make(fields));
        const std::size_t count = fill(node.get()).size();
        const outcome result = taken(render(&stub.self, node.get(), nullptr));
        EXPECT_TRUE(result.record);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(visits.size(), count);
    }

    operation render;
    Node fields;
    std::vector<bool> required;
    std::function<std::vector<const void *>(Node *)> fill;
    std::function<void(Node *, std::size_t)> clear;
};

template <class Node, class... Children>
void expect_parts(const char *name, build_result *(*operation)(builder *, Node *, void *),
                  const Node &codes, part<Node, Children>... parts) {
    SCOPED_TRACE(name);
    parts_check<Node, Children...>(operation, codes, parts...).run();
}

// PARTS(kind, codes, parts in rendering order...)
#define PARTS(kind, codes, ...)                                                                    \
    expect_parts<node_##kind>(#kind, quillet_##kind##_default_builder, node_##kind codes,          \
                              __VA_ARGS__)
#define NEEDS(kind, field) needs(&node_##kind::field)
#define MAY(kind, field) may(&node_##kind::field)

TEST(Parts, OfStatements) {
    PARTS(select, {}, NEEDS(select, distinct_select_list), MAY(select, tables),
          MAY(select, where_clausule), MAY(select, group_by_clausule),
          MAY(select, order_by_clausule), MAY(select, limit_clausule));
    PARTS(update, {}, NEEDS(update, table), NEEDS(update, set_clausule),
          MAY(update, where_clausule));
    PARTS(set_clausule, {}, NEEDS(set_clausule, set_list));
    PARTS(set_list, {}, MAY(set_list, set_list), NEEDS(set_list, set_item));
    PARTS(set_item, {}, NEEDS(set_item, column_reference), NEEDS(set_item, expression));
    PARTS(delete, {}, NEEDS(delete, table), MAY(delete, where_clausule));
    PARTS(values_list, {}, NEEDS(values_list, expression_or_default_list));
    PARTS(expression_or_default_list, {},
          MAY(expression_or_default_list, expression_or_default_list),
          NEEDS(expression_or_default_list, expression_or_default_item));
    PARTS(expression_or_default_item, {}, MAY(expression_or_default_item, expression));
}

TEST(Parts, OfClauses) {
    PARTS(tables, {}, NEEDS(tables, tables_list), MAY(tables, join_list));
    PARTS(tables_list, {}, MAY(tables_list, tables_list), NEEDS(tables_list, table));
    PARTS(table, {}, NEEDS(table, identifier), MAY(table, alias));
    PARTS(join_list, {}, MAY(join_list, join_list), NEEDS(join_list, join));
    PARTS(join, {}, NEEDS(join, table), MAY(join, join_expression));
    PARTS(join_expression, {}, MAY(join_expression, expression),
          MAY(join_expression, identifier_list));
    PARTS(where_clausule, {}, NEEDS(where_clausule, expression));
    PARTS(group_by_clausule, {}, NEEDS(group_by_clausule, column_reference_list),
          MAY(group_by_clausule, having_clausule));
    PARTS(having_clausule, {}, NEEDS(having_clausule, expression));
    PARTS(order_by_clausule, {}, NEEDS(order_by_clausule, order_by_list));
    PARTS(order_by_list, {}, MAY(order_by_list, order_by_list),
          NEEDS(order_by_list, order_by_item));
    PARTS(order_by_item, {}, NEEDS(order_by_item, expression));
    PARTS(limit_clausule, {}, MAY(limit_clausule, const_integer_1),
          MAY(limit_clausule, const_integer_2));
    PARTS(distinct_select_list, {}, MAY(distinct_select_list, distinct),
          NEEDS(distinct_select_list, select_list));
    PARTS(distinct, {}, MAY(distinct, select_list));
    PARTS(select_list, {}, MAY(select_list, select_list), NEEDS(select_list, select_item));
    PARTS(select_item, {}, MAY(select_item, expression), MAY(select_item, identifier));
    PARTS(identifier_list, {}, MAY(identifier_list, identifier_list),
          NEEDS(identifier_list, identifier));
    PARTS(column_reference_list, {}, MAY(column_reference_list, column_reference_list),
          NEEDS(column_reference_list, column_reference));
    PARTS(column_reference, {}, MAY(column_reference, correlation_name),
          NEEDS(column_reference, column_name));
}

TEST(Parts, OfExpressions) {
    PARTS(case_expression, {}, MAY(case_expression, expression), NEEDS(case_expression, when_list),
          MAY(case_expression, else_clausule));
    PARTS(when_list, {}, MAY(when_list, when_list), NEEDS(when_list, when_item));
    PARTS(when_item, {}, NEEDS(when_item, expression_1), NEEDS(when_item, expression_2));
    PARTS(else_clausule, {}, NEEDS(else_clausule, expression));
    PARTS(overlaps_expression, {}, NEEDS(overlaps_expression, expression_1),
          NEEDS(overlaps_expression, expression_2));
    PARTS(cast_expression, {}, NEEDS(cast_expression, expression));
    PARTS(const_generic, {}, MAY(const_generic, const_string), MAY(const_generic, const_boolean),
          MAY(const_generic, const_integer), MAY(const_generic, const_floating),
          MAY(const_generic, at_time_zone));
    PARTS(at_time_zone, {.type = 1}, NEEDS(at_time_zone, const_string));
    PARTS(at_time_zone, {.type = 2}, NEEDS(at_time_zone, const_string));
    PARTS(agregate_expression, {.type = 1}, MAY(agregate_expression, expression));
    PARTS(agregate_expression, {.type = 3}, MAY(agregate_expression, expression));
}

TEST(Parts, OfCalls) {
    PARTS(function_call, {}, NEEDS(function_call, function_name),
          MAY(function_call, expressions_list), MAY(function_call, agregate_expression),
          MAY(function_call, using_argument), MAY(function_call, placing_from_for_argument),
          MAY(function_call, in_argument), MAY(function_call, from_for_argument),
          MAY(function_call, trim_argument));
    PARTS(expressions_list, {}, MAY(expressions_list, expressions_list),
          NEEDS(expressions_list, expression));
    PARTS(using_argument, {}, NEEDS(using_argument, expression), NEEDS(using_argument, identifier));
    PARTS(in_argument, {}, NEEDS(in_argument, expression_1), NEEDS(in_argument, expression_2));
    PARTS(from_for_argument, {}, NEEDS(from_for_argument, expression_1),
          NEEDS(from_for_argument, expression_2), MAY(from_for_argument, expression_3));
    PARTS(placing_from_for_argument, {}, NEEDS(placing_from_for_argument, expression_1),
          NEEDS(placing_from_for_argument, expression_2),
          MAY(placing_from_for_argument, expression_3),
          MAY(placing_from_for_argument, expression_4));
    PARTS(trim_argument, {}, MAY(trim_argument, expression_1), NEEDS(trim_argument, expression_2));
}

} // namespace
