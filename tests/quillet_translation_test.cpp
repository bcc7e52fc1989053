// quillet_translate: what its record says, and that it leaves nothing behind.

#include "quillet.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

#include "quillet_builder.h"
#include "quillet_mysql_builder.h"
#include "quillet_mysql_errors.h"
#include "quillet_postgresql_builder.h"
#include "support.h"

namespace {

using namespace quillet_tests;

enum builder_id { postgresql, mysql, tree, type_view };

struct freed {
    void operator()(quillet_translation *made) const { quillet_translation_free(made); }
};

using translation = std::unique_ptr<quillet_translation, freed>;

translation translate(std::string_view statement, int builder,
                      const quillet_options *options = nullptr) {
    const going_on guard;
    testing::internal::CaptureStdout();
    translation made(quillet_translate(statement.data(), statement.size(), builder, options));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "") << statement.substr(0, 80);
    return made;
}

// A diagnostic as a test tells it: its id, and the part of the statement that it is about.
struct said {
    std::string id;
    std::string part;

    bool operator==(const said &) const = default;
    friend std::ostream &operator<<(std::ostream &out, const said &one) {
        return out << one.id << " at <" << one.part << ">";
    }
};

std::vector<said> said_of(const quillet_translation &made, std::string_view statement) {
    std::vector<said> all;
    for (std::size_t i = 0; i < made.diagnostic_count; ++i) {
        const quillet_diagnostic &each = made.diagnostics[i];
        all.push_back({each.id, std::string(statement.substr(each.offset, each.length))});
    }
    return all;
}

std::vector<said> said_of(std::string_view statement, int builder) {
    return said_of(*translate(statement, builder), statement);
}

// A diagnostic that outlives its translation.
struct diagnostic {
    std::int32_t severity = -1;
    std::int32_t code = -1;
    std::string id;
    std::string message;
    std::optional<std::string> hint;
    std::size_t offset = 0;
    std::size_t length = 0;
    std::int32_t line = 0;
    std::int32_t column = 0;
};

// The only diagnostic of a translation that is no note.
diagnostic only_one(const translation &made) {
    std::vector<const quillet_diagnostic *> found;
    for (std::size_t i = 0; i < made->diagnostic_count; ++i)
        if (made->diagnostics[i].severity != QUILLET_NOTE)
            found.push_back(&made->diagnostics[i]);
    EXPECT_EQ(found.size(), 1U);
    if (found.size() != 1)
        return {};
    const quillet_diagnostic &one = *found.front();
    return {one.severity,
            one.code,
            one.id,
            one.message,
            one.hint ? std::optional<std::string>(one.hint) : std::nullopt,
            one.offset,
            one.length,
            one.line,
            one.column};
}

TEST(Translation, HasATextAndNothingToSay) {
    const translation made = translate("select 'a' || 'b' from t", mysql);
    EXPECT_EQ(made->code, 0);
    EXPECT_STREQ(made->text, "SELECT CONCAT('a', 'b') FROM t");
    EXPECT_EQ(made->text_length, 30U);
    EXPECT_EQ(made->diagnostic_count, 0U);
    EXPECT_EQ(made->diagnostics, nullptr);
}

TEST(Translation, TakesTheBytesThatItIsGiven) {
    EXPECT_STREQ(translate(std::string_view("select 12345", 10), postgresql)->text, "SELECT 123");
}

TEST(Translation, OfEachBuilder) {
    EXPECT_STREQ(translate("select 1", postgresql)->text, "SELECT 1");
    EXPECT_STREQ(translate("select 1", type_view)->text, "SELECT INT8 ( 1 ) ");
    EXPECT_EQ(std::string(translate("select 1", tree)->text).substr(0, 9), "main [0]\n");
}

TEST(Translation, OfNothingIsASyntaxError) {
    for (const char *nothing : {"", "   ", "-- a comment\n", static_cast<const char *>(nullptr)}) {
        const translation made(
            quillet_translate(nothing, nothing ? std::strlen(nothing) : 0, mysql, nullptr));
        EXPECT_EQ(made->code, -2);
        EXPECT_EQ(made->text, nullptr);
        EXPECT_EQ(made->text_length, 0U);
        const diagnostic error = only_one(made);
        EXPECT_EQ(error.id, "syntax-error");
        EXPECT_EQ(error.message, "syntax error at end of input");
        EXPECT_EQ(error.offset, nothing ? std::strlen(nothing) : 0);
        EXPECT_EQ(error.length, 0U);
    }
}

