// The builder mysql: its record, reasons and slots, its helpers, and what no statement can show:
// trees with parts missing, texts that are kept beside a refusal, and types.
#include "quillet_mysql_builder.h"

#include <gtest/gtest.h>

#include <cctype>
#include <climits>
#include <cstdlib>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "quillet.h"
#include "quillet_mysql_rendering.h"
#include "support.h"

namespace {

using namespace quillet_tests;

// The record and the reasons.

TEST(MysqlBuilderInfo, NamesTheBuilder) {
    const quillet_builder_info *info = quillet_mysql_builder_get_info();
    ASSERT_EQ(info, &quillet_mysql_builder_info);
    EXPECT_STREQ(info->builder_name, "mysql");
    EXPECT_STREQ(info->builder_description, "outputs mysql statement");
    EXPECT_EQ(info->constructor, quillet_mysql_builder_create);
    EXPECT_EQ(info->get_error_code, quillet_mysql_get_error_code);
    EXPECT_EQ(info->get_error_description, quillet_mysql_get_error_description);
}

TEST(MysqlBuilderInfo, IsTheSecondInTheRegistry) {
    quillet_init();
    EXPECT_EQ(quillet_get_builder_info(1), quillet_mysql_builder_get_info());
    EXPECT_EQ(quillet_mysql_builder_info.builder_id, 1);
    EXPECT_EQ(quillet_get_builder_id("MySQL"), 1);
}

constexpr const char *reasons[] = {
    "",
    "AT TIME ZONE struct not implemented in MySQL backend",
    "FACTORIAL operator not implemented in MySQL backend",
    "SIMILAR TO operator not implemented in MySQL backend",
    "NOT SIMILAR TO operator not implemented in MySQL backend",
    "SETSEED function not implemented in MySQL backend",
    "WIDTH_BUCKET function not implemented in MySQL backend",
    "CONVERT function not implemented in MySQL backend",
    "BTRIM function not implemented in MySQL backend",
    "DECODE function not implemented in MySQL backend",
    "ENCODE function not implemented in MySQL backend",
    "INITCAP function not implemented in MySQL backend",
    "PG_CLIENT_ENCODING function not implemented in MySQL backend",
    "QUOTE_IDENT function not implemented in MySQL backend",
    "QUOTE_LITERAL function not implemented in MySQL backend",
    "SPLIT_PART function not implemented in MySQL backend",
    "TO_ASCII function not implemented in MySQL backend",
    "TO_HEX function not implemented in MySQL backend",
    "TRANSLATE function not implemented in MySQL backend",
    "AGE function not implemented in MySQL backend",
    "ISFINITE function not implemented in MySQL backend",
    "TIMEOFDAY function not implemented in MySQL backend",
    "TIMEZONE function not implemented in MySQL backend",
    "TO_CHAR function not yet implemented in MySQL backend",
    "TO_DATE function not yet implemented in MySQL backend",
    "TO_TIMESTAMP function not yet implemented in MySQL backend",
    "TO_NUMBER function not yet implemented in MySQL backend",
    "LIMIT structure with only OFFSET is not supported in MySQL 4.1.13",
    "MySQL backend does not support adding interval to interval or time",
    "MySQL backend does not support substracting these arguments (interval, time, timestamp)",
    "MySQL backend does not support multipling intervals",
    "MySQL backend does not support dividing intervals",
    "OVERLAY function without all arguments not implemented in MySQL backend",
    "SUBSTRING function with regexps not implemented in MySQL backend",
    "TRIM function with string argument not implemented in MySQL backend",
    "EXTRACT/DATE_PART functions with this field and intervals not implemented in MySQL backend",
    "DATE_TRUNC functions with this field not implemented in MySQL backend",
    "DATE_TRUNC with intervals not implemented in MySQL backend",
    "MYSQL backend does not support inserting default values without identifier list",
    "TO_CHAR: format not supported in MYSQL backend",
};

TEST(MysqlErrors, HaveATextEach) {
    ASSERT_EQ(std::size(reasons), 40u);
    ASSERT_EQ(std::size(mysql_error_descriptions), 40u);
    for (int index = 0; index < 40; ++index) {
        EXPECT_STREQ(mysql_error_descriptions[index], reasons[index]) << -index;
        mysql_error_code = -index;
        EXPECT_EQ(quillet_mysql_get_error_code(), -index);
        EXPECT_STREQ(quillet_mysql_get_error_description(), reasons[index]) << -index;
    }
    mysql_error_code = 0;
}

TEST(MysqlErrors, HaveNoTextBeyondTheTable) {
    for (const int code : {1, 2, 39, INT_MAX, -40, -41, -1000, INT_MIN}) {
        mysql_error_code = code;
        EXPECT_EQ(quillet_mysql_get_error_code(), code);
        EXPECT_STREQ(quillet_mysql_get_error_description(), "") << code;
    }
    mysql_error_code = 0;
}

// The slots.

const std::set<std::string> replaced = {
    "select_item",
    "const_boolean",
    "limit_clausule",
    "cast_expression",
    "const_generic",
    "at_time_zone",
    "expression_or_default_item",
    "identifier",

    "operator_square_root",
    "operator_cubic_root",
    "operator_power",
    "operator_abs",
    "operator_is",
    "operator_is_not",
    "operator_distinct_from",
    "operator_factorial",
    "operator_bitwise_xor",
    "operator_bitwise_not",
    "operator_concatenate",
    "operator_like",
    "operator_not_like",
    "operator_ilike",
    "operator_not_ilike",
    "operator_similar_to",
    "operator_not_similar_to",
    "operator_regex",
    "operator_iregex",
    "operator_not_regex",
    "operator_not_iregex",
    "operator_addition",
    "operator_substraction",
    "operator_uminus",
    "operator_multiplicity",
    "operator_divide",
    "operator_overlaps",

    "function_cbrt",
    "function_log",
    "function_random",
    "function_setseed",
    "function_trunc",
    "function_width_bucket",
    "function_convert",
    "function_overlay",
    "function_substring",
    "function_btrim",
    "function_chr",
    "function_decode",
    "function_encode",
    "function_initcap",
    "function_ltrim",
    "function_pg_client_encoding",
    "function_quote_ident",
    "function_quote_literal",
    "function_rtrim",
    "function_split_part",
    "function_strpos",
    "function_to_ascii",
    "function_to_hex",
    "function_translate",
    "function_age",
    "function_date_part",
    "function_extract",
    "function_date_trunc",
    "function_isfinite",
    "function_timeofday",
    "function_timezone",
    "function_bit_and",
    "function_bit_or",
    "function_bool_and",
    "function_bool_or",
    "function_every",
    "function_to_char",
};

TEST(MysqlBuilder, ReplacesSeventyTwoSlots) {
    const owned<builder> mysql(quillet_mysql_builder_create());
    const owned<builder> defaults(quillet_default_builder_create());
    std::set<std::string> differing;
    int slots = 0;
    const auto compare = [&](const char *name, bool differs) {
        ++slots;
        if (differs)
            differing.insert(name);
    };
#define NODE(kind) compare(#kind, mysql->build_##kind != defaults->build_##kind);
#include "quillet_nodes.def"
#define OPERATOR(name, ...)                                                                        \
    compare("operator_" #name, mysql->build_operator_##name != defaults->build_operator_##name);
#include "quillet_operators.def"
#define FUNCTION(name, rule)                                                                       \
    compare("function_" #name, mysql->build_function_##name != defaults->build_function_##name);
#include "quillet_functions.def"
    EXPECT_EQ(slots, 193);
    EXPECT_EQ(replaced.size(), 72u);
    EXPECT_EQ(differing, replaced);
}

TEST(MysqlBuilder, HoldsItsOperations) {
    const owned<builder> mysql(quillet_mysql_builder_create());
#define KIND(kind, ...) EXPECT_EQ(mysql->build_##kind, quillet_##kind##_mysql_builder);
#define OPERATOR(name, ...)                                                                        \
    EXPECT_EQ(mysql->build_operator_##name, quillet_operator_##name##_mysql_builder);
#define FUNCTION(name, ...)                                                                        \
    EXPECT_TRUE(!replaced.contains("function_" #name) ||                                           \
                mysql->build_function_##name == quillet_function_##name##_mysql_builder);
#include "quillet_mysql_slots.def"
}

TEST(MysqlBuilder, HasADefaultBuilderAsItsParent) {
    const owned<builder> mysql(quillet_mysql_builder_create());
    const owned<builder> defaults(quillet_default_builder_create());
    ASSERT_NE(mysql->parent, nullptr);
    EXPECT_NE(mysql->parent, mysql.get());
    EXPECT_EQ(mysql->parent->parent, nullptr);
#define NODE(kind) EXPECT_EQ(mysql->parent->build_##kind, defaults->build_##kind);
#include "quillet_nodes.def"
#define OPERATOR(name, ...)                                                                        \
    EXPECT_EQ(mysql->parent->build_operator_##name, defaults->build_operator_##name);
#include "quillet_operators.def"
#define FUNCTION(name, rule) EXPECT_EQ(mysql->parent->build_function_##name, nullptr);
#include "quillet_functions.def"
}

TEST(MysqlBuilder, KeepsTheReasonWhenItIsCreated) {
    mysql_error_code = -7;
    const owned<builder> mysql(quillet_mysql_builder_create());
    EXPECT_EQ(mysql_error_code, -7);
    mysql_error_code = 0;
}

// Casts, intervals, fields and masks.

std::string cast(const std::string &text, int from, int to) {
    const owned<build_result> result(_quillet_mysql_cast(copy(text.c_str()), from, to));
    EXPECT_EQ(result->build_result, 0);
    return result->query ? result->query : "(NULL)";
}

TEST(MysqlCast, KeepsATextOfTheSameType) {
    for (int type = -2; type <= 20; ++type)
        EXPECT_EQ(cast("'x'", type, type), "'x'") << type;
}

// What casts and typed literals hold counts as of type -1.
TEST(MysqlCast, KeepsWhatIsOfNoTypeAlready) {
    const owned<builder> self(quillet_mysql_builder_create());
    EXPECT_EQ(any_tree(make(node_cast_expression{.expression = column("a"), .type = -1}))
                  .render(self.get()),
              gives("a"));
    EXPECT_EQ(any_tree(make(node_expression{.cast_expression = make(node_cast_expression{
                                                .expression = column("a"), .type = -1})}))
                  .render(self.get()),
              gives("a"));
    EXPECT_EQ(any_tree(typed(-1, "'a'")).render(self.get()), gives("'a'"));
    EXPECT_EQ(any_tree(typed(-2, "'a'")).render(self.get()), gives("CAST('a' AS )"));
    EXPECT_EQ(cast("a", 3, -1), "CAST(a AS )");
}

TEST(MysqlCast, CastsFromEveryTypeToEveryOther) {
    const std::map<int, std::string> names = {
        {QUILLET_TYPE_INT8, "SIGNED INTEGER"},
        {QUILLET_TYPE_SERIAL, "SIGNED INTEGER"},
        {QUILLET_TYPE_INT4, "SIGNED INTEGER"},
        {QUILLET_TYPE_INT2, "SIGNED INTEGER"},
        {QUILLET_TYPE_SERIAL4, "SIGNED INTEGER"},
        {QUILLET_TYPE_BOOL, "UNSIGNED INTEEGER"},
        {QUILLET_TYPE_VARCHAR, "BINARY"},
        {QUILLET_TYPE_CHAR, "BINARY"},
        {QUILLET_TYPE_TEXT, "BINARY"},
        {QUILLET_TYPE_DATE, "DATE"},
        {QUILLET_TYPE_TIME, "TIME"},
        {QUILLET_TYPE_TIMEZ, "TIME"},
        {QUILLET_TYPE_TIMESTAMP, "DATETIME"},
        {QUILLET_TYPE_TIMESTAMPZ, "DATETIME"},
    };
    for (int to = -2; to <= 20; ++to)
        for (int from = -2; from <= 20; ++from) {
            if (from == to)
                continue;
            std::string expected = "CAST('2 days' AS )";
            if (to == QUILLET_TYPE_FLOAT8 || to == QUILLET_TYPE_DECIMAL || to == QUILLET_TYPE_FLOAT)
                expected = "'2 days'";
            else if (to == QUILLET_TYPE_INTERVAL)
                expected = "INTERVAL 2 day";
            else if (names.contains(to))
                expected = "CAST('2 days' AS " + names.at(to) + ")";
            EXPECT_EQ(cast("'2 days'", from, to), expected) << from << " to " << to;
        }
}

TEST(MysqlInterval, TurnsIntoTerms) {
    const std::pair<const char *, const char *> cases[] = {
        {"'1 day'", "1 day"},
        {"'1 day 2 hours'", "1 day + INTERVAL 2 hour"},
        {"'1 days 2 Hours 3 MINUTES'", "1 day + INTERVAL 2 Hour + INTERVAL 3 MINUTE"},
        {"'1 day  2 hours'", "1 day  + INTERVAL 2 hour"},
        {"' 1 day '", " + INTERVAL 1 day "},
        {"'1 day -2 hours'", "1 day -2 hour"},
        {"'days, 3'", "days, + INTERVAL 3"},
        {"'s S'", " "},
        {"'sss'", "ss"},
        {"'1s2'", "1s2"},
        {"'s\t1'", "s\t1"},
        {"'7'", "7"},
        {"'0 1 2 3 4 5 6 7 8 9'",
         "0 + INTERVAL 1 + INTERVAL 2 + INTERVAL 3 + INTERVAL 4 + INTERVAL 5 + INTERVAL 6 "
         "+ INTERVAL 7 + INTERVAL 8 + INTERVAL 9"},
        {"''", ""},
        {"'", ""},
        {"", ""},
        {"abc", "b"},
    };
    for (const auto &[literal, expected] : cases)
        EXPECT_EQ(taken(_quillet_mysql_extract_interval(copy(literal))), expected) << literal;
}

struct field {
    const char *name;
    char *(*extract)(const char *, int);
    const char *plain;    // of X
    const char *interval; // of X; NULL for none
};

constexpr field fields[] = {
    {"century", _quillet_mysql_extract_date_century, "FLOOR((EXTRACT(YEAR FROM X) + 99) / 100)",
     "FLOOR((EXTRACT(YEAR FROM '0000-01-01 00:00:00' + X - INTERVAL 1 month - INTERVAL 1 day) + "
     "99) / 100)"},
    {"day", _quillet_mysql_extract_date_day, "DAYOFMONTH(X)",
     "DAYOFMONTH('0000-01-01 00:00:00' + X)"},
    {"decade", _quillet_mysql_extract_date_decade, "FLOOR(EXTRACT(YEAR FROM X) / 10)",
     "FLOOR(EXTRACT(YEAR FROM '0000-01-01 00:00:00' + X - INTERVAL 1 month - INTERVAL 1 day) / "
     "10)"},
    {"dow", _quillet_mysql_extract_date_dow, "(DAYOFWEEK(X) - 1)", nullptr},
    {"doy", _quillet_mysql_extract_date_doy, "DAYOFYEAR(X)", nullptr},
    {"epoch", _quillet_mysql_extract_date_epoch, "UNIX_TIMESTAMP(X)",
     "UNIX_TIMESTAMP('1970-01-01 00:00:00' + X)"},
    {"hour", _quillet_mysql_extract_date_hour, "HOUR(X)", "HOUR('0000-01-01 00:00:00' + X)"},
    {"microseconds", _quillet_mysql_extract_date_microseconds,
     "(MICROSECOND(X) + 1000000 * SECOND(X))",
     "(MICROSECOND('0000-01-01 00:00:00' + X) + 1000000 * SECOND('0000-01-01 00:00:00' + X))"},
    {"millennium", _quillet_mysql_extract_date_millennium,
     "FLOOR((EXTRACT(YEAR FROM X) + 999) / 1000)",
     "FLOOR((EXTRACT(YEAR FROM '0000-01-01 00:00:00' + X - INTERVAL 1 month - INTERVAL 1 day) + "
     "999) / 1000)"},
    {"miliseconds", _quillet_mysql_extract_date_miliseconds,
     "(FLOOR(MICROSECOND(X)) / 1000 + 1000 * SECOND(X))",
     "(FLOOR(MICROSECOND('0000-01-01 00:00:00' + X)) / 1000 + 1000 * SECOND('0000-01-01 00:00:00' "
     "+ X))"},
    {"minute", _quillet_mysql_extract_date_minute, "MINUTE(X)",
     "MINUTE('0000-01-01 00:00:00' + X)"},
    {"month", _quillet_mysql_extract_date_month, "MONTH(X)",
     "(MONTH('0000-01-01 00:00:00' + X) - 1)"},
    {"quarter", _quillet_mysql_extract_date_quarter, "FLOOR((MONTH(X) + 2) / 3)",
     "FLOOR((MONTH('0000-01-01 00:00:00' + X) + 1) / 3)"},
    {"second", _quillet_mysql_extract_date_second, "(SECOND(X) + MICROSECOND(X) / 1000000)",
     "(SECOND('0000-01-01 00:00:00' + X) + MICROSECOND('0000-01-01 00:00:00' + X) / 1000000)"},
    {"week", _quillet_mysql_extract_date_week, "WEEK(X, 7)", nullptr},
    {"year", _quillet_mysql_extract_date_year, "YEAR(X)", nullptr},
};

std::string upper(std::string text) {
    for (char &letter : text)
        letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    return text;
}

TEST(MysqlFields, AreExtracted) {
    for (const field &tested : fields)
        for (int type = -1; type <= 19; ++type) {
            const char *text = type == QUILLET_TYPE_INTERVAL ? tested.interval : tested.plain;
            const std::string expected = text ? text : "(NULL)";
            EXPECT_EQ(taken(tested.extract("X", type)), expected) << tested.name << type;
            EXPECT_EQ(taken(_quillet_mysql_extract_date(tested.name, "X", type)), expected)
                << tested.name << type;
            EXPECT_EQ(taken(_quillet_mysql_extract_date(upper(tested.name).c_str(), "X", type)),
                      expected)
                << tested.name << type;
        }
}

TEST(MysqlFields, LeaveTheExpressionAlone) {
    const char expression[] = "a \"long\" expression";
    EXPECT_EQ(taken(_quillet_mysql_extract_date_year(expression, 0)),
              "YEAR(a \"long\" expression)");
    EXPECT_STREQ(expression, "a \"long\" expression");
}

TEST(MysqlFields, AreNotFoundByAnotherName) {
    for (const char *name : {"", "milliseconds", "millisecond", "microsecond", "years", "yea",
                             " year", "year ", "isodow", "'year'", "timezone"})
        for (const int type : {QUILLET_TYPE_UNKNOWN, QUILLET_TYPE_DATE, QUILLET_TYPE_INTERVAL})
            EXPECT_EQ(_quillet_mysql_extract_date(name, "X", type), nullptr) << name;
}

TEST(MysqlTruncation, HasMasks) {
    const std::map<std::string, std::string> masks = {
        {"day", "%Y-%m-%d 00:00:00"},
        {"hour", "%Y-%m-%d %H:00:00"},
        {"microseconds", "%Y-%m-%d %H:%i:%s.%f"},
        {"minute", "%Y-%m-%d %H:%i:00"},
        {"month", "%Y-%m-01 00:00:00"},
        {"second", "%Y-%m-%d %H:%i:%s"},
        {"year", "%Y-01-01 00:00:00"},
    };
    for (const field &tested : fields) {
        const auto mask = masks.find(tested.name);
        const std::string expected =
            mask == masks.end() ? "(NULL)" : "DATE_FORMAT(X, '" + mask->second + "')";
        EXPECT_EQ(taken(_quillet_mysql_trunc_date(tested.name, "X")), expected) << tested.name;
        EXPECT_EQ(taken(_quillet_mysql_trunc_date(upper(tested.name).c_str(), "X")), expected)
            << tested.name;
    }
    for (const char *name : {"", "days", "milliseconds", "'day'", "day "})
        EXPECT_EQ(_quillet_mysql_trunc_date(name, "X"), nullptr) << name;
}

struct specifier {
    int code;
    const char *plain;
    const char *fm;
};

constexpr specifier specifiers[] = {
    {DATE_FORMAT_HH, "%I", "%l"},
    {DATE_FORMAT_HH24, "%H", "%k"},
    {DATE_FORMAT_MI, "%i", nullptr},
    {DATE_FORMAT_SS, "%s", nullptr},
    {DATE_FORMAT_US, "%f", nullptr},
    {DATE_FORMAT_AM_UPPER, "%p", "%p"},
    {DATE_FORMAT_YYYY, "%Y", "%Y"},
    {DATE_FORMAT_YY, "%Y", "%Y"},
    {DATE_FORMAT_IYYY, "%Y", "%Y"},
    {DATE_FORMAT_IY, "%Y", "%Y"},
    {DATE_FORMAT_MONTH_CAPITAL, "%M", "%M"},
    {DATE_FORMAT_MON_CAPITAL, "%b", "%b"},
    {DATE_FORMAT_MM, "%M", "%c"},
    {DATE_FORMAT_DAY_CAPITAL, nullptr, "%W"},
    {DATE_FORMAT_DY_CAPITAL, "%a", "%a"},
    {DATE_FORMAT_DDD, "%j", nullptr},
    {DATE_FORMAT_DD, "%d", "%e"},
};

constexpr int unsupported[] = {
    DATE_FORMAT_MS,        DATE_FORMAT_SSSS,      DATE_FORMAT_AM_LOWER,    DATE_FORMAT_Y_YYY,
    DATE_FORMAT_YYY,       DATE_FORMAT_Y,         DATE_FORMAT_IYY,         DATE_FORMAT_I,
    DATE_FORMAT_AD_UPPER,  DATE_FORMAT_AD_LOWER,  DATE_FORMAT_MONTH_UPPER, DATE_FORMAT_MONTH_LOWER,
    DATE_FORMAT_MON_UPPER, DATE_FORMAT_MON_LOWER, DATE_FORMAT_DAY_UPPER,   DATE_FORMAT_DAY_LOWER,
    DATE_FORMAT_DY_UPPER,  DATE_FORMAT_DY_LOWER,  DATE_FORMAT_D,           DATE_FORMAT_W,
    DATE_FORMAT_WW,        DATE_FORMAT_IW,        DATE_FORMAT_CC,          DATE_FORMAT_J,
    DATE_FORMAT_Q,         DATE_FORMAT_RM_UPPER,  DATE_FORMAT_RM_LOWER,    DATE_FORMAT_TZ_UPPER,
    DATE_FORMAT_TZ_LOWER,
};

std::string specifier_of(int prefix, int format, int suffix, const char *string = nullptr) {
    const owned<char> text(copy(string));
    const date_format_node node = {prefix, format, suffix, text.get(), nullptr};
    return taken(_quillet_mysql_date_format(&node));
}

constexpr int suffixes[] = {0, DATE_FORMAT_SUFFIX_TH_UPPER, DATE_FORMAT_SUFFIX_TH_LOWER,
                            DATE_FORMAT_SUFFIX_SP};

TEST(MysqlDateFormat, KnowsWords) {
    EXPECT_EQ(std::size(specifiers) + std::size(unsupported), 46u);
    for (const int suffix : suffixes) {
        for (const auto &[code, plain, fm] : specifiers) {
            EXPECT_EQ(specifier_of(0, code, suffix), plain ? plain : "(NULL)") << code;
            EXPECT_EQ(specifier_of(DATE_FORMAT_PREFIX_FX, code, suffix), plain ? plain : "(NULL)")
                << code;
            EXPECT_EQ(specifier_of(DATE_FORMAT_PREFIX_FM, code, suffix), fm ? fm : "(NULL)")
                << code;
        }
        for (const int code : unsupported)
            for (const int prefix : {0, +DATE_FORMAT_PREFIX_FM, +DATE_FORMAT_PREFIX_FX})
                EXPECT_EQ(specifier_of(prefix, code, suffix), "(NULL)") << code;
    }
}

TEST(MysqlDateFormat, KeepsOtherCharacters) {
    for (const int prefix : {0, +DATE_FORMAT_PREFIX_FM, +DATE_FORMAT_PREFIX_FX})
        for (int code = -128; code < 128; ++code) {
            const char character = static_cast<char>(code);
            const std::string expected = code == '%' ? "%%"
                                         : code == 0 ? "" // a prefix without a word
                                                     : std::string(1, character);
            EXPECT_EQ(specifier_of(prefix, code, 0), expected) << code;
        }
}

TEST(MysqlDateFormat, DoublesPercentSignsOfQuotedText) {
    for (const int prefix : {0, +DATE_FORMAT_PREFIX_FM, +DATE_FORMAT_PREFIX_FX}) {
        EXPECT_EQ(specifier_of(prefix, DATE_FORMAT_STRING, 0, "Week"), "Week");
        EXPECT_EQ(specifier_of(prefix, DATE_FORMAT_STRING, 0, ""), "");
        EXPECT_EQ(specifier_of(prefix, DATE_FORMAT_STRING, 0, "100%"), "100%%");
        EXPECT_EQ(specifier_of(prefix, DATE_FORMAT_STRING, 0, "%%Y%"), "%%%%Y%%");
    }
}

// Rendering. Every test begins without a reason.

class Mysql : public testing::Test {
protected:
    void SetUp() override { mysql_error_code = 0; }
    void TearDown() override { mysql_error_code = 0; }

    // What an expression gives, with its type.
    std::pair<outcome, int> expression(const std::string &sql) {
        const parsed statement = parse("select " + sql);
        EXPECT_EQ(statement.result, 0) << sql;
        node_expression *node =
            statement.tree->select->distinct_select_list->select_list->select_item->expression;
        const outcome result = taken(call_slot(mysql.get(), node));
        return {result, node->sql_type};
    }

    // An operation's result, and the reason it leaves.
    template <class Operation, class Node>
    std::pair<outcome, int> apply(Operation operation, Node *node, void *data = nullptr) {
        mysql_error_code = 0;
        const outcome result = taken(operation(mysql.get(), node, data));
        return {result, mysql_error_code};
    }

    owned<builder> mysql{quillet_mysql_builder_create()};
};

TEST_F(Mysql, RefusesWithoutALookAtTheNode) {
    const auto refused = [](int code) { return std::pair(textless(-3), code); };
    node_expression *no_operator = nullptr;
    node_function_call *no_call = nullptr;
    node_at_time_zone *no_zone = nullptr;
    EXPECT_EQ(apply(quillet_at_time_zone_mysql_builder, no_zone), refused(-1));
    EXPECT_EQ(apply(quillet_operator_factorial_mysql_builder, no_operator), refused(-2));
    EXPECT_EQ(apply(quillet_operator_similar_to_mysql_builder, no_operator), refused(-3));
    EXPECT_EQ(apply(quillet_operator_not_similar_to_mysql_builder, no_operator), refused(-4));
    EXPECT_EQ(apply(quillet_function_setseed_mysql_builder, no_call), refused(-5));
    EXPECT_EQ(apply(quillet_function_width_bucket_mysql_builder, no_call), refused(-6));
    EXPECT_EQ(apply(quillet_function_convert_mysql_builder, no_call), refused(-7));
    EXPECT_EQ(apply(quillet_function_btrim_mysql_builder, no_call), refused(-8));
    EXPECT_EQ(apply(quillet_function_decode_mysql_builder, no_call), refused(-9));
    EXPECT_EQ(apply(quillet_function_encode_mysql_builder, no_call), refused(-10));
    EXPECT_EQ(apply(quillet_function_initcap_mysql_builder, no_call), refused(-11));
    EXPECT_EQ(apply(quillet_function_pg_client_encoding_mysql_builder, no_call), refused(-12));
    EXPECT_EQ(apply(quillet_function_quote_ident_mysql_builder, no_call), refused(-13));
    EXPECT_EQ(apply(quillet_function_quote_literal_mysql_builder, no_call), refused(-14));
    EXPECT_EQ(apply(quillet_function_split_part_mysql_builder, no_call), refused(-15));
    EXPECT_EQ(apply(quillet_function_to_ascii_mysql_builder, no_call), refused(-16));
    EXPECT_EQ(apply(quillet_function_to_hex_mysql_builder, no_call), refused(-17));
    EXPECT_EQ(apply(quillet_function_translate_mysql_builder, no_call), refused(-18));
    EXPECT_EQ(apply(quillet_function_age_mysql_builder, no_call), refused(-19));
    EXPECT_EQ(apply(quillet_function_isfinite_mysql_builder, no_call), refused(-20));
    EXPECT_EQ(apply(quillet_function_timeofday_mysql_builder, no_call), refused(-21));
    EXPECT_EQ(apply(quillet_function_timezone_mysql_builder, no_call), refused(-22));
}

TEST_F(Mysql, HasRefusingOperationsThatItDoesNotInstall) {
    node_function_call *no_call = nullptr;
    const auto refused = [](int code) { return std::pair(textless(-3), code); };
    EXPECT_EQ(apply(quillet_function_to_date_mysql_builder, no_call), refused(-24));
    EXPECT_EQ(apply(quillet_function_to_timestamp_mysql_builder, no_call), refused(-25));
    EXPECT_EQ(apply(quillet_function_to_number_mysql_builder, no_call), refused(-26));
    EXPECT_EQ(quillet_implements_function_to_date(mysql.get()), 0);
    EXPECT_EQ(quillet_implements_function_to_timestamp(mysql.get()), 0);
    EXPECT_EQ(quillet_implements_function_to_number(mysql.get()), 0);
}

struct tree_case {
    const char *name;
    any_tree tree;
    outcome expected;
    int reason = 0;
};

node_expression *a() { return column("a"); }
node_expression *b() { return column("b"); }
node_identifier *named(const char *name) { return identifier(name); }

node_function_call *call(const char *name, node_expressions_list *list = nullptr) {
    return make(node_function_call{.function_name = identifier(name), .expressions_list = list});
}

node_function_call *placing(const char *name, node_expression *first, node_expression *second,
                            node_expression *third = nullptr, node_expression *fourth = nullptr) {
    return make(node_function_call{
        .function_name = identifier(name),
        .placing_from_for_argument = make(node_placing_from_for_argument{.expression_1 = first,
                                                                         .expression_2 = second,
                                                                         .expression_3 = third,
                                                                         .expression_4 = fourth})});
}

node_function_call *extract(node_expression *field, node_expression *source) {
    return make(node_function_call{.function_name = identifier("extract"),
                                   .from_for_argument = make(node_from_for_argument{
                                       .expression_1 = field, .expression_2 = source})});
}

node_expression *truth_test(const char *name, node_expression *operand, int value) {
    node_expression *node = operation(name, operand);
    node->const_boolean = const_boolean(value);
    return node;
}

node_overlaps_expression *pair_of(node_expression *start, node_expression *end) {
    return make(node_overlaps_expression{.expression_1 = start, .expression_2 = end});
}

node_expression *overlaps(node_overlaps_expression *first, node_overlaps_expression *second) {
    node_expression *node = operation("operator_overlaps", nullptr);
    node->overlaps_expression_1 = first;
    node->overlaps_expression_2 = second;
    return node;
}

void check(builder *self, const std::vector<tree_case> &cases) {
    for (const tree_case &tested : cases) {
        mysql_error_code = 0;
        EXPECT_EQ(tested.tree.render(self), tested.expected) << tested.name;
        EXPECT_EQ(mysql_error_code, tested.reason) << tested.name;
    }
}

// What an operation does not decide goes to the parent's one, with the same builder, node and data.

struct deferral {
    const builder *self = nullptr;
    const void *node = nullptr;
    const void *data = nullptr;
    int count = 0;
};

deferral deferred;

template <class Node> build_result *of_a_host(builder *self, Node *node, void *data) {
    deferred = {self, node, data, deferred.count + 1};
    build_result *result = quillet_build_result_create();
    result->query = copy("the host's");
    result->build_result = -42;
    return result;
}

TEST_F(Mysql, DefersToAnOperationOfTheParent) {
    const owned<builder> self(quillet_mysql_builder_create());
    builder &parent = *self->parent;
    parent.build_const_generic = of_a_host<node_const_generic>;
    parent.build_expression_or_default_item = of_a_host<node_expression_or_default_item>;
    int data = 0;
    const auto expect = [&](auto *node, auto *own) {
        deferred = {};
        const owned<std::remove_pointer_t<decltype(node)>> holder(node);
        EXPECT_EQ(taken(own(self.get(), node, &data)), gives("the host's", -42));
        EXPECT_EQ(deferred.self, self.get());
        EXPECT_EQ(deferred.node, node);
        EXPECT_EQ(deferred.data, &data);
        EXPECT_EQ(deferred.count, 1);
    };
    expect(make(node_const_generic{.const_integer = const_integer("1")}),
           quillet_const_generic_mysql_builder);
    expect(make(node_expression_or_default_item{.expression = column("a")}),
           quillet_expression_or_default_item_mysql_builder);

    // Operands that refuse leave their reason, but neither a text nor a status.
    const auto expect_operator = [&](const char *name, auto slot, auto *own) {
        parent.*slot = of_a_host<node_expression>;
        expect(operation(name, column("a"), column("b")), own);
        expect(operation(name, operation("operator_factorial", column("a")), column("b")), own);
    };
    expect_operator("operator_addition", &builder::build_operator_addition,
                    quillet_operator_addition_mysql_builder);
    expect_operator("operator_substraction", &builder::build_operator_substraction,
                    quillet_operator_substraction_mysql_builder);
    expect_operator("operator_multiplicity", &builder::build_operator_multiplicity,
                    quillet_operator_multiplicity_mysql_builder);
    expect_operator("operator_divide", &builder::build_operator_divide,
                    quillet_operator_divide_mysql_builder);
    expect_operator("operator_uminus", &builder::build_operator_uminus,
                    quillet_operator_uminus_mysql_builder);
}

TEST_F(Mysql, DecidesBeforeItDefers) {
    const owned<builder> self(quillet_mysql_builder_create());
    self->parent->build_operator_addition = of_a_host<node_expression>;
    self->parent->build_const_generic = of_a_host<node_const_generic>;
    const any_tree sum(operation("operator_addition", typed(QUILLET_TYPE_DATE, "'2005-01-01'"),
                                 operation("operator_factorial", column("a"))));
    EXPECT_EQ(sum.render(self.get()), gives("the host's", -42));
    const any_tree dates(operation("operator_substraction", typed(QUILLET_TYPE_DATE, "'x'"),
                                   typed(QUILLET_TYPE_DATE, "'y'")));
    EXPECT_EQ(dates.render(self.get()),
              gives("TO_DAYS(CAST('x' AS DATE)) - TO_DAYS(CAST('y' AS DATE))"));
}

// Without a parent, or with an empty slot there, what stands in the builder's own slot is called.
build_result *answer_text(builder *, node_expression *, void *) {
    build_result *result = quillet_build_result_create();
    result->query = copy("x");
    return result;
}

TEST_F(Mysql, DefersToItsOwnSlotWithoutAParent) {
    builder self{};
    self.build_operator_addition = of_a_host<node_expression>;
    self.build_expression = answer_text;
    const owned<node_expression> sum(operation("operator_addition", column("a"), column("b")));
    EXPECT_EQ(taken(quillet_operator_addition_mysql_builder(&self, sum.get(), nullptr)),
              gives("the host's", -42));
    self.build_operator_addition = nullptr;
    EXPECT_EQ(taken(quillet_operator_addition_mysql_builder(&self, sum.get(), nullptr)), no_record);
    self.build_operator_addition = quillet_operator_addition_default_builder;
    EXPECT_EQ(taken(quillet_operator_addition_mysql_builder(&self, sum.get(), nullptr)),
              gives("x + x"));
}

TEST_F(Mysql, NeedsOperands) {
    for (const char *name : {"operator_square_root", "operator_cubic_root", "operator_abs",
                             "operator_bitwise_not", "operator_uminus"})
        check(mysql.get(), {{name, operation(name, nullptr), textless(-2)}});
    for (const char *name :
         {"operator_power", "operator_bitwise_xor", "operator_concatenate",
          "operator_distinct_from", "operator_like", "operator_not_like", "operator_ilike",
          "operator_not_ilike", "operator_regex", "operator_iregex", "operator_not_regex",
          "operator_not_iregex", "operator_addition", "operator_substraction",
          "operator_multiplicity", "operator_divide"})
        check(mysql.get(), {{name, operation(name, a()), textless(-2)},
                            {name, operation(name, nullptr, b()), textless(-2)},
                            {name, operation(name, nullptr), textless(-2)}});
    for (const char *name : {"operator_is", "operator_is_not"})
        check(mysql.get(), {{name, operation(name, a()), textless(-2)},
                            {name, truth_test(name, nullptr, 1), textless(-2)}});
    check(mysql.get(),
          {{"no first pair", overlaps(nullptr, pair_of(a(), b())), textless(-2)},
           {"no second pair", overlaps(pair_of(a(), b()), nullptr), textless(-2)},
           {"no first start", overlaps(pair_of(nullptr, b()), pair_of(a(), b())), textless(-2)},
           {"no first end", overlaps(pair_of(a(), nullptr), pair_of(a(), b())), textless(-2)},
           {"no second start", overlaps(pair_of(a(), b()), pair_of(nullptr, b())), textless(-2)},
           {"no second end", overlaps(pair_of(a(), b()), pair_of(a(), nullptr)), textless(-2)}});
}

TEST_F(Mysql, RendersNothingBeforeAMissingOperand) {
    const auto refused = [] { return operation("operator_factorial", a()); };
    check(mysql.get(),
          {{"power", operation("operator_power", refused()), textless(-2)},
           {"addition", operation("operator_addition", nullptr, refused()), textless(-2)},
           {"overlaps", overlaps(pair_of(refused(), b()), nullptr), textless(-2)},
           {"overlay", placing("overlay", calling(call("initcap")), nullptr), textless(-2)},
           {"date_part", call("date_part", arguments(refused())), textless(-2)},
           {"to_char", call("to_char", arguments(refused(), b())), textless(-2)}});
}

TEST_F(Mysql, GivesNoTextForAnotherTruthValue) {
    for (const char *name : {"operator_is", "operator_is_not"})
        for (const int value : {0, 4, -1}) {
            const any_tree tree(truth_test(name, a(), value));
            EXPECT_EQ(tree.render(mysql.get()), textless()) << name << value;
            EXPECT_EQ(tree.sql_type(), QUILLET_TYPE_BOOL) << name << value;
        }
    EXPECT_EQ(mysql_error_code, 0);
}

TEST_F(Mysql, RendersTruthValuesAsNumbers) {
    const std::pair<int, const char *> values[] = {{1, "1"},    {2, "0"},     {3, "NULL"},
                                                   {0, "NULL"}, {-1, "NULL"}, {4, "NULL"}};
    for (const auto &[value, text] : values) {
        const any_tree tree(const_boolean(value));
        EXPECT_EQ(tree.render(mysql.get()), gives(text)) << value;
        EXPECT_EQ(tree.sql_type(), QUILLET_TYPE_BOOL) << value;
    }
}

TEST_F(Mysql, TurnsDoubleQuotesAtTheEndsOfNames) {
    check(mysql.get(), {
                           {"plain", named("abc"), gives("abc")},
                           {"quoted", named("\"My Col\""), gives("`My Col`")},
                           {"first", named("\"abc"), gives("`abc")},
                           {"last", named("abc\""), gives("abc`")},
                           {"inside", named("\"a\"b\""), gives("`a\"b`")},
                           {"inside alone", named("a\"b"), gives("a\"b")},
                           {"one", named("\""), gives("`")},
                           {"two", named("\"\""), gives("``")},
                           {"three", named("\"\"\""), gives("`\"`")},
                           {"empty", named(""), gives("")},
                           {"none", named(nullptr), textless(-2)},
                       });
}

TEST_F(Mysql, LimitsRows) {
    const auto limit = [](node_const_integer *count, node_const_integer *offset) {
        return make(node_limit_clausule{.const_integer_1 = count, .const_integer_2 = offset});
    };
    check(mysql.get(),
          {
              {"both", limit(const_integer("10"), const_integer("5")), gives("LIMIT 5,10")},
              {"count", limit(const_integer("10"), nullptr), gives("LIMIT 10")},
              {"offset", limit(nullptr, const_integer("5")), textless(-3), -27},
              {"neither", limit(nullptr, nullptr), textless(-3), -27},
          });
}

TEST_F(Mysql, RendersLiteralsWithPartsMissing) {
    const auto zone = [] {
        return make(node_at_time_zone{.type = 1, .const_string = const_string("'x'")});
    };
    check(mysql.get(),
          {
              {"nothing to cast", make(node_cast_expression{.type = 6}), textless(-2)},
              {"no string", make(node_const_generic{.type = 6}), textless(-2)},
              {"no string and a zone", make(node_const_generic{.type = 6, .at_time_zone = zone()}),
               textless(-2)},
              {"a zone",
               make(node_const_generic{
                   .const_string = const_string("'x'"), .type = 6, .at_time_zone = zone()}),
               textless(-3), -1},
              {"a type without a name",
               make(node_const_generic{.const_string = const_string("'x'"), .type = 19}),
               gives("CAST('x' AS )")},
              {"null", make(node_const_generic{}), gives("NULL")},
          });
}

TEST_F(Mysql, ShowsOutputColumns) {
    const auto item = [](node_expression *expression, node_identifier *alias) {
        return make(node_select_item{.expression = expression, .identifier = alias});
    };
    check(mysql.get(),
          {
              {"neither", item(nullptr, nullptr), gives("*")},
              {"alias", item(nullptr, named("\"t t\"")), gives("`t t`.*")},
              {"expression", item(a(), nullptr), gives("a")},
              {"both", item(a(), named("\"x\"")), gives("a AS `x`")},
              {"truth value", item(boolean(1), nullptr), gives("IF(1, 'TRUE', 'FALSE')")},
              {"truth value without text", item(truth_test("operator_is", a(), 4), nullptr),
               gives("IF(, 'TRUE', 'FALSE')")},
              {"truth value with alias", item(operation("operator_equal", a(), b()), named("x")),
               gives("IF(a = b, 'TRUE', 'FALSE') AS x")},
          });
}

TEST_F(Mysql, NamesTheColumnOfADefault) {
    const owned<node_identifier> column_name(named("\"a b\""));
    const owned<node_identifier> nameless(named(nullptr));
    const any_tree item(make(node_expression_or_default_item{}));
    EXPECT_EQ(item.render(mysql.get(), column_name.get()), gives("DEFAULT(\"a b\")"));
    EXPECT_EQ(mysql_error_code, 0);
    EXPECT_EQ(item.render(mysql.get(), nameless.get()), textless(-3));
    EXPECT_EQ(std::exchange(mysql_error_code, 0), -38);
    EXPECT_EQ(item.render(mysql.get()), textless(-3));
    EXPECT_EQ(std::exchange(mysql_error_code, 0), -38);
    const any_tree valued(make(node_expression_or_default_item{.expression = a()}));
    EXPECT_EQ(valued.render(mysql.get(), column_name.get()), gives("a"));
    EXPECT_EQ(mysql_error_code, 0);
}

TEST_F(Mysql, NeedsArguments) {
    const auto empty = [] { return make(node_expressions_list{}); };
    for (const char *name :
         {"cbrt", "log", "trunc", "strpos", "ltrim", "rtrim", "date_part", "date_trunc", "bit_and",
          "bit_or", "bool_and", "bool_or", "every", "to_char"})
        check(mysql.get(),
              {{name, call(name), textless(-2)}, {name, call(name, empty()), textless(-2)}});
    check(mysql.get(), {{"chr", call("chr"), textless(-2)}});
    for (const char *name : {"strpos", "date_part", "date_trunc"}) {
        node_expressions_list *without_previous =
            make(node_expressions_list{.expressions_list = empty(), .expression = b()});
        node_expressions_list *without_last = make(node_expressions_list{
            .expressions_list = make(node_expressions_list{.expression = a()})});
        check(mysql.get(), {{name, call(name, arguments(a())), textless(-2)},
                            {name, call(name, without_previous), textless(-2)},
                            {name, call(name, without_last), textless(-2)}});
    }
    check(mysql.get(),
          {{"to_char alone", call("to_char", arguments(string("'YYYY'"))), textless(-2)},
           {"to_char of a column", call("to_char", arguments(a(), b())), textless(-2)},
           {"to_char of a number", call("to_char", arguments(a(), integer("1"))), textless(-2)},
           {"overlay", call("overlay", arguments(a(), b())), textless(-2)},
           {"overlay of no string", placing("overlay", nullptr, b(), a(), b()), textless(-2)},
           {"overlay of no replacement", placing("overlay", a(), nullptr, a(), b()), textless(-2)},
           {"substring", call("substring", arguments(a())), textless(-2)},
           {"extract", call("extract", arguments(a())), textless(-2)},
           {"extract of no field", extract(nullptr, a()), textless(-2)},
           {"extract of no source", extract(column("year"), nullptr), textless(-2)},
           {"extract of a literal", extract(string("'year'"), a()), textless(-2)},
           {"extract of a nameless column",
            extract(make(node_expression{.column_reference = make(node_column_reference{})}), a()),
            textless(-2)}});
}

TEST_F(Mysql, RefusesAnOverlayWithoutAllParts) {
    check(mysql.get(),
          {{"no start", placing("overlay", a(), b(), nullptr, integer("1")), textless(-3), -32},
           {"no length", placing("overlay", a(), b(), integer("1")), textless(-3), -32},
           {"neither", placing("overlay", a(), b()), textless(-3), -32}});
}

struct text_case {
    const char *sql;
    outcome expected;
    int type;
    int reason = 0;
};

TEST_F(Mysql, TypesWhatItRenders) {
    const text_case cases[] = {
        {"|/ 2", gives("SQRT(2)"), QUILLET_TYPE_FLOAT8},
        {"||/ 2", gives("POWER(2, 1/3)"), QUILLET_TYPE_FLOAT8},
        {"@ 2", gives("ABS(2)"), QUILLET_TYPE_INT8},
        {"@ a", gives("ABS(a)"), QUILLET_TYPE_UNKNOWN},
        {"@ date '1'", gives("ABS(CAST('1' AS DATE))"), QUILLET_TYPE_DATE},
        {"2 ^ 3", gives("POWER(2, 3)"), QUILLET_TYPE_INT8},
        {"2 ^ 3.5", gives("POWER(2, 3.5)"), QUILLET_TYPE_FLOAT8},
        {"a # b", gives("a ^ b"), QUILLET_TYPE_INT8},
        {"~ a", gives("-(~(~(a) - 1))"), QUILLET_TYPE_INT8},
        {"a || b", gives("CONCAT(a, b)"), QUILLET_TYPE_VARCHAR},
        {"a is distinct from b",
         gives("IF(a IS NULL, IF(b IS NULL, 0, 1), IF(b IS NULL, 1, a != b))"), QUILLET_TYPE_BOOL},
        {"a is true", gives("IF(a IS NULL, 0, a != 0)"), QUILLET_TYPE_BOOL},
        {"a is not unknow", gives("a IS NOT NULL"), QUILLET_TYPE_BOOL},
        {"a like b", gives("a LIKE BINARY (b)"), QUILLET_TYPE_BOOL},
        {"a not ilike b", gives("a NOT LIKE b"), QUILLET_TYPE_BOOL},
        {"a ~ b", gives("BINARY (a) REGEXP b"), QUILLET_TYPE_BOOL},
        {"a !~* b", gives("NOT (a REGEXP b)"), QUILLET_TYPE_BOOL},
        {"(a, b) overlaps (c, d)", gives("(NOT ((d < a) OR (c > b)))"), QUILLET_TYPE_BOOL},
        {"date '1' + 2", gives("CAST('1' AS DATE) + INTERVAL 2 DAY"), QUILLET_TYPE_DATE},
        {"2 - date '1'", gives("CAST('1' AS DATE) - INTERVAL 2 DAY"), QUILLET_TYPE_DATE},
        {"date '1' - date '2'", gives("TO_DAYS(CAST('1' AS DATE)) - TO_DAYS(CAST('2' AS DATE))"),
         QUILLET_TYPE_INT8},
        {"time '1' + time '2'",
         gives("ADDTIME(CAST(CAST('1' AS TIME) AS DATETIME), CAST('2' AS TIME))"),
         QUILLET_TYPE_TIMESTAMP},
        {"time '1' + timestamp '2'", gives("ADDTIME(CAST('2' AS DATETIME), CAST('1' AS TIME))"),
         QUILLET_TYPE_TIMESTAMP},
        {"timestamp '1' + interval '1 day'", gives("CAST('1' AS DATETIME) + INTERVAL 1 day"),
         QUILLET_TYPE_TIMESTAMP},
        {"- interval '1 day'", gives("INTERVAL -1 day"), QUILLET_TYPE_INTERVAL},
        {"- 1", gives("- 1"), QUILLET_TYPE_INT8},
        {"1 * 2", gives("1 * 2"), QUILLET_TYPE_INT8},
        {"1 / 2", gives("1 / 2"), QUILLET_TYPE_FLOAT8},
        {"cast(a as text)", gives("CAST(a AS BINARY)"), QUILLET_TYPE_TEXT},
        {"a::float", gives("a"), QUILLET_TYPE_FLOAT},
        {"a::money", gives("CAST(a AS )"), QUILLET_TYPE_UNKNOWN},
        {"timez '1'", gives("CAST('1' AS TIME)"), QUILLET_TYPE_TIMEZ},
        {"'x'", gives("'x'"), QUILLET_TYPE_VARCHAR},
        {"cbrt(a)", gives("POWER(a, 1/3)"), QUILLET_TYPE_FLOAT8},
        {"log(a)", gives("LOG(10, a)"), QUILLET_TYPE_FLOAT8},
        {"Log(a, b)", gives("Log(a, b)"), QUILLET_TYPE_FLOAT8},
        {"random()", gives("RAND()"), QUILLET_TYPE_FLOAT8},
        {"trunc(a)", gives("TRUNCATE(a, 0)"), QUILLET_TYPE_INT8},
        {"trunc(a, 2)", gives("TRUNCATE(a, 2)"), QUILLET_TYPE_INT8},
        {"chr(a)", gives("CHAR(a)"), QUILLET_TYPE_VARCHAR},
        {"strpos(a, b)", gives("POSITION(b IN a)"), QUILLET_TYPE_INT8},
        {"overlay(a placing b from 1 for 2)",
         gives("CONCAT(SUBSTR(a, 1, 1 - 1), b, SUBSTR(a, 1 + 2))"), QUILLET_TYPE_VARCHAR},
        {"substring(a placing b from 1)", gives("SUBSTRING(a PLACING b FROM 1)"),
         QUILLET_TYPE_VARCHAR},
        {"ltrim(a)", gives("LTRIM(a)"), QUILLET_TYPE_VARCHAR},
        {"rtrim(a, 'x')", gives("TRIM(TRAILING 'x' FROM a)"), QUILLET_TYPE_VARCHAR},
        {"date_part('day', a)", gives("DAYOFMONTH(a)"), QUILLET_TYPE_INT8},
        {"date_part('Second', a)", gives("(SECOND(a) + MICROSECOND(a) / 1000000)"),
         QUILLET_TYPE_FLOAT8},
        {"extract(day from a)", gives("DAYOFMONTH(a)"), QUILLET_TYPE_INT8},
        {"extract(SECOND from a)", gives("(SECOND(a) + MICROSECOND(a) / 1000000)"),
         QUILLET_TYPE_FLOAT8},
        {"date_trunc('day', a)", gives("DATE_FORMAT(a, '%Y-%m-%d 00:00:00')"),
         QUILLET_TYPE_TIMESTAMP},
        {"bit_and(a)", gives("IF(COUNT(a) = 0, NULL, BIT_AND(a))"), QUILLET_TYPE_INT8},
        {"bit_or(a)", gives("IF(COUNT(a) = 0, NULL, BIT_OR(a))"), QUILLET_TYPE_INT8},
        {"bool_and(a)", gives("IF(COUNT(a) = 0, NULL, BIT_AND(a != 0))"), QUILLET_TYPE_BOOL},
        {"bool_or(a)", gives("IF(COUNT(a) = 0, NULL, BIT_OR(a != 0))"), QUILLET_TYPE_BOOL},
        {"every(a)", gives("IF(COUNT(a) = 0, NULL, BIT_AND(a != 0))"), QUILLET_TYPE_BOOL},
        {"to_char(now(), 'DD')", gives("DATE_FORMAT(now(), '%d')"), QUILLET_TYPE_UNKNOWN},
        {"to_date(a, b)", gives("to_date(a, b)"), QUILLET_TYPE_DATE},
    };
    for (const auto &[sql, expected, type, reason] : cases) {
        EXPECT_EQ(expression(sql), std::pair(expected, type)) << sql;
        EXPECT_EQ(mysql_error_code, reason) << sql;
    }
}

TEST_F(Mysql, KeepsTextsBesideSomeRefusals) {
    const text_case cases[] = {
        {"substring(a placing b from c)", gives("SUBSTRING(a PLACING b FROM c)", -3),
         QUILLET_TYPE_VARCHAR, -33},
        {"ltrim(a, 'xy')", gives("LTRIM(a)", -3), QUILLET_TYPE_VARCHAR, -34},
        {"rtrim(a, 'xy')", gives("RTRIM(a)", -3), QUILLET_TYPE_VARCHAR, -34},
        {"to_char(now(), 'HH24:FMMI')", gives("DATE_FORMAT(now(), '%H:')", -3),
         QUILLET_TYPE_UNKNOWN, -38},
        {"to_char(now(), 'Q YYYY')", gives("DATE_FORMAT(now(), '')", -3), QUILLET_TYPE_UNKNOWN,
         -38},
        {"|/ initcap(a)", gives("SQRT()", -3), QUILLET_TYPE_FLOAT8, -11},
        {"initcap(a) || b", gives("CONCAT(, b)", -3), QUILLET_TYPE_VARCHAR, -11},
        {"initcap(a) like b escape 'x'", gives(" LIKE BINARY (b) ESCAPE 'x'", -3),
         QUILLET_TYPE_BOOL, -11},
        {"initcap(a) is true", gives("IF( IS NULL, 0,  != 0)", -3), QUILLET_TYPE_BOOL, -11},
        {"cbrt(initcap(a))", gives("POWER(, 1/3)", -3), QUILLET_TYPE_FLOAT8, -11},
        {"date_part('day', initcap(a))", gives("DAYOFMONTH()", -3), QUILLET_TYPE_INT8, -11},
        {"date_trunc('day', initcap(a))", gives("DATE_FORMAT(, '%Y-%m-%d 00:00:00')", -3),
         QUILLET_TYPE_TIMESTAMP, -11},
        {"initcap(a) + 1", gives(" + 1", -3), QUILLET_TYPE_FLOAT8, -11},
    };
    for (const auto &[sql, expected, type, reason] : cases) {
        EXPECT_EQ(expression(sql), std::pair(expected, type)) << sql;
        EXPECT_EQ(mysql_error_code, reason) << sql;
    }
}

TEST_F(Mysql, HasNoTextForOtherRefusals) {
    const std::pair<const char *, int> cases[] = {
        {"interval '1 day' + interval '1 day'", -28},
        {"time '1' - time '2'", -29},
        {"interval '1 day' * 2", -30},
        {"2 / interval '1 day'", -31},
    };
    for (const auto &[sql, reason] : cases) {
        EXPECT_EQ(expression(sql), std::pair(textless(-3), +QUILLET_TYPE_UNKNOWN)) << sql;
        EXPECT_EQ(mysql_error_code, reason) << sql;
    }
}

TEST_F(Mysql, TypesCallsThatItRefuses) {
    struct refused_call {
        node_function_call *call;
        int type;
        int reason;
    };
    const auto interval = [] { return typed(QUILLET_TYPE_INTERVAL, "'1 day'"); };
    const refused_call cases[] = {
        {call("date_part", arguments(string("'years'"), a())), QUILLET_TYPE_INT8, -35},
        {call("date_part", arguments(string("'year'"), interval())), QUILLET_TYPE_INT8, -35},
        {extract(column("years"), a()), QUILLET_TYPE_INT8, -35},
        {call("date_trunc", arguments(string("'week'"), a())), QUILLET_TYPE_TIMESTAMP, -36},
        {call("date_trunc", arguments(string("'day'"), interval())), QUILLET_TYPE_TIMESTAMP, -37},
    };
    for (const refused_call &tested : cases) {
        const owned<node_function_call> holder(tested.call);
        EXPECT_EQ(taken(call_slot(mysql.get(), tested.call)), textless(-3)) << tested.reason;
        EXPECT_EQ(mysql_error_code, tested.reason);
        EXPECT_EQ(tested.call->sql_type, tested.type) << tested.reason;
    }
}

TEST_F(Mysql, LeavesTheTypeOfToCharAlone) {
    const owned<node_function_call> node(
        call("to_char", arguments(typed(QUILLET_TYPE_DATE, "'1'"), string("'DD'"))));
    node->sql_type = 42;
    EXPECT_EQ(taken(call_slot(mysql.get(), node.get())),
              gives("DATE_FORMAT(CAST('1' AS DATE), '%d')"));
    EXPECT_EQ(node->sql_type, 42);
}

TEST_F(Mysql, RendersMarkedPositionsOfOtherTypesAsPatterns) {
    const auto substring = [](node_expression *from, node_expression *length) {
        return placing("substring", a(), string("'x'"), from, length);
    };
    check(mysql.get(),
          {{"no position", substring(nullptr, nullptr), gives("SUBSTRING(a PLACING 'x')")},
           {"length", substring(nullptr, integer("1")), gives("SUBSTRING(a PLACING 'x' FOR 1)")},
           {"float", substring(floating("1.5"), nullptr),
            gives("SUBSTRING(a PLACING 'x' FROM 1.5)", -3), -33}});
}

// Whole translations.

struct translated {
    int code;
    std::string text;
};

translated translate(const char *sql, const char *builder_name = "mysql") {
    const going_on guard;
    reset_scanner();
    char *text = nullptr;
    const int code = quillet_translate_query(sql, &text, quillet_get_builder_id(builder_name));
    const owned<char> holder(text);
    return {code, text ? text : ""};
}

class MysqlTranslation : public testing::Test {
protected:
    void SetUp() override {
        quillet_init();
        mysql_error_code = 0;
    }
    void TearDown() override { mysql_error_code = 0; }
};

TEST_F(MysqlTranslation, HasNoReasonAtFirst) {
    EXPECT_EQ(translate("select a").code, 0);
    EXPECT_EQ(quillet_get_detailed_error_code(), 0);
    EXPECT_STREQ(quillet_get_detailed_error_description(), "");
}

TEST_F(MysqlTranslation, KeepsTheReasonAfterASuccess) {
    EXPECT_EQ(translate("select initcap(a)").code, -3);
    EXPECT_STREQ(quillet_get_error_description(), "can not translate");
    EXPECT_EQ(quillet_get_detailed_error_code(), -11);

    const translated success = translate("select a");
    EXPECT_EQ(success.code, 0);
    EXPECT_EQ(success.text, "SELECT a");
    EXPECT_STREQ(quillet_get_error_description(), "");
    EXPECT_EQ(quillet_get_detailed_error_code(), -11);
    EXPECT_STREQ(quillet_get_detailed_error_description(), reasons[11]);
}

TEST_F(MysqlTranslation, KeepsTheReasonAfterAnotherFailure) {
    EXPECT_EQ(translate("select initcap(a)").code, -3);
    EXPECT_EQ(translate("select strpos(a)").code, -2);
    EXPECT_EQ(quillet_get_detailed_error_code(), -11);
    testing::internal::CaptureStdout();
    EXPECT_EQ(translate("select").code, -2);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Error: syntax error\n");
    EXPECT_EQ(quillet_get_detailed_error_code(), -11);
    EXPECT_EQ(translate("select a !").code, -3);
    EXPECT_EQ(quillet_get_detailed_error_code(), -2);
}

TEST_F(MysqlTranslation, HidesTheReasonFromOtherBuilders) {
    EXPECT_EQ(translate("select initcap(a)").code, -3);
    for (const char *name : {"postgresql", "tree", "type_view"}) {
        EXPECT_EQ(translate("select initcap(a)", name).code, 0) << name;
        EXPECT_EQ(quillet_get_detailed_error_code(), 0) << name;
        EXPECT_EQ(quillet_get_detailed_error_description(), nullptr) << name;
    }
    EXPECT_EQ(translate("select a").code, 0);
    EXPECT_EQ(quillet_get_detailed_error_code(), -11);
}

TEST_F(MysqlTranslation, RemembersAReasonThatACastForgot) {
    const translated success = translate("select cast(initcap(a) as int)");
    EXPECT_EQ(success.code, 0);
    EXPECT_EQ(success.text, "SELECT CAST( AS SIGNED INTEGER)");
    EXPECT_EQ(quillet_get_detailed_error_code(), -11);
}

TEST_F(MysqlTranslation, RendersTwiceAlike) {
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(translate("insert into t (a, \"b\") values (default, x || y)").text,
                  "INSERT INTO t (a, `b`) VALUES (DEFAULT(a), CONCAT(x, y))");
        EXPECT_EQ(translate("select to_char(now(), 'Q')").code, -3);
        EXPECT_EQ(quillet_get_detailed_error_code(), -38);
    }
}

// Refused functions are refused whatever their arguments are.
TEST_F(MysqlTranslation, RefusesFunctionsWithEveryFormOfArguments) {
    const std::pair<const char *, int> functions[] = {
        {"setseed", -5},      {"width_bucket", -6},
        {"convert", -7},      {"btrim", -8},
        {"decode", -9},       {"encode", -10},
        {"initcap", -11},     {"pg_client_encoding", -12},
        {"quote_ident", -13}, {"quote_literal", -14},
        {"split_part", -15},  {"to_ascii", -16},
        {"to_hex", -17},      {"translate", -18},
        {"age", -19},         {"isfinite", -20},
        {"timeofday", -21},   {"timezone", -22},
    };
    const char *forms[] = {"",
                           "a",
                           "a, b",
                           "a, b, c",
                           "distinct a",
                           "all a",
                           "*",
                           "a using b",
                           "a placing b",
                           "a placing b from c",
                           "a placing b for c",
                           "a placing b from c for d",
                           "a from b",
                           "a from b for c",
                           "a in b",
                           "leading a from b",
                           "trailing a from b",
                           "both a from b",
                           "leading from a",
                           "trailing from a",
                           "both from a",
                           "from a",
                           "strpos()",
                           "a !"};
    for (const auto &[name, reason] : functions)
        for (const char *form : forms)
            for (const std::string &written : {std::string(name), upper(name)}) {
                const std::string sql = "select " + written + '(' + form + ')';
                mysql_error_code = 0;
                EXPECT_EQ(translate(sql.c_str()).code, -3) << sql;
                EXPECT_EQ(quillet_get_detailed_error_code(), reason) << sql;
            }
}

} // namespace
