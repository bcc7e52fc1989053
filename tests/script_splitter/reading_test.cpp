// What a statement of a script is to the library: the values of its strings, its placeholders, and
// the text that is read in its place.

#include <gtest/gtest.h>

#include "placeholders.h"
#include "reading.h"
#include "splitting.h"
#include "string_values.h"

using namespace script_tests;
using namespace std::string_literals;

namespace {

struct escape_string {
    std::string text;
    std::optional<std::string> value;
};

TEST(EscapeStrings, HaveTheirValues) {
    const escape_string cases[] = {
        {"E''", ""},
        {"E'a'", "a"},
        {"E'a''b'", "a'b"},
        {"E'a\\'b\\\\'", "a'b\\"},
        {"E'\\b\\f\\n\\r\\t'", "\b\f\n\r\t"},
        {"E'\\q\\\"\\8'", "q\"8"},
        {"E'\\1\\12\\101\\1010'", "\1\nAA0"},
        {"E'\\377'", "\xff"},
        {"E'\\0'", std::nullopt},
        {"E'\\400'", std::nullopt}, // one byte, which is 0
        {"E'\\x41\\x4\\x414'", "A\4A4"},
        {"E'\\x'", "x"},
        {"E'\\xg'", "xg"},
        {"E'\\x0'", std::nullopt},
        {"E'\\u0041\\u00e9\\u20ac'", "A\xc3\xa9\xe2\x82\xac"},
        {"E'\\U0001F600'", "\xf0\x9f\x98\x80"},
        {"E'\\ud83d\\ude00'", "\xf0\x9f\x98\x80"},
        {"E'\\uD83D\\U0000DE00'", "\xf0\x9f\x98\x80"},
        {"E'\\u004'", std::nullopt},
        {"E'\\U0041'", std::nullopt},
        {"E'\\u0000'", std::nullopt},
        {"E'\\ud83d'", std::nullopt},
        {"E'\\ud83da'", std::nullopt},
        {"E'\\ud83d\\n'", std::nullopt},
        {"E'\\ud83d\\u0041'", std::nullopt},
        {"E'\\ude00'", std::nullopt},
        {"E'\\U00110000'", std::nullopt},
        {"E'a", std::nullopt},
        {"E'a\\'", std::nullopt},
        {"E'a\\", std::nullopt},
        {"E'", std::nullopt},
        {"E'a'\n'b'", "ab"},
        {"E'a' -- it's\r\n -- c\n\t'\\n'", "a\n"},
        {"E'a'\n'b", std::nullopt},
    };
    for (const escape_string &each : cases)
        EXPECT_EQ(value_of_escape_string(each.text), each.value) << each.text;
}

TEST(EscapeStrings, GoOnOverManyLines) {
    std::string text = "E'a'";
    for (int i = 0; i < 200000; ++i)
        text += "\n--\n";
    EXPECT_EQ(value_of_escape_string(text + "'b'"), "ab");
}

TEST(DollarStrings, HaveTheirValues) {
    EXPECT_EQ(value_of_dollar_string("$$$$"), "");
    EXPECT_EQ(value_of_dollar_string("$$a'b$$"), "a'b");
    EXPECT_EQ(value_of_dollar_string("$x$ $$ $x$"), " $$ ");
    EXPECT_EQ(value_of_dollar_string("$$"), std::nullopt);
    EXPECT_EQ(value_of_dollar_string("$$a"), std::nullopt);
    EXPECT_EQ(value_of_dollar_string("$x$"), std::nullopt);
    EXPECT_EQ(value_of_dollar_string("$x$a$y$"), std::nullopt);
}

TEST(Utf8, IsToldFromOtherBytes) {
    const std::pair<std::string, std::size_t> cases[] = {
        {"", std::string::npos},
        {"a\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80", std::string::npos},
        {"\x80", 0},
        {"a\xff", 1},
        {"a\xc3", 1},
        {"\xc3(", 0},
        {"\xc0\x80", 0},
        {"\xc1\xbf", 0},
        {"\xe0\x9f\xbf", 0},
        {"\xed\xa0\x80", 0},
        {"\xf0\x8f\xbf\xbf", 0},
        {"\xf4\x90\x80\x80", 0},
        {"\xf5\x80\x80\x80", 0},
        {"\xf4\x8f\xbf\xbf", std::string::npos},
        {"01234567\xe2\x82", 8},
        {"0123456789abcdef0123\xe9 ", 20},
    };
    for (const auto &[text, place] : cases)
        EXPECT_EQ(find_invalid_utf8(text), place) << text;
}

// A statement of a script, with what it points into.
class one_statement {
public:
    explicit one_statement(std::string text, backslashes meaning = backslashes::are_characters)
        : text_(std::move(text)), from_(text_), pieces_(from_, meaning), found_(pieces_.next()) {}