TEST(Translation, ASyntaxErrorHasTheTokenThatDoesNotFit) {
    const translation made = translate("select a\nfrom From t", postgresql);
    EXPECT_EQ(made->code, -2);
    const diagnostic error = only_one(made);
    EXPECT_EQ(error.severity, QUILLET_ERROR);
    EXPECT_EQ(error.code, 0);
    EXPECT_EQ(error.id, "syntax-error");
    EXPECT_EQ(error.message, "syntax error at or near \"From\"");
    EXPECT_EQ(error.hint, std::nullopt);
    EXPECT_EQ(error.offset, 14U);
    EXPECT_EQ(error.length, 4U);
    EXPECT_EQ(error.line, 2);
    EXPECT_EQ(error.column, 6);
}

TEST(Translation, ASyntaxErrorAtTheEndHasNoToken) {
    const translation made = translate("select a from\n", postgresql);
    const diagnostic error = only_one(made);
    EXPECT_EQ(error.message, "syntax error at end of input");
    EXPECT_EQ(error.offset, 14U);
    EXPECT_EQ(error.length, 0U);
    EXPECT_EQ(error.line, 2);
    EXPECT_EQ(error.column, 1);
}

TEST(Translation, ASyntaxErrorShowsTheBeginningOfALongToken) {
    const std::string token = "'" + std::string(57, 'a') + "\xc3\xa9" + std::string(100, 'b') + "'";
    const std::string statement = "select 1 2 " + token;
    EXPECT_EQ(said_of(statement, postgresql), (std::vector<said>{{"syntax-error", "2"}}));
    const std::string after = "select 1 from t limit " + token;
    EXPECT_EQ(only_one(translate(after, postgresql)).message,
              "syntax error at or near \"'" + std::string(57, 'a') + "\xc3\xa9...\"");
    EXPECT_EQ(only_one(translate(after, postgresql)).length, token.size());
}

TEST(Translation, ATokenThatIsCutIsShownAsItIsRead) {
    // The exponent without digits is a name behind the number.
    EXPECT_EQ(said_of("select 1 as 2e+", postgresql), (std::vector<said>{{"syntax-error", "2"}}));
    EXPECT_EQ(said_of("select 1 as   'a\\'b", postgresql),
              (std::vector<said>{{"syntax-error", "'a\\'"}}));
}

TEST(Translation, ASyntaxErrorMayHaveAHint) {
    const auto hint = [](const char *statement) {
        return only_one(translate(statement, mysql)).hint;
    };
    EXPECT_EQ(hint("select 'it''s'"), "write a backslash before a quote within a string");
    EXPECT_EQ(hint("select 1; select 2"), "translate one statement at a time");
    EXPECT_EQ(hint("select 1;;"), "translate one statement at a time");
    EXPECT_EQ(hint("select 'a' 'b'"), std::nullopt);
    EXPECT_EQ(hint("from"), std::nullopt);
    EXPECT_EQ(hint("\xef\xbb\xbfselect 1"), "leave the byte order mark out");
}

struct unknown {
    std::string_view statement;
    const char *message;
    std::size_t offset, length;
    int line, column;
    bool has_hint;
};

