#include "quillet_types.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>

#include "support.h"

using namespace quillet_tests;

namespace {

struct type_case {
    int code;
    int constant; // QUILLET_TYPE_
    const char *printed;
    bool datetime;
    bool datetime_not_interval;
    bool integer;
    bool floating;
};

constexpr bool yes = true;
constexpr bool no = false;

constexpr type_case types[] = {
    // code, constant, printed, datetime, datetime_not_interval, integer, floating
    {-2147483647 - 1, -2147483647 - 1, "", no, no, no, no},
    {-2, -2, "", no, no, no, no},
    {-1, -1, "", no, no, no, no},
    {0, QUILLET_TYPE_UNKNOWN, "", no, no, no, no},
    {1, QUILLET_TYPE_INT8, "INT8", no, no, yes, no},
    {2, QUILLET_TYPE_SERIAL, "SERIAL", no, no, yes, no},
    {3, QUILLET_TYPE_BOOL, "BOOL", no, no, no, no},
    {4, QUILLET_TYPE_VARCHAR, "VARCHAR", no, no, no, no},
    {5, QUILLET_TYPE_CHAR, "CAHR", no, no, no, no},
    {6, QUILLET_TYPE_DATE, "DATE", yes, yes, no, no},
    {7, QUILLET_TYPE_FLOAT8, "FLOAT8", no, no, no, yes},
    {8, QUILLET_TYPE_INT4, "INT4", no, no, yes, no},
    {9, QUILLET_TYPE_INTERVAL, "INTERVAL", yes, no, no, no},
    {10, QUILLET_TYPE_DECIMAL, "DECIMAL", no, no, no, yes},
    {11, QUILLET_TYPE_FLOAT, "FLOAT", no, no, no, no},
    {12, QUILLET_TYPE_INT2, "INT2", no, no, yes, no},
    {13, QUILLET_TYPE_SERIAL4, "SERIAL4", no, no, yes, yes},
    {14, QUILLET_TYPE_TEXT, "TEXT", no, no, no, no},
    {15, QUILLET_TYPE_TIME, "TIME", yes, yes, no, no},
    {16, QUILLET_TYPE_TIMEZ, "TIMEZ", yes, yes, no, no},
    {17, QUILLET_TYPE_TIMESTAMP, "TIMESTAMP", yes, yes, no, no},
    {18, QUILLET_TYPE_TIMESTAMPZ, "TIMESTAMPZ", yes, yes, no, no},
    {19, 19, "", no, no, no, no},
    {20, 20, "", no, no, no, no},
    {2147483647, 2147483647, "", no, no, no, no},
};

TEST(Types, CodesNamesAndCategories) {
    for (const type_case &type : types) {
        SCOPED_TRACE(type.code);
        EXPECT_EQ(type.constant, type.code);
        EXPECT_STREQ(quillet_type_to_string(type.code), type.printed);
        EXPECT_EQ(quillet_is_datetime(type.code), type.datetime);
        EXPECT_EQ(quillet_is_datetime_not_interval(type.code), type.datetime_not_interval);
        EXPECT_EQ(quillet_is_integer(type.code), type.integer);
        EXPECT_EQ(quillet_is_float(type.code), type.floating);
        EXPECT_EQ(quillet_is_numeric(type.code), type.integer || type.floating);
    }
}

struct spelling_case {
    const char *spelling;
    int code;
};

constexpr spelling_case spellings[] = {
    {"bigint", 1},    {"int8", 1},     {"bigserial", 2},  {"serial", 2},
    {"boolean", 3},   {"bool", 3},     {"varchar", 4},    {"character", 5},
    {"char", 5},      {"date", 6},     {"float8", 7},     {"double precision", 7},
    {"integer", 8},   {"int", 8},      {"int4", 8},       {"interval", 9},
    {"numeric", 10},  {"decimal", 10}, {"real", 11},      {"float", 11},
    {"smallint", 12}, {"int2", 12},    {"serial4", 13},   {"text", 14},
    {"time", 15},     {"timez", 16},   {"timestamp", 17}, {"timestampz", 18},
};

TEST(Types, SpellingsInAnyLetterCase) {
    for (const auto &[spelling, code] : spellings) {
        SCOPED_TRACE(spelling);
        EXPECT_EQ(quillet_string_to_type(spelling), code);
        std::string upper;
        std::string capitalised;
        std::string mixed;
        for (const char *letter = spelling; *letter; ++letter) {
            const char capital =
                static_cast<char>(std::toupper(static_cast<unsigned char>(*letter)));
            upper += capital;
            capitalised += letter == spelling || letter[-1] == ' ' ? capital : *letter;
            mixed += (letter - spelling) % 2 ? capital : *letter;
        }
        EXPECT_EQ(quillet_string_to_type(upper.c_str()), code) << upper;
        EXPECT_EQ(quillet_string_to_type(capitalised.c_str()), code) << capitalised;
        EXPECT_EQ(quillet_string_to_type(mixed.c_str()), code) << mixed;
    }
}

TEST(Types, NoSpellings) {
    for (const char *spelling : {"",
                                 " ",
                                 "timestamptz",
                                 "timetz",
                                 "float4",
                                 "character varying",
                                 "double",
                                 "precision",
                                 "double  precision",
                                 "double\tprecision",
                                 "doubleprecision",
                                 " int",
                                 "int ",
                                 "in",
                                 "inte",
                                 "integers",
                                 "int1",
                                 "cahr",
                                 "unknown",
                                 "serial8",
                                 "string",
                                 "varchar2",
                                 "dates",
                                 "timestamp with time zone",
                                 "\"int\"",
                                 "int\n",
                                 "b\xcfol",
                                 "TIMESTAMPTZ"})
        EXPECT_EQ(quillet_string_to_type(spelling), 0) << spelling;
}

// The results by the codes of the operands 0 to 18, left operand down, right operand across:
//   8 INT8, f FLOAT8, i INTERVAL, d DATE, t TIME, z TIMEZ, s TIMESTAMP, p TIMESTAMPZ
using matrix = const char *[19];

constexpr matrix sums = {
    // clang-format off
    "fffffffffffffffffff", // UNKNOWN
    "f88fffdf8iff88ftzsp", // INT8
    "f88fffdf8iff88ftzsp", // SERIAL
    "fffffffffffffffffff", // BOOL
    "fffffffffffffffffff", // VARCHAR
    "fffffffffffffffffff", // CHAR
    "fddfff8fdsffddfssss", // DATE
    "fffffffffffffffffff", // FLOAT8
    "f88fffdf8iff88ftzsp", // INT4
    "fiifffsiiiifiiftsss", // INTERVAL
    "fffffffffffffffffff", // DECIMAL
    "fffffffffffffffffff", // FLOAT
    "f88fffdf8iff88ftzsp", // INT2
    "f88fffdf8iff88ftzsp", // SERIAL4
    "fffffffffffffffffff", // TEXT
    "fttfffsfttffttfssss", // TIME
    "fzzfffsfzsffzzfssss", // TIMEZ
    "fssfffsfssffssfssss", // TIMESTAMP
    "fppfffsfpsffppfssss", // TIMESTAMPZ
    // clang-format on
};

constexpr matrix differences = {
    // clang-format off
    "fffffffffffffffffff", // UNKNOWN
    "f88fffdf8iff88ftzsp", // INT8
    "f88fffdf8iff88ftzsp", // SERIAL
    "fffffffffffffffffff", // BOOL
    "fffffffffffffffffff", // VARCHAR
    "fffffffffffffffffff", // CHAR
    "fddfff8fdsffddfiiii", // DATE
    "fffffffffffffffffff", // FLOAT8
    "f88fffdf8iff88ftzsp", // INT4
    "fiifffsiiiifiiftsss", // INTERVAL
    "fffffffffffffffffff", // DECIMAL
    "fffffffffffffffffff", // FLOAT
    "f88fffdf8iff88ftzsp", // INT2
    "f88fffdf8iff88ftzsp", // SERIAL4
    "fffffffffffffffffff", // TEXT
    "fttfffifttffttfiiii", // TIME
    "fzzfffifzsffzzfiiii", // TIMEZ
    "fssfffifssffssfiiii", // TIMESTAMP
    "fppfffifpsffppfiiii", // TIMESTAMPZ
    // clang-format on
};

constexpr matrix quotients = {
    // clang-format off
    "fffffffffffffffffff", // UNKNOWN
    "fffffffffffffffffff", // INT8
    "fffffffffffffffffff", // SERIAL
    "fffffffffffffffffff", // BOOL
    "fffffffffffffffffff", // VARCHAR
    "fffffffffffffffffff", // CHAR
    "fffffffffffffffffff", // DATE
    "fffffffffffffffffff", // FLOAT8
    "fffffffffffffffffff", // INT4
    "fiiffffiififiifffff", // INTERVAL
    "fffffffffffffffffff", // DECIMAL
    "fffffffffffffffffff", // FLOAT
    "fffffffffffffffffff", // INT2
    "fffffffffffffffffff", // SERIAL4
    "fffffffffffffffffff", // TEXT
    "fffffffffffffffffff", // TIME
    "fffffffffffffffffff", // TIMEZ
    "fffffffffffffffffff", // TIMESTAMP
    "fffffffffffffffffff", // TIMESTAMPZ
    // clang-format on
};

int type_of(char letter) {
    switch (letter) {
    case '8': return QUILLET_TYPE_INT8;
    case 'f': return QUILLET_TYPE_FLOAT8;
    case 'i': return QUILLET_TYPE_INTERVAL;
    case 'd': return QUILLET_TYPE_DATE;
    case 't': return QUILLET_TYPE_TIME;
    case 'z': return QUILLET_TYPE_TIMEZ;
    case 's': return QUILLET_TYPE_TIMESTAMP;
    case 'p': return QUILLET_TYPE_TIMESTAMPZ;
    default: return -1;
    }
}

void expect_matrix(int (*rule)(int, int), const matrix &expected) {
    for (int left = 0; left < 19; ++left)
        for (int right = 0; right < 19; ++right)
            EXPECT_EQ(rule(left, right), type_of(expected[left][right])) << left << ", " << right;
}

TEST(ResultTypes, Add) { expect_matrix(quillet_get_result_type_add, sums); }
TEST(ResultTypes, Sub) { expect_matrix(quillet_get_result_type_sub, differences); }
TEST(ResultTypes, Divide) { expect_matrix(quillet_get_result_type_divide, quotients); }

struct rule_case {
    int (*rule)(int, int);
    const char *left;
    const char *right;
    const char *result;
};

// The matrices again, in words.
constexpr rule_case named[] = {
    {quillet_get_result_type_add, "date", "int4", "DATE"},
    {quillet_get_result_type_add, "int4", "timestamp", "TIMESTAMP"},
    {quillet_get_result_type_add, "time", "interval", "TIME"},
    {quillet_get_result_type_add, "interval", "time", "TIME"},
    {quillet_get_result_type_add, "timestampz", "interval", "TIMESTAMP"},
    {quillet_get_result_type_add, "interval", "float8", "INTERVAL"},
    {quillet_get_result_type_add, "float8", "interval", "FLOAT8"},
    {quillet_get_result_type_add, "int4", "interval", "INTERVAL"},
    {quillet_get_result_type_add, "date", "date", "INT8"},
    {quillet_get_result_type_add, "time", "date", "TIMESTAMP"},
    {quillet_get_result_type_add, "timestamp", "timestamp", "TIMESTAMP"},
    {quillet_get_result_type_add, "?", "?", "FLOAT8"},
    {quillet_get_result_type_add, "?", "int4", "FLOAT8"},
    {quillet_get_result_type_add, "varchar", "varchar", "FLOAT8"},
    {quillet_get_result_type_add, "serial4", "serial4", "INT8"},
    {quillet_get_result_type_sub, "date", "date", "INT8"},
    {quillet_get_result_type_sub, "timestamp", "timestamp", "INTERVAL"},
    {quillet_get_result_type_sub, "time", "date", "INTERVAL"},
    {quillet_get_result_type_sub, "interval", "time", "TIME"},
    {quillet_get_result_type_sub, "int4", "int2", "INT8"},
    {quillet_get_result_type_divide, "interval", "int4", "INTERVAL"},
    {quillet_get_result_type_divide, "interval", "text", "FLOAT8"},
    {quillet_get_result_type_divide, "int8", "int8", "FLOAT8"},
    {quillet_get_result_type_divide, "int4", "int4", "FLOAT8"},
};

TEST(ResultTypes, ByName) {
    for (const auto &[rule, left, right, result] : named)
        EXPECT_STREQ(quillet_type_to_string(
                         rule(quillet_string_to_type(left), quillet_string_to_type(right))),
                     result)
            << left << ", " << right;
}

TEST(ResultTypes, ConstantOnes) {
    for (int left = -2; left <= 20; ++left) {
        SCOPED_TRACE(left);
        for (int right = -2; right <= 20; ++right) {
            EXPECT_EQ(quillet_get_result_type_modulo(left, right), QUILLET_TYPE_INT8);
            EXPECT_EQ(quillet_get_result_type_int2(left, right), QUILLET_TYPE_INT8);
            EXPECT_EQ(quillet_get_result_type_bool(left, right), QUILLET_TYPE_BOOL);
            EXPECT_EQ(quillet_get_result_type_string(left, right), QUILLET_TYPE_VARCHAR);
        }
        EXPECT_EQ(quillet_get_result_type_bool_one(left), QUILLET_TYPE_BOOL);
        EXPECT_EQ(quillet_get_result_type_float(left), QUILLET_TYPE_FLOAT8);
        EXPECT_EQ(quillet_get_result_type_int(left), QUILLET_TYPE_INT8);
        EXPECT_EQ(quillet_get_result_type_same(left), left);
    }
}

struct function_rule_case {
    int (*rule)(const node_function_call *call);
    int type;
};

constexpr function_rule_case function_rules[] = {
    {quillet_get_result_type_function_int, 1},
    {quillet_get_result_type_function_float, 7},
    {quillet_get_result_type_function_bool, 3},
    {quillet_get_result_type_function_string, 4},
    {quillet_get_result_type_function_varchar, 4},
    {quillet_get_result_type_function_unknow, 0},
    {quillet_get_result_type_function_date, 6},
    {quillet_get_result_type_function_time, 15},
    {quillet_get_result_type_function_timestamp, 17},
    {quillet_get_result_type_function_timestampz, 18},
};

TEST(FunctionTypes, ConstantOnes) {
    const node_function_call without_arguments{};
    const owned<node_function_call> with_arguments(
        make(node_function_call{.expressions_list = arguments(column("a"), column("b"))}));
    with_arguments->expressions_list->expression->sql_type = QUILLET_TYPE_TEXT;
    for (const auto &[rule, type] : function_rules) {
        EXPECT_EQ(rule(&without_arguments), type);
        EXPECT_EQ(rule(with_arguments.get()), type);
    }
}

struct call_case {
    const char *what;
    node_function_call *call; // owned by the table's test
    int type;
};

template <std::size_t Count>
void expect_types(int (*rule)(const node_function_call *), const call_case (&cases)[Count]) {
    for (const auto &[what, call, type] : cases) {
        const owned<node_function_call> holder(call);
        EXPECT_EQ(rule(call), type) << what;
    }
}

node_function_call *call_with(node_expressions_list *list) {
    return make(node_function_call{.expressions_list = list});
}

TEST(FunctionTypes, DatePart) {
    const call_case cases[] = {
        {"no arguments", call_with(nullptr), 0},
        {"one argument", call_with(arguments(string("second"))), 0},
        {"no first expression", call_with(arguments(nullptr, column("x"))), 0},
        {"a column", call_with(arguments(column("second"), column("x"))), 0},
        {"a number", call_with(arguments(integer("1"), column("x"))), 0},
        {"a literal of no kind", call_with(arguments(literal({}), column("x"))), 0},
        {"a string without text", call_with(arguments(string(nullptr), column("x"))), 0},
        {"an unquoted second", call_with(arguments(string("second"), column("x"))), 7},
        {"in capitals", call_with(arguments(string("SECOND"), column("x"))), 7},
        {"in both", call_with(arguments(string("SecOnd"), column("x"))), 7},
        {"as the parser stores it", call_with(arguments(string("'second'"), column("x"))), 1},
        {"another field", call_with(arguments(string("'year'"), column("x"))), 1},
        {"the empty text", call_with(arguments(string(""), column("x"))), 1},
        {"seconds", call_with(arguments(string("seconds"), column("x"))), 1},
        {"no second argument",
         call_with(make(node_expressions_list{.expressions_list = arguments(string("second"))})),
         7},
        {"the next-to-last of three",
         call_with(arguments(string("year"), string("second"), column("x"))), 7},
        {"the first of three", call_with(arguments(string("second"), column("y"), column("x"))), 0},
    };
    expect_types(quillet_get_result_type_function_date_part, cases);
}

node_function_call *extracting(node_expression *field) {
    return make(node_function_call{.from_for_argument = make(node_from_for_argument{
                                       .expression_1 = field, .expression_2 = column("x")})});
}

TEST(FunctionTypes, Extract) {
    const call_case cases[] = {
        {"no arguments", call_with(nullptr), 0},
        {"a list", call_with(arguments(column("second"))), 0},
        {"no field", extracting(nullptr), 0},
        {"a literal", extracting(string("second")), 0},
        {"no column name",
         extracting(make(node_expression{.column_reference = make(node_column_reference{})})), 0},
        {"no name", extracting(column(nullptr)), 0},
        {"second", extracting(column("second")), 7},
        {"SECOND", extracting(column("SECOND")), 7},
        {"Second", extracting(column("Second")), 7},
        {"t.second", extracting(column("second", "t")), 7},
        {"year", extracting(column("year")), 1},
        {"seconds", extracting(column("seconds")), 1},
        {"quoted", extracting(column("\"second\"")), 1},
        {"empty", extracting(column("")), 1},
    };
    expect_types(quillet_get_result_type_function_extract, cases);
}

node_expression *of_type(int type) { return make(node_expression{.sql_type = type}); }

TEST(FunctionTypes, SameAsArgument) {
    const call_case cases[] = {
        {"no arguments", call_with(nullptr), 7},
        {"no expression", call_with(arguments(nullptr)), 7},
        {"an unknown type", call_with(arguments(of_type(0))), 7},
        {"the last of two", call_with(arguments(of_type(1), of_type(6))), 6},
        {"the last of two, unknown", call_with(arguments(of_type(1), of_type(0))), 7},
    };
    expect_types(quillet_get_result_type_function_same_as_argument, cases);
    for (int type = 1; type <= 18; ++type) {
        const owned<node_function_call> call(call_with(arguments(of_type(type))));
        EXPECT_EQ(quillet_get_result_type_function_same_as_argument(call.get()), type);
    }
}

} // namespace