    const piece &operator*() const { return *found_; }

private:
    std::string text_;
    text_source from_;
    splitter pieces_;
    const piece *found_;
};

struct placeholders_case {
    placeholder_style style;
    std::string statement;
    std::string found; // style, and each as text=number
};

std::string shown_placeholders(const std::string &statement, placeholder_style style) {
    const one_statement only(statement);
    const placeholder_row *row = nullptr;
    std::string made;
    for (const placeholder &each : find_placeholders(*only, style, row)) {
        made.append(made.empty() ? "" : " ");
        made.append((*only).text.substr(each.begin, each.end - each.begin));
        made.append("=" + std::to_string(each.number));
        made.append(each.is_behind_limit ? "#" : "");
        if (!each.name.empty())
            made.append("(").append(each.name).append(")");
    }
    return (row ? std::string(row->name) : "none") + ": " + made;
}

TEST(Placeholders, AreFoundAndNumbered) {
    using enum placeholder_style;
    const placeholders_case cases[] = {
        {placeholder_style::none, "select $1, ?", "none: "},
        {dollar, "select $2, $1, $2, ?, :a", "dollar: $2=2 $1=1 $2=2"},
        {question, "select ?, $1, ? limit ?", "question: ?=1 ?=2 ?=3#"},
        {named, "select :a, :b, :a, x::int", "named: :a=1(a) :b=2(b) :a=1(a)"},
        {format, "select %s, a %s, %(b)s", "format: %s=1 %s=2"},
        {pyformat, "select %(a)s, %(b)s, %(a)s", "pyformat: %(a)s=1(a) %(b)s=2(b) %(a)s=1(a)"},
        {any, "select 1", "none: "},
        {any, "select $1, ?", "dollar: $1=1"},
        {any, "select ?, $1", "question: ?=1"},
        {any, "select :a, ?", "named: :a=1(a)"},
        {any, "select '?', :a", "named: :a=1(a)"},
        {any, "select a %s", "format: %s=1"},
        {any, "select a%s, $1", "dollar: $1=1"},
        {any, "select )%s, '1'%s, \"a\"%s, 1%s", "none: "},
        {any, "select %s, a%s, %s", "format: %s=1 %s=2"},
        {dollar, "select $99999999999999999999", "dollar: "},
        {dollar, "select $0", "dollar: $0=0"},
    };
    for (const placeholders_case &each : cases)
        EXPECT_EQ(shown_placeholders(each.statement, each.style), each.found) << each.statement;
}

TEST(Placeholders, AreWrittenInEachStyle) {
    const placeholder numbered{0, 2, false, 3, {}};
    const placeholder named{0, 2, false, 3, "name"};
    const auto written = [](const placeholder &each, placeholder_style style) {
        std::string text;
        append_placeholder(text, each, style);
        return text;
    };
    EXPECT_EQ(written(numbered, placeholder_style::dollar), "$3");
    EXPECT_EQ(written(numbered, placeholder_style::question), "?");
    EXPECT_EQ(written(numbered, placeholder_style::named), ":p3");
    EXPECT_EQ(written(numbered, placeholder_style::format), "%s");
    EXPECT_EQ(written(numbered, placeholder_style::pyformat), "%(p3)s");
    EXPECT_EQ(written(named, placeholder_style::named), ":name");
    EXPECT_EQ(written(named, placeholder_style::pyformat), "%(name)s");
    EXPECT_EQ(written(named, placeholder_style::dollar), "$3");
}

struct reading_case {
    std::string statement;
    placeholder_style style;
    std::string text;    // what is read, with ^ for the stand-in of a quote
    std::string written; // of the text, in dollar style
};

TEST(Readings, PutStandInsAndTakeThemBack) {
    using enum placeholder_style;
    const reading_case cases[] = {
        {"select 'a', b", placeholder_style::none, "select 'a', b", "select 'a', b"},
        {"select 'a''b'", placeholder_style::none, "select 'a^b'", "select 'a''b'"},
        {"select ''''", placeholder_style::none, "select '^'", "select ''''"},
        {"select E'a\\'\\n'", placeholder_style::none, "select 'a^\n'", "select 'a''\n'"},
        {"select $x$it's$x$", placeholder_style::none, "select 'it^s'", "select 'it''s'"},
        {"select 1 -- c\n, /* d */ 2", placeholder_style::none, "select 1  \n,   2",
         "select 1  \n,   2"},
        {"select 1 \\echo a\n, 2", placeholder_style::none, "select 1  \n, 2", "select 1  \n, 2"},
        {"select $1", placeholder_style::none, "select $1", "select $1"},
        {"select $2, $1", dollar, "select qp__0_(), qp__1_()", "select $2, $1"},
        {"select ?, ?", question, "select qp__0_(), qp__1_()", "select $1, $2"},
        {"select :a, :b, :a", named, "select qp__0_(), qp__1_(), qp__2_()", "select $1, $2, $1"},
        {"select qp_ + $1", dollar, "select qp_ + qp_1_0_()", "select qp_ + $1"},
        {"select qp_1, qp_2, qp_4 + $1", dollar, "select qp_1, qp_2, qp_4 + qp_3_0_()",
         "select qp_1, qp_2, qp_4 + $1"},
        {"select 1 limit $1", dollar, "select 1 limit 97320841000000", "select 1 limit $1"},
        {"select 97320841 limit $1", dollar, "select 97320841 limit 973208411000000",
         "select 97320841 limit $1"},
        {"select a %% b, '%%' where %s", format, "select a % b, '%' where qp__0_()",
         "select a % b, '%' where $1"},
        {"select a %% b, '%%'", format, "select a %% b, '%%'", "select a %% b, '%%'"},
        {"select 'a", placeholder_style::none, "select 'a", "select 'a"},
        {"select E'\\u12'", placeholder_style::none, "select E'\\u12'", "select E'\\u12'"},
    };
    for (const reading_case &each : cases) {
        const one_statement only(each.statement);
        const reading read(*only, each.style, backslashes::are_characters);
        std::string text(read.text());
        std::replace(text.begin(), text.end(), '\1', '^');
        EXPECT_EQ(text, each.text);
        std::vector<placeholder> parameters;
        EXPECT_EQ(read.written(read.text(), dollar, parameters), each.written) << each.statement;
    }
}

TEST(Readings, HaveAStandInBesideAllThatIsTaken) {
    std::string statement = "select $1";
    for (int i = 200000; i > 0; --i)
        statement.append(", qp_").append(std::to_string(i));
    const one_statement only(statement);
    const reading read(*only, placeholder_style::dollar, backslashes::are_characters);
    EXPECT_EQ(read.text().substr(0, 19), "select qp_200001_0_");
    std::vector<placeholder> parameters;
    EXPECT_EQ(read.written(read.text(), placeholder_style::dollar, parameters), statement);
}

TEST(Readings, DoublePercentsWhereTheTargetHasThem) {
    const one_statement only("select a % 2, '%' where b = $1");
    const reading read(*only, placeholder_style::dollar, backslashes::are_characters);
    std::vector<placeholder> parameters;
    EXPECT_EQ(read.written(read.text(), placeholder_style::format, parameters),
              "select a %% 2, '%%' where b = %s");
    EXPECT_EQ(parameters.size(), 1U);
}

TEST(Readings, UseAnotherQuoteWhereOneIsTaken) {
    const one_statement only("select '\1a''b'");
    const reading read(*only, placeholder_style::none, backslashes::are_characters);
    EXPECT_EQ(read.text(), "select '\1a\2b'");
    std::vector<placeholder> parameters;
    EXPECT_EQ(read.written(read.text(), placeholder_style::none, parameters), "select '\1a''b'");
}

TEST(Readings, FindPlacesInTheStatement) {
    //                        0         1         2
    //                        01234567890123456789012345678
    const one_statement only("select 'a''b', $1, c /*d*/ e");
    const reading read(*only, placeholder_style::dollar, backslashes::are_characters);
    const std::string text(read.text());
    const auto place_of = [&](const std::string &part) {
        const std::size_t at = text.find(part);
        const reading::place found = read.in_statement(at, at + part.size());
        return std::pair(found.begin, found.end);
    };
    EXPECT_EQ(place_of("select"), std::pair(std::size_t{0}, std::size_t{6}));
    EXPECT_EQ(place_of("'a\1b'"), std::pair(std::size_t{7}, std::size_t{13}));
    EXPECT_EQ(place_of("b'"), std::pair(std::size_t{7}, std::size_t{13}));
    EXPECT_EQ(place_of("qp__0_()"), std::pair(std::size_t{15}, std::size_t{17}));
    EXPECT_EQ(place_of(", c"), std::pair(std::size_t{17}, std::size_t{20}));
    EXPECT_EQ(read.in_statement(text.size() - 1, text.size()).begin, 27U);
    EXPECT_EQ(read.in_statement(text.size(), text.size()).end, 28U);
    const std::size_t call = text.find("qp__0_()");
    EXPECT_TRUE(read.is_placeholder(call, call + 8));
    EXPECT_FALSE(read.is_placeholder(call, call + 7));
    EXPECT_TRUE(read.is_in_placeholder(call + 3));
    EXPECT_FALSE(read.is_in_placeholder(call + 8));
    EXPECT_FALSE(read.is_in_placeholder(8));
}

TEST(Readings, PutTheStatementsWordsIntoMessages) {
    const one_statement only("select 'a''b' || :name");
    const reading read(*only, placeholder_style::named, backslashes::are_characters);
    EXPECT_TRUE(read.has_stand_in("near \"qp__0_\""));
    EXPECT_FALSE(read.has_stand_in("near \"a\""));
    EXPECT_EQ(read.in_message("near \"qp__0_()\" and 'a\1b'"), "near \":name\" and 'a''b'");
}

struct misread_case {
    const char *statement;
    const own_finding *what = nullptr; // NULL: all strings are read as psql does
    std::size_t begin = 0;
    backslashes plain_strings = backslashes::are_characters;
};

TEST(Readings, TellStringsThatTheLibraryWouldReadOtherwise) {
    const misread_case cases[] = {
        {"select 'a\\', 'b'", &misread_string, 7},
        {"select 'a\\' || ''", &misread_string, 7},
        {"select 'a\\'"}, // no quote comes after it
        {"select 'a\\b', 'c'"},
        {"select E'a\\\\', 'b'", &misread_string, 7},
        {"select 'a', $$b\\$$, 'c'", &misread_string, 12},
        {"select 1, 'it''s', 'a\\', 'b'", &misread_string, 19},
        {"select 'a''b', E'\\n', $$a$$"},
        {"select E'a\\';", &unended_string, 7},
        {"select E'a\\'", &unended_string, 7},
        {"select 1, E'\\u12'", &unknown_escape, 10},
        {"select E'\\0', E'\\0'", &unknown_escape, 7},
        {"select $$a", &unended_string, 7},
        {"select 'a''", &unended_string, 7},
        {"select 'a", &unended_string, 7},
        {"select 'a\\';", &unended_string, 7, backslashes::escape},
        {"select 1, U&'\\0041'", &unicode_escapes, 10},
        {"select u&\"\\0041\"", &unicode_escapes, 7},
        {"select u &'a', U & \"b\""},
    };
    for (const auto &[statement, what, begin, plain_strings] : cases) {
        const one_statement only(statement, plain_strings);
        const reading read(*only, placeholder_style::none, plain_strings);
        ASSERT_EQ(read.misread().has_value(), what != nullptr) << statement;
        if (what) {
            EXPECT_EQ(read.misread()->what->id, what->id) << statement;
            EXPECT_EQ(read.misread()->where.begin, begin) << statement;
        }
    }
}

TEST(Readings, KeepBackslashesThatEscape) {
    const one_statement only("select 'a\\'b''c'", backslashes::escape);
    const reading read(*only, placeholder_style::none, backslashes::escape);
    EXPECT_EQ(read.text(), "select 'a\\'b\1c'");
}

} // namespace