TEST(Translation, AnUnknownCharacterHasItsPlace) {
    using namespace std::string_view_literals;
    const unknown cases[] = {
        {"select ?", "unknown character \"?\"", 7, 1, 1, 8, true},
        {"select $1", "unknown character \"$\"", 7, 1, 1, 8, true},
        {"select a\r\nfrom :t", "unknown character \":\"", 15, 1, 2, 6, true},
        {"select `a`", "unknown character \"`\"", 7, 1, 1, 8, true},
        {"select a[1]", "unknown character \"[\"", 8, 1, 1, 9, true},
        {"select {", "unknown character \"{\"", 7, 1, 1, 8, false},
        {"select 'gr\xc3\xbc\xc3\x9f' || \xc3\xa9 from t", "unknown character \"\xc3\xa9\"", 19, 2,
         1, 18, false},
        {"select \xe2\x82\xac", "unknown character \"\xe2\x82\xac\"", 7, 3, 1, 8, false},
        {"select \xf0\x9f\x98\x80", "unknown character \"\xf0\x9f\x98\x80\"", 7, 4, 1, 8, false},
        {"select \xff", "unknown character \"\\xff\"", 7, 1, 1, 8, false},
        {"select \xe2\x82", "unknown character \"\\xe2\"", 7, 1, 1, 8, false},
        {"select \x01", "unknown character \"\\x01\"", 7, 1, 1, 8, false},
        {"select a\0 from t"sv, "unknown character \"\\x00\"", 8, 1, 1, 9, false},
        {"select 'a\0'"sv, "unknown character \"\\x00\"", 9, 1, 1, 10, false},
        {"select \"a\0\""sv, "unknown character \"\\x00\"", 9, 1, 1, 10, false},
        {"select 1 /* \0 */"sv, "unknown character \"\\x00\"", 12, 1, 1, 13, false},
        {"\0"sv, "unknown character \"\\x00\"", 0, 1, 1, 1, false},
    };
    for (const unknown &each : cases) {
        const translation made = translate(each.statement, mysql);
        EXPECT_EQ(made->code, -2) << each.statement;
        EXPECT_EQ(made->text, nullptr) << each.statement;
        const diagnostic error = only_one(made);
        EXPECT_EQ(error.severity, QUILLET_ERROR);
        EXPECT_EQ(error.id, "unknown-character") << each.statement;
        EXPECT_EQ(error.message, each.message) << each.statement;
        EXPECT_EQ(error.offset, each.offset) << each.statement;
        EXPECT_EQ(error.length, each.length) << each.statement;
        EXPECT_EQ(error.line, each.line) << each.statement;
        EXPECT_EQ(error.column, each.column) << each.statement;
        EXPECT_EQ(error.hint.has_value(), each.has_hint) << each.statement;
    }
}

TEST(Translation, AnErrorBeforeANulIsTheOneThatCounts) {
    using namespace std::string_view_literals;
    EXPECT_EQ(said_of("select from\0"sv, mysql), (std::vector<said>{{"syntax-error", "from"}}));
}

TEST(Translation, AStringANameOrACommentMayLackItsEnd) {
    EXPECT_EQ(said_of("select 'abc\nfrom t", mysql),
              (std::vector<said>{{"unended-string", "'abc\nfrom t"}}));
    EXPECT_EQ(said_of("select  \"abc from t", mysql),
              (std::vector<said>{{"unended-name", "\"abc from t"}}));
    EXPECT_EQ(said_of("select \"\" from t", mysql), (std::vector<said>{{"empty-name", "\"\""}}));
    EXPECT_EQ(said_of("select \"", mysql), (std::vector<said>{{"unended-name", "\""}}));
    EXPECT_EQ(said_of("select '", mysql), (std::vector<said>{{"unended-string", "'"}}));
    EXPECT_EQ(translate("select '", mysql)->code, -2);
}

TEST(Translation, ACommentWithoutAnEndIsAWarning) {
    const std::string_view statement = "select 1 /* one */ + /* two /* three\n */ \n";
    const translation open = translate("select 1 + 2 /* two /* three\n */ \n", mysql);
    EXPECT_EQ(open->code, 0);
    EXPECT_STREQ(open->text, "SELECT 1 + 2");
    EXPECT_EQ(only_one(open).severity, QUILLET_WARNING);
    EXPECT_EQ(
        said_of(statement, mysql),
        (std::vector<said>{{"unended-comment", "/* two /* three\n */ \n"}, {"syntax-error", ""}}));
    EXPECT_EQ(translate("select 1 -- to the end", mysql)->diagnostic_count, 0U);
    EXPECT_EQ(translate("select 1 /* a /* b */ c */", mysql)->diagnostic_count, 0U);
}

TEST(Translation, NewlinesInCommentsAndPatternsAreNotEchoed) {
    EXPECT_STREQ(translate("select /* a\n\n b */ 1", mysql)->text, "SELECT 1");
    EXPECT_STREQ(translate("select to_char(date '2005-01-01', 'YYYY\nDD')", mysql)->text,
                 "SELECT DATE_FORMAT(CAST('2005-01-01' AS DATE), '%Y%d')");
}

TEST(Translation, EveryRefusalHasItsPlace) {
    EXPECT_EQ(
        said_of("select initcap(a), 5 !, a || to_hex(b), interval '1 day' * 2 from t offset 3",
                mysql),
        (std::vector<said>{{"refused-initcap", "initcap(a)"},
                           {"refused-factorial", "5 !"},
                           {"refused-to-hex", "to_hex(b)"},
                           {"refused-interval-product", "interval '1 day' * 2"},
                           {"refused-offset-alone", "offset 3"}}));
}

