// The default rendering of function calls.
#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <vector>

#include "answering_builder.h"
#include "quillet_builder.h"
#include "quillet_types.h"
#include "support.h"

using namespace quillet_tests;

namespace {

// The functions: FUNCTIONS(X) is X(name, type of a call whose argument is a column).
// clang-format off
#define FUNCTIONS(X) \
    X(abs, FLOAT8) X(cbrt, FLOAT8) X(ceil, INT8) X(ceiling, INT8) X(count, INT8) \
    X(degrees, FLOAT8) X(exp, FLOAT8) X(floor, INT8) X(ln, FLOAT8) X(log, FLOAT8) \
    X(mod, INT8) X(pi, FLOAT8) X(power, FLOAT8) X(radians, FLOAT8) X(random, FLOAT8) \
    X(round, INT8) X(setseed, UNKNOWN) X(sign, INT8) X(sqrt, FLOAT8) X(trunc, INT8) \
    X(width_bucket, INT8) X(acos, FLOAT8) X(asin, FLOAT8) X(atan, FLOAT8) X(atan2, FLOAT8) \
    X(cos, FLOAT8) X(cot, FLOAT8) X(sin, FLOAT8) X(tan, FLOAT8) X(bit_length, INT8) \
    X(char_length, INT8) X(character_length, INT8) X(convert, VARCHAR) X(lower, VARCHAR) \
    X(octet_length, INT8) X(overlay, BOOL) X(position, INT8) X(substring, VARCHAR) \
    X(trim, VARCHAR) X(upper, VARCHAR) X(ascii, INT8) X(btrim, VARCHAR) X(chr, VARCHAR) \
    X(decode, VARCHAR) X(encode, VARCHAR) X(initcap, VARCHAR) X(length, INT8) \
    X(lpad, VARCHAR) X(ltrim, VARCHAR) X(md5, VARCHAR) X(pg_client_encoding, VARCHAR) \
    X(quote_ident, VARCHAR) X(quote_literal, VARCHAR) X(repeat, VARCHAR) X(replace, VARCHAR) \
    X(rpad, VARCHAR) X(rtrim, VARCHAR) X(split_part, VARCHAR) X(strpos, INT8) \
    X(substr, VARCHAR) X(to_ascii, VARCHAR) X(to_hex, VARCHAR) X(translate, VARCHAR) \
    X(age, VARCHAR) X(current_date, DATE) X(current_time, TIME) \
    X(current_timestamp, TIMESTAMP) X(date_part, UNKNOWN) X(date_trunc, TIMESTAMP) \
    X(extract, UNKNOWN) X(isfinite, BOOL) X(localtime, TIME) X(localtimestamp, TIMESTAMP) \
    X(now, TIMESTAMP) X(timeofday, VARCHAR) X(timezone, TIMESTAMPZ) X(coalesce, UNKNOWN) \
    X(nullif, UNKNOWN) X(avg, FLOAT8) X(bit_and, INT8) X(bit_or, INT8) X(bool_and, BOOL) \
    X(bool_or, BOOL) X(every, BOOL) X(max, FLOAT8) X(min, FLOAT8) X(stddev, FLOAT8) \
    X(sum, FLOAT8) X(variance, FLOAT8) X(to_char, VARCHAR) X(to_date, DATE) \
    X(to_timestamp, TIMESTAMP) X(to_number, FLOAT8)
// clang-format on

struct function_case {
    const char *name;
    int type;
};

constexpr function_case functions[] = {
#define FUNCTION_CASE(name, type) {#name, QUILLET_TYPE_##type},
    FUNCTIONS(FUNCTION_CASE)
#undef FUNCTION_CASE
};

std::string in_capitals(std::string name) {
    for (char &letter : name)
        letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    return name;
}

TEST(Functions, ThereAreNinetyThree) { EXPECT_EQ(std::size(functions), 93U); }

TEST(Functions, Types) {
    const owned<builder> self(quillet_default_builder_create());
    for (const auto &[name, type] : functions) {
        std::string mixed = name;
        mixed[0] = in_capitals(mixed)[0];
        for (const std::string &written : {std::string(name), in_capitals(name), mixed}) {
            const any_tree call(call_of(written, arguments(column("a"))));
            EXPECT_EQ(call.render(self.get()), gives(written + "(a)"));
            EXPECT_EQ(call.sql_type(), type) << written;
            const any_tree expression(calling(call_of(written)));
            EXPECT_EQ(expression.render(self.get()), gives(written + "()"));
            EXPECT_EQ(expression.sql_type(), type) << written;
        }
    }
}

TEST(Functions, TypesOfUnknownOnes) {
    const owned<builder> self(quillet_default_builder_create());
    for (const char *name : {"myfunc", "ab", "absx", "\"abs\"", "pg_abs", "_", "max2"}) {
        const any_tree call(call_of(name, arguments(integer("1"))));
        EXPECT_EQ(call.render(self.get()), gives(std::string(name) + "(1)"));
        EXPECT_EQ(call.sql_type(), QUILLET_TYPE_UNKNOWN) << name;
    }
}

TEST(Functions, TypesThatFollowTheArguments) {
    const owned<builder> self(quillet_default_builder_create());
    const auto type_of = [&](node_function_call *call) {
        const any_tree tree(call);
        EXPECT_EQ(tree.render(self.get()).status, 0);
        return tree.sql_type();
    };
    EXPECT_EQ(type_of(call_of("sum", arguments(integer("1")))), QUILLET_TYPE_INT8);
    EXPECT_EQ(type_of(call_of("SUM", arguments(floating("1.5")))), QUILLET_TYPE_FLOAT8);
    EXPECT_EQ(type_of(call_of("sum", arguments(column("a")))), QUILLET_TYPE_FLOAT8);
    EXPECT_EQ(type_of(call_of("sum", arguments(typed(QUILLET_TYPE_INTERVAL, "'1 day'")))),
              QUILLET_TYPE_INTERVAL);
    EXPECT_EQ(type_of(call_of("date_part", arguments(string("'second'"), column("d")))),
              QUILLET_TYPE_INT8);
    const auto extract = [](const char *field) {
        node_function_call *call = call_of("extract");
        call->from_for_argument = make(
            node_from_for_argument{.expression_1 = column(field), .expression_2 = column("d")});
        return call;
    };
    EXPECT_EQ(type_of(extract("SECOND")), QUILLET_TYPE_FLOAT8);
    EXPECT_EQ(type_of(extract("year")), QUILLET_TYPE_INT8);
    EXPECT_EQ(type_of(call_of("max", arguments(integer("1")))), QUILLET_TYPE_FLOAT8);
    EXPECT_EQ(type_of(call_of("nullif", arguments(integer("1"), integer("1")))),
              QUILLET_TYPE_UNKNOWN);
}

// The slot of a function gets the call as it is; nothing else is rendered or set.
TEST(Functions, AreDispatchedToTheirSlots) {
#define FUNCTION_SLOT(name, type)                                                                  \
    for (const std::string &written : {std::string(#name), in_capitals(#name)}) {                  \
        answering stub;                                                                            \
        stub.self.build_function_##name = answer<node_function_call>;                              \
        stub.self.build_identifier = quillet_identifier_default_builder;                           \
        const owned<node_function_call> call(call_of(written, arguments(column("a"))));            \
        call->sql_type = 77;                                                                       \
        answers[call.get()] = gives("from the slot", -7);                                          \
        EXPECT_EQ(taken(quillet_function_call_default_builder(&stub.self, call.get(), &stub)),     \
                  gives("from the slot", -7));                                                     \
        EXPECT_EQ(visits, (std::vector<visit>{{call.get(), nullptr}})) << written;                 \
        EXPECT_EQ(call->sql_type, 77) << written;                                                  \
        answers[call.get()] = no_record;                                                           \
        EXPECT_EQ(taken(quillet_function_call_default_builder(&stub.self, call.get(), nullptr)),   \
                  no_record);                                                                      \
    }
    FUNCTIONS(FUNCTION_SLOT)
}

// The name is compared as it is rendered.
TEST(Functions, AreFoundByTheirRenderedName) {
    answering stub;
    stub.self.build_function_abs = answer<node_function_call>;
    node_function_call *call = call_of("cbrt");
    answers[call->function_name] = gives("ABS");
    answers[call] = gives("from the slot");
    EXPECT_EQ(stub.render(quillet_function_call_default_builder, call), gives("from the slot"));
}

TEST(Functions, TheFirstArgumentWithATextIsTheText) {
    answering stub;
    const auto call = [&](std::size_t first_with_text) {
        std::size_t i = 0;
        const auto next = [&] {
            return i++ >= first_with_text ? gives(std::to_string(i - 1)) : textless(0);
        };
        node_function_call *node =
            make(node_function_call{.function_name = stub.child<node_identifier>(gives("f"))});
        node->expressions_list = stub.child<node_expressions_list>(next());
        node->agregate_expression = stub.child<node_agregate_expression>(next());
        node->using_argument = stub.child<node_using_argument>(next());
        node->placing_from_for_argument = stub.child<node_placing_from_for_argument>(next());
        node->in_argument = stub.child<node_in_argument>(next());
        node->from_for_argument = stub.child<node_from_for_argument>(next());
        node->trim_argument = stub.child<node_trim_argument>(next());
        return stub.render(quillet_function_call_default_builder, node);
    };
    for (std::size_t first = 0; first < 7; ++first)
        EXPECT_EQ(call(first), gives("f(" + std::to_string(first) + ")"));
    EXPECT_EQ(call(7), gives("f()"));
}

TEST(Functions, PlacingIsTypedByItsPositions) {
    struct {
        node_expression *third;
        node_expression *fourth;
        int type;
    } const cases[] = {
        {nullptr, nullptr, QUILLET_TYPE_INT8},
        {integer("2"), nullptr, QUILLET_TYPE_INT8},
        {nullptr, integer("3"), QUILLET_TYPE_INT8},
        {integer("2"), integer("3"), QUILLET_TYPE_INT8},
        {column("a"), nullptr, QUILLET_TYPE_UNKNOWN},
        {nullptr, column("a"), QUILLET_TYPE_UNKNOWN},
        {column("a"), integer("3"), QUILLET_TYPE_UNKNOWN},
        {integer("2"), floating("3.5"), QUILLET_TYPE_UNKNOWN},
        {operation("operator_no", column("a")), integer("3"), QUILLET_TYPE_INT8}, // has no text
    };
    const owned<builder> self(quillet_default_builder_create());
    for (const auto &[third, fourth, type] : cases) {
        const any_tree tree(make(node_placing_from_for_argument{.expression_1 = column("s"),
                                                                .expression_2 = string("'x'"),
                                                                .expression_3 = third,
                                                                .expression_4 = fourth}));
        EXPECT_EQ(tree.render(self.get()).status, 0);
        EXPECT_EQ(tree.sql_type(), type);
    }
}

} // namespace
