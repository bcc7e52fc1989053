#include "quillet_builder.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

#include "quillet_postgresql_builder.h"
#include "quillet_tree_view_builder.h"
#include "quillet_type_view_builder.h"
#include "support.h"

using namespace quillet_tests;

namespace {

// The slots in order, written out: their order is part of the record's layout.
// clang-format off
#define KIND_SLOTS(X) \
    X(main) X(select) X(insert) X(values_list) X(expression_or_default_list) \
    X(expression_or_default_item) X(update) X(set_clausule) X(set_list) X(set_item) X(delete) \
    X(distinct_select_list) X(tables) X(tables_list) X(table) X(join_list) X(join) X(join_type) \
    X(join_expression) X(where_clausule) X(group_by_clausule) X(having_clausule) \
    X(order_by_clausule) X(order_by_list) X(order_by_item) X(limit_clausule) X(distinct) \
    X(select_list) X(expression) X(case_expression) X(when_list) X(when_item) X(else_clausule) \
    X(overlaps_expression) X(cast_expression) X(const_generic) X(at_time_zone) X(const_string) \
    X(const_integer) X(const_floating) X(escape) X(const_boolean) X(select_item) \
    X(identifier_list) X(identifier) X(column_reference_list) X(column_reference) \
    X(function_call) X(using_argument) X(placing_from_for_argument) X(in_argument) \
    X(from_for_argument) X(trim_argument) X(expressions_list) X(agregate_expression)

#define OPERATOR_SLOTS(X) \
    X(multiplicity) X(divide) X(modulo) X(addition) \
    X(substraction) X(uminus) X(and) X(or) X(not) \
    X(between) X(not_between) X(is_null) X(is_not_null) \
    X(distinct_from) X(is) X(is_not) X(like) \
    X(not_like) X(ilike) X(not_ilike) X(similar_to) \
    X(not_similar_to) X(equal) X(not_equal) X(greater) \
    X(not_greater) X(lesser) X(not_lesser) X(square_root) \
    X(cubic_root) X(factorial) X(shift_left) X(shift_right) \
    X(concatenate) X(abs) X(power) X(bitwise_and) \
    X(bitwise_or) X(bitwise_xor) X(bitwise_not) X(regex) \
    X(iregex) X(not_regex) X(not_iregex) X(overlaps)

#define FUNCTION_SLOTS(X) \
    X(abs) X(cbrt) X(ceil) X(ceiling) X(count) \
    X(degrees) X(exp) X(floor) X(ln) X(log) \
    X(mod) X(pi) X(power) X(radians) X(random) \
    X(round) X(setseed) X(sign) X(sqrt) X(trunc) \
    X(width_bucket) X(acos) X(asin) X(atan) \
    X(atan2) X(cos) X(cot) X(sin) X(tan) \
    X(bit_length) X(char_length) X(character_length) \
    X(convert) X(lower) X(octet_length) X(overlay) \
    X(position) X(substring) X(trim) X(upper) \
    X(ascii) X(btrim) X(chr) X(decode) X(encode) \
    X(initcap) X(length) X(lpad) X(ltrim) X(md5) \
    X(pg_client_encoding) X(quote_ident) X(quote_literal) \
    X(repeat) X(replace) X(rpad) X(rtrim) \
    X(split_part) X(strpos) X(substr) X(to_ascii) \
    X(to_hex) X(translate) X(age) X(current_date) \
    X(current_time) X(current_timestamp) X(date_part) \
    X(date_trunc) X(extract) X(isfinite) X(localtime) \
    X(localtimestamp) X(now) X(timeofday) X(timezone) \
    X(coalesce) X(nullif) X(avg) X(bit_and) \
    X(bit_or) X(bool_and) X(bool_or) X(every) \
    X(max) X(min) X(stddev) X(sum) X(variance) \
    X(to_char) X(to_date) X(to_timestamp) X(to_number)

// clang-format on

// Applies F(slot, node type) to all of them.
#define KIND_SLOT(name) SLOT(name, node_##name)
#define OPERATOR_SLOT(name) SLOT(operator_##name, node_expression)
#define FUNCTION_SLOT(name) SLOT(function_##name, node_function_call)
#define ALL_SLOTS KIND_SLOTS(KIND_SLOT) OPERATOR_SLOTS(OPERATOR_SLOT) FUNCTION_SLOTS(FUNCTION_SLOT)

TEST(BuilderRecord, SlotsInOrder) {
    std::size_t position = 1;
#define SLOT(slot, node_type)                                                                      \
    static_assert(std::is_same_v<decltype(builder::build_##slot),                                  \
                                 build_result *(*)(builder *, node_type *, void *)>);              \
    EXPECT_EQ(offsetof(builder, build_##slot), sizeof(void *) * position++) << #slot;
    ALL_SLOTS
#undef SLOT
    EXPECT_EQ(position, 1U + 55 + 45 + 93);
    EXPECT_EQ(sizeof(builder), sizeof(void *) * position);
    EXPECT_EQ(offsetof(builder, parent), 0U);
    static_assert(std::is_same_v<decltype(builder::parent), builder *>);
}

TEST(BuildResult, IsCreatedEmpty) {
    const owned<build_result> result(quillet_build_result_create());
    EXPECT_EQ(result->query, nullptr);
    EXPECT_EQ(result->build_result, 0);
    static_assert(std::is_same_v<decltype(build_result::query), char *>);
    static_assert(std::is_same_v<decltype(build_result::build_result), std::int32_t>);
    static_assert(offsetof(build_result, query) == 0);
}

// What an operation was called with.
struct received {
    std::string by;
    builder *self = nullptr;
    const void *node = nullptr;
    void *data = nullptr;
};

received last;

build_result *receive(const char *by, builder *self, const void *node, void *data) {
    last = {by, self, node, data};
    build_result *result = quillet_build_result_create();
    result->query = copy(by);
    result->build_result = -3;
    return result;
}

template <class Node> build_result *own(builder *self, Node *node, void *data) {
    return receive("own", self, node, data);
}

template <class Node> build_result *inherited(builder *self, Node *node, void *data) {
    return receive("inherited", self, node, data);
}

// Expects that a call reached an operation with its arguments and returned what that returned.
#define EXPECT_RECEIVED(call, operation)                                                           \
    last = {};                                                                                     \
    EXPECT_EQ(taken(call(&self, &node, &data)), gives(operation, -3));                             \
    EXPECT_EQ(last.by, operation);                                                                 \
    EXPECT_EQ(last.self, &self);                                                                   \
    EXPECT_EQ(last.node, &node);                                                                   \
    EXPECT_EQ(last.data, &data)

#define EXPECT_NOTHING(call) EXPECT_EQ(call(&self, &node, &data), nullptr)

// One test for each slot.
#define SLOT(slot, node_type)                                                                      \
    TEST(Dispatch, slot) {                                                                         \
        builder grandparent{};                                                                     \
        builder parent{};                                                                          \
        builder self{};                                                                            \
        node_type node{};                                                                          \
        int data = 0;                                                                              \
        EXPECT_EQ(quillet_implements_##slot(&self), 0);                                            \
        EXPECT_NOTHING(quillet_call_build_##slot);                                                 \
        EXPECT_NOTHING(quillet_call_parent_build_##slot);                                          \
                                                                                                   \
        self.build_##slot = own<node_type>;                                                        \
        EXPECT_EQ(quillet_implements_##slot(&self), 1);                                            \
        EXPECT_RECEIVED(quillet_call_build_##slot, "own");                                         \
        EXPECT_RECEIVED(quillet_call_parent_build_##slot, "own");                                  \
                                                                                                   \
        self.parent = &parent;                                                                     \
        parent.parent = &grandparent;                                                              \
        grandparent.build_##slot = inherited<node_type>;                                           \
        EXPECT_RECEIVED(quillet_call_parent_build_##slot, "own");                                  \
                                                                                                   \
        parent.build_##slot = inherited<node_type>;                                                \
        EXPECT_RECEIVED(quillet_call_build_##slot, "own");                                         \
        EXPECT_RECEIVED(quillet_call_parent_build_##slot, "inherited");                            \
                                                                                                   \
        self.build_##slot = nullptr;                                                               \
        EXPECT_EQ(quillet_implements_##slot(&self), 0);                                            \
        EXPECT_NOTHING(quillet_call_build_##slot);                                                 \
        EXPECT_RECEIVED(quillet_call_parent_build_##slot, "inherited");                            \
                                                                                                   \
        parent.build_##slot = nullptr;                                                             \
        EXPECT_NOTHING(quillet_call_parent_build_##slot);                                          \
    }
ALL_SLOTS
#undef SLOT

// How many slots of a builder are filled.
int filled(builder *self) {
    int count = 0;
#define SLOT(slot, node_type) count += quillet_implements_##slot(self);
    ALL_SLOTS
#undef SLOT
    return count;
}

TEST(DefaultBuilder, FillsTheKindsAndTheOperators) {
    const owned<builder> self(quillet_default_builder_create());
    EXPECT_EQ(self->parent, nullptr);
#define EXPECT_DEFAULT(slot)                                                                       \
    EXPECT_EQ(self->build_##slot, quillet_##slot##_default_builder) << #slot;                      \
    EXPECT_EQ(quillet_implements_##slot(self.get()), 1) << #slot;
#define EXPECT_DEFAULT_OPERATOR(name) EXPECT_DEFAULT(operator_##name)
#define EXPECT_NO_FUNCTION(name)                                                                   \
    EXPECT_EQ(self->build_function_##name, nullptr) << #name;                                      \
    EXPECT_EQ(quillet_implements_function_##name(self.get()), 0) << #name;
    KIND_SLOTS(EXPECT_DEFAULT)
    OPERATOR_SLOTS(EXPECT_DEFAULT_OPERATOR)
    FUNCTION_SLOTS(EXPECT_NO_FUNCTION)
    EXPECT_EQ(filled(self.get()), 100);
}

TEST(DefaultBuilder, BuildersAreSeparate) {
    const owned<builder> one(quillet_default_builder_create());
    const owned<builder> other(quillet_default_builder_create());
    EXPECT_NE(one.get(), other.get());
    one->build_main = nullptr;
    EXPECT_EQ(other->build_main, quillet_main_default_builder);
}

TEST(PostgresqlBuilder, IsTheDefaultBuilder) {
    const owned<builder> self(quillet_postgresql_builder_create());
    const owned<builder> reference(quillet_default_builder_create());
    EXPECT_EQ(std::memcmp(self.get(), reference.get(), sizeof(builder)), 0);
}

TEST(TypeViewBuilder, ReplacesTheExpressionAlone) {
    const owned<builder> self(quillet_type_view_builder_create());
    const owned<builder> reference(quillet_default_builder_create());
    ASSERT_NE(self->parent, nullptr);
    EXPECT_EQ(std::memcmp(self->parent, reference.get(), sizeof(builder)), 0);
    EXPECT_EQ(self->build_expression, quillet_expression_type_view_builder);
    reference->build_expression = quillet_expression_type_view_builder;
#define SLOT(slot, node_type) EXPECT_EQ(self->build_##slot, reference->build_##slot) << #slot;
    ALL_SLOTS
#undef SLOT
}

TEST(TreeViewBuilder, FillsTheKindsAlone) {
    const owned<builder> self(quillet_tree_view_builder_create());
    EXPECT_EQ(self->parent, nullptr);
#define EXPECT_TREE_VIEW(kind) EXPECT_EQ(self->build_##kind, quillet_##kind##_tree_view) << #kind;
    KIND_SLOTS(EXPECT_TREE_VIEW)
    EXPECT_EQ(filled(self.get()), 55);
}

// Which builders' records are freed, and how often, is the sanitizers' to see.
TEST(BuilderFree, FreesTheWholeChainOfParents) {
    builder *self = nullptr;
    for (int i = 0; i < 3; ++i) {
        builder *derived = quillet_default_builder_create();
        derived->parent = self;
        self = derived;
    }
    quillet_builder_free(self);
}

// An operation that hands a node to its parent's stays the one that renders the children.
build_result *emphasised_expression(builder *self, node_expression *node, void *data) {
    build_result *result = quillet_call_parent_build_expression(self, node, data);
    const owned<char> text(result->query);
    result->query = copy(('<' + std::string(text ? text.get() : "") + '>').c_str());
    return result;
}

TEST(DerivedBuilder, ItsOperationsRenderTheChildrenOfInheritedOnes) {
    const owned<builder> self(quillet_default_builder_create());
    self->parent = quillet_default_builder_create();
    self->build_expression = emphasised_expression;
    const any_tree tree(operation(
        "operator_addition", integer("1"),
        parentheses(calling(
            make(node_function_call{.function_name = identifier("f"),
                                    .expressions_list = arguments(column("a"), integer("2"))})))));
    EXPECT_EQ(tree.render(self.get()), gives("<<1> + <(<f(<a>, <2>)>)>>"));
}

} // namespace