TEST(Translation, ARefusalInsideOfARefusedConstructIsFound) {
    EXPECT_EQ(said_of("select initcap(to_hex(encode(a, 'hex'))) from t where a similar to btrim(b)",
                      mysql),
              (std::vector<said>{{"refused-initcap", "initcap(to_hex(encode(a, 'hex')))"},
                                 {"refused-to-hex", "to_hex(encode(a, 'hex'))"},
                                 {"refused-encode", "encode(a, 'hex')"},
                                 {"refused-similar-to", "a similar to btrim(b)"},
                                 {"refused-btrim", "btrim(b)"}}));
    EXPECT_EQ(said_of("select (interval '1 day' * 2) * initcap(a)", mysql),
              (std::vector<said>{{"refused-interval-product", "interval '1 day' * 2"},
                                 {"refused-initcap", "initcap(a)"}}));
}

TEST(Translation, ARefusalHasItsPlaceAtEveryDepth) {
    const std::string deep(2000, '(');
    EXPECT_EQ(said_of("select " + deep + "initcap(a)" + std::string(2000, ')'), mysql),
              (std::vector<said>{{"refused-initcap", "initcap(a)"}}));
}

TEST(Translation, ARefusalHasItsSentenceItsCodeAndAHint) {
    const diagnostic refusal = only_one(translate("select initcap(a)", mysql));
    EXPECT_EQ(refusal.severity, QUILLET_REFUSAL);
    EXPECT_EQ(refusal.code, -11);
    EXPECT_EQ(refusal.id, "refused-initcap");
    EXPECT_EQ(refusal.message, "INITCAP function not implemented in MySQL backend");
    EXPECT_EQ(refusal.hint, "write upper(substr(x, 1, 1)) || lower(substr(x, 2)) for one word");
}

// A statement for each reason that is ever given, in the order of the codes.
constexpr std::pair<const char *, int> refused_statements[] = {
    {"select timestamp 'x' at time zone 'y'", -1},
    {"select a !", -2},
    {"select a similar to b", -3},
    {"select a not similar to b", -4},
    {"select setseed(1)", -5},
    {"select width_bucket(a, 1, 2, 3)", -6},
    {"select convert(a using b)", -7},
    {"select btrim(a)", -8},
    {"select decode(a, 'hex')", -9},
    {"select encode(a, 'hex')", -10},
    {"select initcap(a)", -11},
    {"select pg_client_encoding()", -12},
    {"select quote_ident(a)", -13},
    {"select quote_literal(a)", -14},
    {"select split_part(a, ',', 1)", -15},
    {"select to_ascii(a)", -16},
    {"select to_hex(a)", -17},
    {"select translate(a, 'b', 'c')", -18},
    {"select age(a, b)", -19},
    {"select isfinite(a)", -20},
    {"select timeofday()", -21},
    {"select timezone('x', a)", -22},
    {"select to_char(a, 'b')", -23},
    {"select a from t offset 1", -27},
    {"select interval '1 day' + interval '1 day'", -28},
    {"select interval '1 day' - interval '1 day'", -29},
    {"select interval '1 day' * 2", -30},
    {"select interval '1 day' / 2", -31},
    {"select overlay(a placing b)", -32},
    {"select substring(a placing 'b' for 'c')", -33},
    {"select ltrim(a, 'bc')", -34},
    {"select extract(isodow from a)", -35},
    {"select date_trunc('quarter', a)", -36},
    {"select date_trunc('day', interval '1 day')", -37},
    {"insert into t values (default)", -38},
};

TEST(Translation, WhatMayBeSaidIsKnown) {
    std::map<std::string, quillet_diagnostic> known;
    quillet_diagnostic each{};
    std::size_t count = 0;
    for (; quillet_get_known_diagnostic(count, &each) == 1; ++count)
        known.emplace(each.id, each);
    EXPECT_EQ(count, 18U + 9U + 61U + 39U); // of any builder, postgresql, mysql; refusals of mysql
    EXPECT_EQ(quillet_get_known_diagnostic(count + 1, &each), 0);

    EXPECT_EQ(known.at("syntax-error").severity, QUILLET_ERROR);
    EXPECT_EQ(known.at("syntax-error").message, nullptr);
    EXPECT_EQ(known.at("text-form").severity, QUILLET_NOTE);
    EXPECT_EQ(known.at("distinct-on").severity, QUILLET_WARNING);
    const quillet_diagnostic &initcap = known.at("refused-initcap");
    EXPECT_EQ(initcap.severity, QUILLET_REFUSAL);
    EXPECT_EQ(initcap.code, -11);
    EXPECT_STREQ(initcap.message, "INITCAP function not implemented in MySQL backend");
    EXPECT_STREQ(initcap.hint, "write upper(substr(x, 1, 1)) || lower(substr(x, 2)) for one word");
}

TEST(Translation, EveryReasonIsSaidAsItIsRequired) {
    for (const auto &[statement, code] : refused_statements) {
        const translation made = translate(statement, mysql);
        EXPECT_EQ(made->code, -3) << statement;
        const diagnostic refusal = only_one(made);
        EXPECT_EQ(refusal.code, code) << statement;
        EXPECT_EQ(refusal.message, mysql_error_descriptions[-code]) << statement;
        EXPECT_EQ(refusal.id.find("refused-"), 0U) << statement;
        EXPECT_NE(refusal.hint, std::nullopt) << statement;
    }
}

TEST(Translation, AWordOfAPatternIsRefusedWithAHintOfItsOwn) {
    const std::string_view statement = "select to_char(date '2005-01-01', 'YYYY Q')";
    const translation made = translate(statement, mysql);
    const diagnostic refusal = only_one(made);
    EXPECT_EQ(refusal.code, -38);
    EXPECT_EQ(refusal.message,
              "MYSQL backend does not support inserting default values without identifier list");
    EXPECT_EQ(said_of(*made, statement),
              (std::vector<said>{{"refused-to-char-format", "'YYYY Q'"}}));
    EXPECT_NE(refusal.hint.value_or("").find("to_char"), std::string::npos);
}

TEST(Translation, AConstructThatLacksAPartIsNamed) {
    const std::string_view call = "select a, bit_and(distinct b) from t";
    const translation made = translate(call, mysql);
    EXPECT_EQ(made->code, -2);
    EXPECT_EQ(only_one(made).message,
              "invalid query: a call without the arguments that its function needs");
    EXPECT_EQ(said_of(*made, call), (std::vector<said>{{"missing-part", "bit_and(distinct b)"}}));

    const std::string_view insert = "insert into t (a, b) values (1)";
    EXPECT_EQ(said_of(insert, postgresql),
              (std::vector<said>{{"missing-part", std::string(insert)}}));
    EXPECT_EQ(said_of("insert into t values default values", postgresql),
              (std::vector<said>{{"missing-part", "default values"}}));
    EXPECT_EQ(said_of("select time 'x' at other zone 'y'", postgresql),
              (std::vector<said>{{"missing-part", "at other zone 'y'"}}));
}

TEST(Translation, ARefusalBelowAMissingPartIsFound) {
    EXPECT_EQ(said_of("select bit_and(distinct initcap(a))", mysql),
              (std::vector<said>{{"missing-part", "bit_and(distinct initcap(a))"},
                                 {"refused-initcap", "initcap(a)"}}));
}

TEST(Translation, ARefusalThatACastLosesIsSaidAllTheSame) {
    const translation made = translate("select cast(initcap(a) as int)", mysql);
    EXPECT_EQ(made->code, 0);
    EXPECT_STREQ(made->text, "SELECT CAST( AS SIGNED INTEGER)");
    EXPECT_EQ(only_one(made).id, "refused-initcap");
}

TEST(Translation, SaysWhatMattersEnough) {
    const std::string_view statement = "select a = b, cast(c as json), cast(initcap(d) as text) /*";
    const auto ids = [&](std::int32_t least) {
        quillet_options options{};
        options.size = sizeof options;
        options.least_severity = least;
        const translation made = translate(statement, mysql, &options);
        std::vector<std::string> all;
        for (std::size_t i = 0; i < made->diagnostic_count; ++i)
            all.emplace_back(made->diagnostics[i].id);
        return all;
    };
    EXPECT_EQ(ids(QUILLET_NOTE),
              (std::vector<std::string>{"text-comparison", "boolean-of-columns", "empty-cast",
                                        "text-cast", "refused-initcap", "unended-comment"}));
    EXPECT_EQ(ids(QUILLET_WARNING),
              (std::vector<std::string>{"empty-cast", "refused-initcap", "unended-comment"}));
    EXPECT_EQ(ids(QUILLET_REFUSAL), (std::vector<std::string>{"refused-initcap"}));
    EXPECT_EQ(ids(QUILLET_ERROR), std::vector<std::string>{});
}

TEST(Translation, NoSuchBuilder) {
    for (const int id : {-1, 4, 1000000}) {
        const translation made = translate("select 1", id);
        EXPECT_EQ(made->code, -1);
        EXPECT_EQ(only_one(made).id, "no-such-builder");
        EXPECT_EQ(only_one(made).message, "no such builder");
    }
}

TEST(Translation, FreesNothing) { quillet_translation_free(nullptr); }

// Limits.

TEST(TranslationLimits, OfTheTextHoldToTheByte) {
    for (const int id : {postgresql, mysql, tree, type_view}) {
        const std::string_view statement = "select a + 1, b from t where c = 'd'";
        const std::size_t size = translate(statement, id)->text_length;
        quillet_options options = {sizeof options, size, 0};
        EXPECT_EQ(translate(statement, id, &options)->code, 0) << id;
        options.text_limit = size - 1;
        const translation made = translate(statement, id, &options);
        EXPECT_EQ(made->code, -3) << id;
        EXPECT_EQ(made->text, nullptr) << id;
        EXPECT_EQ(only_one(made).id, "text-too-large") << id;
        EXPECT_EQ(only_one(made).length, statement.size()) << id;
    }
}

TEST(TranslationLimits, OfTheTreeHold) {
    const std::string statement = "select a, b from t";
    std::size_t enough = 1;
    quillet_options options = {sizeof options, 0, enough};
    for (; translate(statement, mysql, &options)->code != 0; options.tree_limit = ++enough)
        ASSERT_LT(enough, 10000U);
    options.tree_limit = enough - 1;
    const translation made = translate(statement, mysql, &options);
    EXPECT_EQ(made->code, -3);
    EXPECT_EQ(only_one(made).id, "tree-too-large");
    options.tree_limit = enough;
    EXPECT_EQ(translate(statement + " where c", mysql, &options)->code, -3);
    EXPECT_STREQ(translate(statement, mysql, &options)->text, "SELECT a, b FROM t");
}

TEST(TranslationLimits, OfTheTreeAreNotForPlaces) {
    const std::string statement = "select a + b, c from t where d = 'e'";
    quillet_options options{};
    options.size = sizeof options;
    options.tree_limit = 1;
    options.least_severity = QUILLET_REFUSAL;
    for (; translate(statement, mysql, &options)->code != 0; ++options.tree_limit)
        ASSERT_LT(options.tree_limit, 10000U);
    options.least_severity = QUILLET_NOTE;
    const translation noted = translate(statement, mysql, &options);
    EXPECT_EQ(noted->code, 0);
    EXPECT_EQ(said_of(*noted, statement),
              (std::vector<said>{{"unknown-arithmetic", "a + b"}, {"text-comparison", "d = 'e'"}}));
    --options.tree_limit;
    EXPECT_EQ(translate(statement, mysql, &options)->code, -3);
}

TEST(TranslationLimits, AreThoseOfTheLibraryUnlessTheyAreLower) {
    const quillet_options large = {sizeof large, SIZE_MAX, SIZE_MAX};
    EXPECT_EQ(translate("select 1", mysql, &large)->code, 0);
    const quillet_options none = {sizeof none, 0, 0};
    EXPECT_EQ(translate("select 1", mysql, &none)->code, 0);
}

TEST(TranslationLimits, OfAnOlderAndOfANewerHostAreUnderstood) {
    quillet_options older = {offsetof(quillet_options, tree_limit), 3, 1};
    EXPECT_EQ(only_one(translate("select 1", mysql, &older)).id, "text-too-large");
    older.size = sizeof(std::size_t);
    EXPECT_EQ(translate("select 1", mysql, &older)->code, 0);
    older.size = 0;
    EXPECT_EQ(translate("select 1", mysql, &older)->code, 0);

    struct {
        quillet_options known;
        std::size_t later[4];
    } newer = {{sizeof newer, 0, 1}, {1, 2, 3, 4}};
    EXPECT_EQ(only_one(translate("select 1", mysql, &newer.known)).id, "tree-too-large");
}

std::string repeated(std::string_view text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

TEST(TranslationLimits, OfTheDepth) {
    const std::string statement = "select " + repeated("(", 20000) + "1" + repeated(")", 20000);
    const translation made = translate(statement, mysql);
    EXPECT_EQ(made->code, -3);
    EXPECT_EQ(only_one(made).id, "too-deep");
    EXPECT_EQ(only_one(made).length, 1U);
}

// Each of these calls would have an argument of 256 MiB.
TEST(TranslationLimits, OfWhatIsLookedThroughForRefusals) {
    std::string doubled = "a";
    for (int i = 0; i < 26; ++i)
        doubled = "(" + doubled + " is distinct from b)";
    const std::string statement = "select " + repeated("initcap(" + doubled + "), ", 1000) + "c";
    const translation made = translate(statement, mysql);
    EXPECT_EQ(made->code, -3);
    EXPECT_EQ(made->diagnostic_count, 1000U);
}

// What a call leaves behind.

class TranslationState : public testing::Test {
protected:
    void SetUp() override {
        quillet_init();
        reset_scanner();
        mysql_error_code = 0;
    }
    void TearDown() override {
        reset_scanner();
        mysql_error_code = 0;
    }

    static std::string classic(const char *statement) {
        char *text = nullptr;
        testing::internal::CaptureStdout();
        const int code = quillet_translate_query(statement, &text, mysql);
        const std::string printed = testing::internal::GetCapturedStdout();
        std::string result = std::to_string(code) + ' ' + (text ? text : "-") + ' ' + printed;
        std::free(text);
        return result;
    }

    static void translate_all() {
        for (const char *statement :
             {"select 1", "select from", "select ?", "select /* ", "select initcap(a)"})
            translate(statement, mysql);
    }
};

TEST_F(TranslationState, ARemainderOfTheClassicCallStays) {
    EXPECT_EQ(classic("select a b from from t; select 2"), "-2 - Error: syntax error\n");
    translate_all();
    const std::string with = classic("select 3");
    reset_scanner();
    EXPECT_EQ(classic("select a b from from t; select 2"), "-2 - Error: syntax error\n");
    EXPECT_EQ(classic("select 3"), with);
    EXPECT_NE(with, "0 SELECT 3 ");
}

TEST_F(TranslationState, AnOpenCommentOfTheClassicCallStays) {
    EXPECT_EQ(classic("select 1 /* open"), "0 SELECT 1 ");
    translate_all();
    EXPECT_EQ(classic("still */ select 2"), "0 SELECT 2 ");
}

TEST_F(TranslationState, AnOpenCommentOfItsOwnEnds) {
    translate("select 1 /* open", mysql);
    EXPECT_STREQ(translate("select 2", mysql)->text, "SELECT 2");
    EXPECT_EQ(classic("select 3"), "0 SELECT 3 ");
    translate("select 1 from 2 from 3", mysql);
    EXPECT_STREQ(translate("select 4", mysql)->text, "SELECT 4");
}

TEST_F(TranslationState, TheReasonsOfTheClassicCallStay) {
    EXPECT_EQ(classic("select to_hex(a)"), "-3 - ");
    translate_all();
    EXPECT_EQ(quillet_get_detailed_error_code(), -17);
    EXPECT_STREQ(quillet_get_error_description(), "can not translate");
    EXPECT_EQ(mysql_error_code, -17);
    EXPECT_EQ(classic("select 1"), "0 SELECT 1 ");
    translate_all();
    EXPECT_EQ(error_code, 0);
    EXPECT_EQ(last_builder_id, mysql);
}

TEST_F(TranslationState, NothingOfMemoryIsKeptButOnRequest) {
    translate_all();
    quillet_release_memory();
    quillet_release_memory();
    EXPECT_STREQ(translate("select 2", mysql)->text, "SELECT 2");
}

TEST_F(TranslationState, WorksWithoutInitAndAfterDone) {
    for (quillet_builder_info *&info : quillet_builders)
        info = nullptr;
    const int id = quillet_get_builder_id("MySQL");
    EXPECT_EQ(id, mysql);
    EXPECT_STREQ(translate("select a || b", id)->text, "SELECT CONCAT(a, b)");
    EXPECT_EQ(quillet_builders[mysql], nullptr);
    EXPECT_EQ(classic("select a || b"), "0 SELECT CONCAT(a, b) ");
    quillet_init();
    quillet_done();
    EXPECT_STREQ(translate("select a || b", id)->text, "SELECT CONCAT(a, b)");
}

TEST_F(TranslationState, WorksInAForkedProcess) {
    translate_all();
    const pid_t child = fork();
    if (child == 0) {
        const translation made(quillet_translate("select initcap(a)", 17, mysql, nullptr));
        std::_Exit(made->diagnostic_count == 1 ? 7 : 1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 7);
}

// Operations of a host.

// While one lives the builder mysql has an operation of the test for columns.
class hosted_columns {
public:
    using operation = build_result *(*)(builder *, node_column_reference *, void *);

    explicit hosted_columns(operation column) {
        own = column;
        quillet_mysql_builder_info.constructor = create;
    }
    ~hosted_columns() { quillet_mysql_builder_info.constructor = quillet_mysql_builder_create; }
    hosted_columns(const hosted_columns &) = delete;
    hosted_columns &operator=(const hosted_columns &) = delete;

private:
    static builder *create() {
        builder *created = quillet_mysql_builder_create();
        created->build_column_reference = own;
        return created;
    }

    static inline operation own = nullptr;
};

build_result *result_of(const char *text, int status) {
    build_result *result = quillet_build_result_create();
    result->query = copy(text);
    result->build_result = status;
    return result;
}

std::string nested_texts;

build_result *nested(builder *, node_column_reference *, void *) {
    quillet_translation *inner = quillet_translate("select a1 - to_hex(1)", 21, type_view, nullptr);
    nested_texts += inner->text;
    quillet_translation_free(inner);
    char *text = nullptr;
    if (quillet_translate_query("select 'x' || 'y'", &text, postgresql) == 0)
        nested_texts += text;
    std::free(text);
    return result_of("nested", 0);
}

TEST_F(TranslationState, MayBeCalledFromAnOperation) {
    const hosted_columns host(nested);
    nested_texts.clear();
    const translation made = translate("select a, initcap(b)", mysql);
    EXPECT_EQ(said_of(*made, "select a, initcap(b)"),
              (std::vector<said>{{"refused-initcap", "initcap(b)"}}));
    const std::string once = nested_texts;
    EXPECT_NE(once.find("SELECT 'x' || 'y'"), std::string::npos);
    EXPECT_STREQ(translate("select a", mysql)->text, "SELECT nested");
    EXPECT_EQ(classic("select a"), "0 SELECT nested ");
}

build_result *refusing(builder *, node_column_reference *, void *) {
    return result_of("dropped", -3);
}
build_result *lacking(builder *, node_column_reference *, void *) { return result_of(nullptr, -2); }
build_result *failing_otherwise(builder *, node_column_reference *, void *) {
    return result_of(nullptr, 77);
}

TEST_F(TranslationState, AHostsFailureHasItsPlace) {
    const std::string_view statement = "select 1, a.b from t";
    {
        const hosted_columns host(refusing);
        const translation made = translate(statement, mysql);
        EXPECT_EQ(made->code, -3);
        EXPECT_EQ(said_of(*made, statement), (std::vector<said>{{"refused", "a.b"}}));
        EXPECT_EQ(only_one(made).message, "can not translate");
        EXPECT_EQ(only_one(made).code, 0);
    }
    {
        const hosted_columns host(lacking);
        const translation made = translate(statement, mysql);
        EXPECT_EQ(made->code, -2);
        EXPECT_EQ(said_of(*made, statement), (std::vector<said>{{"missing-part", "a.b"}}));
    }
    {
        const hosted_columns host(failing_otherwise);
        EXPECT_EQ(translate(statement, mysql)->code, 77);
    }
}

int32_t reason_of_host() { return -1234; }
const char *description_of_host() { return "host says no"; }

TEST_F(TranslationState, AHostsReasonIsItsOwn) {
    const hosted_columns host(refusing);
    quillet_mysql_builder_info.get_error_code = reason_of_host;
    quillet_mysql_builder_info.get_error_description = description_of_host;
    const diagnostic refusal = only_one(translate("select a", mysql));
    quillet_mysql_builder_info.get_error_code = quillet_mysql_get_error_code;
    quillet_mysql_builder_info.get_error_description = quillet_mysql_get_error_description;
    EXPECT_EQ(refusal.code, -1234);
    EXPECT_EQ(refusal.message, "host says no");
}

build_result *looking(builder *, node_column_reference *, void *) {
    return result_of(std::to_string(quillet_mysql_get_error_code()).c_str(), 0);
}

TEST_F(TranslationState, AnOperationSeesTheReasonsOfItsOwnTranslation) {
    const hosted_columns host(looking);
    mysql_error_code = -5;
    EXPECT_STREQ(translate("select a", mysql)->text, "SELECT 0");
    EXPECT_EQ(classic("select a"), "0 SELECT -5 ");
}

build_result *missing(builder *, node_column_reference *, void *) { return nullptr; }

TEST_F(TranslationState, AFailureIsAlwaysExplained) {
    const hosted_columns host(missing);
    const translation made = translate("select a from t", mysql);
    EXPECT_EQ(made->code, 0);
    quillet_mysql_builder_info.constructor = [] { return static_cast<builder *>(nullptr); };
    const translation none = translate("select a from t", mysql);
    EXPECT_EQ(none->code, -3);
    EXPECT_EQ(only_one(none).id, "refused");
}

} // namespace
