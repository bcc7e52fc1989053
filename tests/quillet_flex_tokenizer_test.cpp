#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cctype>
#include <random>
#include <string>
#include <vector>

#include "quillet_bison_parser.h"
#include "quillet_frequent_tokens.h"
#include "quillet_parser_tools.h"
#include "quillet_scanner.h"
#include "support.h"

using namespace quillet_tests;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int identifier_code = 336;
constexpr int string_code = 337;
constexpr int integer_code = 338;
constexpr int float_code = 339;
constexpr int current_datetime_code = 341;

// A token's code, and its text if it has one.
struct token {
    int code;
    std::string text;

    token(int token_code, std::string token_text = "")
        : code(token_code), text(std::move(token_text)) {}
    bool operator==(const token &) const = default;

    friend std::ostream &operator<<(std::ostream &out, const token &shown) {
        return out << shown.code << " `" << shown.text << '`';
    }
};

token name(const std::string &text) { return {identifier_code, text}; }
token text(const std::string &text) { return {string_code, text}; }
token integer(const std::string &text) { return {integer_code, text}; }
token real(const std::string &text) { return {float_code, text}; }

bool has_text(int code) {
    return (code >= identifier_code && code <= float_code) || code == current_datetime_code;
}

// Scans a text to its end, with the scanner as the last text left it.
std::vector<token> scan_on(const std::string &input) {
    std::vector<token> tokens;
    quillet_query = _quillet_parse_data_create(input.c_str());
    while (const int code = yy_quillet_lex())
        tokens.emplace_back(code, has_text(code) ? taken(yy_quillet_lval.v_string) : "");
    _quillet_parse_data_free(quillet_query);
    quillet_query = nullptr;
    return tokens;
}

std::vector<token> scan(const std::string &input) {
    const going_on guard;
    reset_scanner();
    return scan_on(input);
}

// What scanning a text prints.
std::string printed_by(const std::string &input) {
    testing::internal::CaptureStdout();
    scan(input);
    return testing::internal::GetCapturedStdout();
}

struct word {
    const char *spelling;
    int code;
};

constexpr word keywords[] = {
    {"ALL", 258},      {"AND", 259},     {"AS", 260},      {"ASC", 261},      {"AT", 262},
    {"BETWEEN", 263},  {"BOTH", 264},    {"BY", 265},      {"CASE", 266},     {"CAST", 267},
    {"CROSS", 268},    {"DEFAULT", 269}, {"DELETE", 270},  {"DESC", 271},     {"DISTINCT", 272},
    {"ELSE", 273},     {"END", 274},     {"ESCAPE", 275},  {"FALSE", 276},    {"FROM", 277},
    {"FOR", 278},      {"FULL", 279},    {"GROUP", 280},   {"HAVING", 281},   {"ILIKE", 282},
    {"IN", 283},       {"INNER", 284},   {"INSERT", 285},  {"INTO", 286},     {"IS", 287},
    {"ISNULL", 288},   {"JOIN", 289},    {"LEADING", 290}, {"LEFT", 291},     {"LIKE", 292},
    {"LIMIT", 293},    {"NATURAL", 294}, {"NOT", 295},     {"NOTNULL", 296},  {"NULL", 297},
    {"OFFSET", 298},   {"ON", 299},      {"OR", 300},      {"ORDER", 301},    {"OUTER", 302},
    {"OVERLAPS", 303}, {"PLACING", 304}, {"RIGHT", 305},   {"SELECT", 306},   {"SET", 307},
    {"SIMILAR", 308},  {"THEN", 309},    {"TO", 310},      {"TRAILING", 311}, {"TRUE", 312},
    {"UNKNOW", 313},   {"UPDATE", 314},  {"USING", 315},   {"WHEN", 316},     {"WHERE", 317},
    {"VALUES", 318},   {"ZONE", 319},
};

constexpr const char *current_datetimes[] = {"CURRENT_DATE", "CURRENT_TIME", "CURRENT_TIMESTAMP",
                                             "LOCALTIME", "LOCALTIMESTAMP"};

// A word in capitals, in small letters and in a mix of both.
std::vector<std::string> letter_cases(const std::string &word) {
    std::vector<std::string> cases = {word, word, word};
    for (std::size_t i = 0; i < word.size(); ++i) {
        const char small = static_cast<char>(std::tolower(static_cast<unsigned char>(word[i])));
        cases[1][i] = small;
        if (i % 2)
            cases[2][i] = small;
    }
    return cases;
}

TEST(Scanner, Keywords) {
    for (const auto &[spelling, code] : keywords)
        for (const std::string &word : letter_cases(spelling))
            EXPECT_THAT(scan(word), ElementsAre(token(code))) << word;
}

TEST(Scanner, KeywordsThatGoOnAreIdentifiers) {
    for (const auto &[spelling, code] : keywords) {
        const std::string keyword = spelling;
        for (const std::string &word :
             {keyword + '_', keyword + '1', keyword + '$', '_' + keyword, keyword + "qq"})
            EXPECT_THAT(scan(word), ElementsAre(name(word)));
        EXPECT_THAT(scan('"' + keyword + '"'), ElementsAre(name('"' + keyword + '"')));
    }
    EXPECT_THAT(scan("selectx"), ElementsAre(name("selectx")));
    EXPECT_THAT(scan("UNKNOWN"), ElementsAre(name("UNKNOWN")));
    EXPECT_THAT(scan("isnul notnul asce"),
                ElementsAre(name("isnul"), name("notnul"), name("asce")));
}

TEST(Scanner, CurrentDatetimesKeepTheirText) {
    for (const char *spelling : current_datetimes)
        for (const std::string &word : letter_cases(spelling)) {
            EXPECT_THAT(scan(word), ElementsAre(token(current_datetime_code, word)));
            EXPECT_THAT(scan(word + "s"), ElementsAre(name(word + "s")));
        }
}

constexpr word operators[] = {
    {"!~~*", 320}, {"!~~", 321}, {"!~*", 322}, {"!~", 323}, {"~*", 324}, {"~~*", 282},
    {"~~", 292},   {"<=", 326},  {">=", 327},  {"<>", 328}, {"!=", 328}, {"|/", 329},
    {"||/", 330},  {"!!", 331},  {"<<", 332},  {">>", 333}, {"||", 334}, {"::", 349},
};

constexpr word single_characters[] = {
    {"#", 35}, {"~", 126}, {"@", 64}, {"&", 38}, {"|", 124}, {"!", 33}, {"*", 42},
    {"(", 40}, {")", 41},  {".", 46}, {",", 44}, {"^", 94},  {"/", 47}, {"%", 37},
    {"+", 43}, {"-", 45},  {">", 62}, {"<", 60}, {"=", 61},  {";", 59},
};

TEST(Scanner, Operators) {
    for (const auto &[spelling, code] : operators) {
        const std::string written = spelling;
        EXPECT_THAT(scan(written), ElementsAre(token(code))) << written;
        EXPECT_THAT(scan("a" + written + "b"), ElementsAre(name("a"), token(code), name("b")))
            << written;
    }
    for (const auto &[spelling, code] : single_characters) {
        const std::string written = spelling;
        EXPECT_THAT(scan(written), ElementsAre(token(code))) << written;
        EXPECT_THAT(scan("a " + written + " b"), ElementsAre(name("a"), token(code), name("b")))
            << written;
    }
}

struct lexeme_case {
    const char *input;
    std::vector<token> tokens;
};

TEST(Scanner, LongestMatch) {
    const lexeme_case cases[] = {
        {"", {}},
        {" \t\r\n ", {}},
        // operators
        {"|||", {334, '|'}},
        {"||/|", {330, '|'}},
        {"||||/", {334, 330}},
        {"<=>", {326, '>'}},
        {"<<=", {332, '='}},
        {"<>=", {328, '='}},
        {">>>", {333, '>'}},
        {"!~~*~", {320, '~'}},
        {"!~~~", {321, '~'}},
        {"!!!", {331, '!'}},
        {"!!=", {331, '='}},
        {"!==", {328, '='}},
        {"~~~*", {292, 324}},
        {"~~~~", {292, 292}},
        {"==", {'=', '='}},
        {"a- -b", {name("a"), '-', '-', name("b")}},
        {"*/", {'*', '/'}},
        {"/ *", {'/', '*'}},
        // identifiers
        {"a1_$ _ _1 A$", {name("a1_$"), name("_"), name("_1"), name("A$")}},
        {"SELECT_", {name("SELECT_")}},
        {"t.a", {name("t"), '.', name("a")}},
        {"\"a b\"", {name("\"a b\"")}},
        {"\"SELECT\"", {name("\"SELECT\"")}},
        {"\"a\nb\"", {name("\"a\nb\"")}},
        {"\"a'b\\\"", {name("\"a'b\\\"")}},
        {"\"\xc3\xa9?\"", {name("\"\xc3\xa9?\"")}},
        {"\"a\"\"b\"", {name("\"a\""), name("\"b\"")}},
        // strings
        {"''", {text("''")}},
        {"'abc'", {text("'abc'")}},
        {"'a\\'b'", {text("'a\\'b'")}},
        {"'a''b'", {text("'a'"), text("'b'")}},
        {"'a\nb'", {text("'a\nb'")}},
        {"'a\\\\b'", {text("'a\\\\b'")}},
        {"'a\\'", {text("'a\\'")}}, // the backslash is then any character
        {"'a\\' + 1", {text("'a\\'"), '+', integer("1")}},
        {"'--' '/*' '\"'", {text("'--'"), text("'/*'"), text("'\"'")}},
        {"'\xff?[]'", {text("'\xff?[]'")}},
        {"a'b'c", {name("a"), text("'b'"), name("c")}},
        // numbers
        {"0", {integer("0")}},
        {"007", {integer("007")}},
        {"12345678901234567890", {integer("12345678901234567890")}},
        {"1.", {real("1.")}},
        {"1.5", {real("1.5")}},
        {".5", {real(".5")}},
        {"1e5", {real("1e5")}},
        {"1E5", {real("1E5")}},
        {"1e+5", {real("1e+5")}},
        {"1e-05", {real("1e-05")}},
        {"1.e5", {real("1.e5")}},
        {"1.5E-3", {real("1.5E-3")}},
        {".5e2", {real(".5e2")}},
        {"1.2.3", {real("1.2"), real(".3")}},
        {"1..2", {real("1."), real(".2")}},
        {"1e", {integer("1"), name("e")}},
        {"1e+", {integer("1"), name("e"), '+'}},
        {"1e+x", {integer("1"), name("e"), '+', name("x")}},
        {"1.5e", {real("1.5"), name("e")}},
        {"1.e", {real("1."), name("e")}},
        {".e5", {'.', name("e5")}},
        {"..", {'.', '.'}},
        {"1e5e5", {real("1e5"), name("e5")}},
        {"9_", {integer("9"), name("_")}},
        {"1a", {integer("1"), name("a")}},
        {"-1", {'-', integer("1")}},
        {"+.5", {'+', real(".5")}},
        // no blanks between tokens
        {"a>=1", {name("a"), 327, integer("1")}},
        {"x::int", {name("x"), 349, name("int")}},
        {"SELECT*FROM t;", {306, '*', 277, name("t"), ';'}},
        {"1;2", {integer("1"), ';', integer("2")}},
    };
    for (const auto &[input, tokens] : cases)
        EXPECT_EQ(scan(input), tokens) << input;
}

TEST(Scanner, Comments) {
    const lexeme_case cases[] = {
        {"a--b\nc", {name("a"), name("c")}},
        {"--", {}},
        {"-- no end", {}},
        {"a -- ' \" /* ? \x80 \n b", {name("a"), name("b")}},
        {"a -- b -- c\nd", {name("a"), name("d")}},
        {"--\n--\na", {name("a")}},
        {"a---b\nc", {name("a"), name("c")}},
        {"a/**/b", {name("a"), name("b")}},
        {"a/***/b", {name("a"), name("b")}},
        {"a/* ' \" -- ? \x80 */b", {name("a"), name("b")}},
        {"/* /* */ */", {}},
        {"/* /* */ */a", {name("a")}},
        {"a/*/*/**/*/*/b", {name("a"), name("b")}},
        {"/* */ */", {'*', '/'}},
        {"/*/ a */ b", {name("b")}},
        {"/* a /* b */ c", {}},
        {"/* -- */ a", {name("a")}},
        {"1/*c*/.5", {integer("1"), real(".5")}},
        {"a /*", {name("a")}},
    };
    for (const auto &[input, tokens] : cases)
        EXPECT_EQ(scan(input), tokens) << input;
}

TEST(Scanner, NewlinesInBlockCommentsAreEchoed) {
    EXPECT_EQ(printed_by("a /* b */ c"), "");
    EXPECT_EQ(printed_by("a /*\n*/ c"), "\n");
    EXPECT_EQ(printed_by("/* 1\n2 /* 3\n\n4 */ 5\r\n */"), "\n\n\n\n");
    EXPECT_EQ(printed_by("a\n\nb -- c\nd 'e\nf' \"g\nh\""), "");
    EXPECT_EQ(printed_by("/*\n"), "\n");
}

TEST(Scanner, CommentDepthIsCounted) {
    const going_on guard;
    reset_scanner();
    EXPECT_THAT(scan_on("a /* b /* c"), ElementsAre(name("a")));
    EXPECT_EQ(quillet_comment_count, 2);
    EXPECT_THAT(scan_on("d */ e"), IsEmpty());
    EXPECT_EQ(quillet_comment_count, 1);
    EXPECT_THAT(scan_on("f */ g"), ElementsAre(name("g")));
    EXPECT_EQ(quillet_comment_count, 0);
    EXPECT_THAT(scan_on("h"), ElementsAre(name("h")));
}

TEST(Scanner, ALineCommentGoesOnInTheNextText) {
    const going_on guard;
    reset_scanner();
    EXPECT_THAT(scan_on("a -- b"), ElementsAre(name("a")));
    EXPECT_THAT(scan_on("c\nd"), ElementsAre(name("d")));
}

TEST(Scanner, ATextEndsATokenAndAnUnfinishedOne) {
    const going_on guard;
    reset_scanner();
    EXPECT_THAT(scan_on("ab"), ElementsAre(name("ab")));
    EXPECT_THAT(scan_on("cd"), ElementsAre(name("cd")));
    EXPECT_THAT(scan_on("1"), ElementsAre(integer("1")));
    EXPECT_THAT(scan_on(".5"), ElementsAre(real(".5")));
    EXPECT_THAT(scan_on("|"), ElementsAre(token('|')));
    EXPECT_THAT(scan_on("/"), ElementsAre(token('/')));
}

// The buffer's size, the size of a chunk, and their surroundings.
constexpr std::size_t sizes[] = {8190,  8191,  8192,  8193,  16382, 16383,  16384,
                                 16385, 16386, 24576, 32768, 65536, 100'000};

TEST(Scanner, LexemesOfAnyLength) {
    for (const std::size_t size : sizes) {
        SCOPED_TRACE(size);
        const std::string long_name(size, 'n');
        const std::string quoted = '"' + std::string(size - 2, 'q') + '"';
        const std::string long_text = '\'' + std::string(size - 2, 's') + '\'';
        const std::string digits(size, '7');
        const std::string fraction = '.' + std::string(size - 1, '7');
        EXPECT_EQ(scan(long_name), std::vector{name(long_name)});
        EXPECT_EQ(scan("a " + long_name + " b"),
                  (std::vector{name("a"), name(long_name), name("b")}));
        EXPECT_EQ(scan(quoted + long_text), (std::vector{name(quoted), text(long_text)}));
        EXPECT_EQ(scan(digits + '+' + fraction),
                  (std::vector{integer(digits), token('+'), real(fraction)}));
        EXPECT_EQ(scan(std::string(size, ' ') + "a"), std::vector{name("a")});
        EXPECT_EQ(scan("/*" + std::string(size, 'c') + "*/a"), std::vector{name("a")});
        EXPECT_EQ(scan("--" + std::string(size, 'c') + "\na"), std::vector{name("a")});
    }
}

// A token that lies across the end of a chunk is one token.
TEST(Scanner, TokensAcrossChunks) {
    const std::string tail = "SELECT ||/ 1.5e-3 'a\\'b' !~~* \"c d\" -- e\n/* /* f */ */ g";
    const std::vector<token> tokens = {
        306, 330, real("1.5e-3"), text("'a\\'b'"), 320, name("\"c d\""), name("g")};
    for (const std::size_t end : {8192U, 16384U, 24576U})
        for (std::size_t before = 0; before <= tail.size(); ++before)
            EXPECT_EQ(scan(std::string(end - before, ' ') + tail), tokens) << end << ' ' << before;
}

TEST(Scanner, ManyTokens) {
    std::string input;
    std::vector<token> tokens;
    for (int i = 0; i < 20'000; ++i) {
        input += std::to_string(i) + ",";
        tokens.push_back(integer(std::to_string(i)));
        tokens.emplace_back(',');
    }
    EXPECT_EQ(scan(input), tokens);
}

// A token where it stands in a statement.
struct placed_token {
    token found;
    std::ptrdiff_t begin;
    std::ptrdiff_t end;
    bool operator==(const placed_token &) const = default;
};

// What a scanner says of a statement, up to its end or to a fault.
struct scanned {
    std::vector<placed_token> tokens;
    quillet_scan_fault fault = QUILLET_SCAN_NO_FAULT;
    std::ptrdiff_t fault_begin = 0;
    std::ptrdiff_t fault_end = 0;
    bool has_trace = false;
    bool has_open_comment = false;
    bool operator==(const scanned &) const = default;
};

scanned scan_all(std::string statement, auto next) {
    const std::size_t size = statement.size();
    statement.append(QUILLET_SCAN_WORD, '\0');
    quillet::tree_memory memory; // without a tree a text is on its own
    quillet_scan_room room;
    quillet_scan scan{};
    scan.tree = &memory;
    scan.text = scan.at = statement.data();
    scan.end = scan.text + size;
    scan.room = &room;
    scanned all;
    int code = 0;
    do {
        quillet_value value{};
        code = next(&value, &scan);
        const bool is_token = code != TOKEN_YY_QUILLET_QUERY_error;
        all.tokens.push_back({{code, has_text(code) ? taken(value.v_string) : ""},
                              is_token ? scan.token_begin - scan.text : 0,
                              is_token ? scan.token_end - scan.text : 0});
    } while (code > 0 && code != TOKEN_YY_QUILLET_QUERY_error);
    all.fault = scan.fault;
    if (scan.fault != QUILLET_SCAN_NO_FAULT) {
        all.fault_begin = scan.fault_begin - scan.text;
        all.fault_end = scan.fault_end - scan.text;
    }
    all.has_trace = scan.has_trace != 0;
    all.has_open_comment = scan.has_open_comment != 0;
    return all;
}

// Frequent tokens are those of the rules.
TEST(ScannerInPlace, GivesTheTokensOfTheRules) {
    const std::vector<std::string> parts = {"select",
                                            "SeLeCT",
                                            "a",
                                            "_a1$",
                                            "$",
                                            "current_date",
                                            "localtimestamp",
                                            "0",
                                            "12",
                                            "1.",
                                            "1.5",
                                            ".",
                                            ".5",
                                            "e",
                                            "e5",
                                            "E+",
                                            "'",
                                            "''",
                                            "\\'",
                                            "\\",
                                            "\"",
                                            "\"\"",
                                            "--",
                                            "\n",
                                            "/*",
                                            "*/",
                                            "*",
                                            "-",
                                            "/",
                                            "(",
                                            ")",
                                            ",",
                                            ";",
                                            "=",
                                            "<",
                                            ">",
                                            "!",
                                            "~",
                                            "|",
                                            "::",
                                            ":",
                                            "#",
                                            "@",
                                            "&",
                                            "^",
                                            "%",
                                            "+",
                                            " ",
                                            "\t\r ",
                                            " \n",
                                            "?",
                                            "\xc3\xa9",
                                            "x'",
                                            "'b c'",
                                            "\"d e\"",
                                            "order",
                                            "by7",
                                            "9z",
                                            "\v",
                                            "is"};
    std::minstd_rand random(7);
    int without_fault = 0;
    for (int i = 0; i < 50'000; ++i) {
        std::string statement;
        for (auto count = random() % 9; count > 0; --count)
            statement += parts[random() % parts.size()];
        const scanned by_rules = scan_all(statement, _quillet_scan_by_rules);
        ASSERT_EQ(scan_all(statement, quillet::scan_in_place), by_rules) << statement;
        without_fault += by_rules.fault == QUILLET_SCAN_NO_FAULT ? 1 : 0;
    }
    EXPECT_GT(without_fault, 10'000);
}

TEST(ScannerInPlace, GivesTheTokensOfTheScannerOfTheProcess) {
    const std::string statement =
        "SELECT ||/ 1.5e-3 'a\\'b' !~~* \"c d\" -- e\n/* /* f */ */ g.h, 1";
    std::vector<token> tokens;
    for (const placed_token &each : scan_all(statement, quillet::scan_in_place).tokens)
        if (each.found.code)
            tokens.push_back(each.found);
    EXPECT_EQ(tokens, scan(statement));
}

// Scans with standard output where the test sees it. The status 1 tells that nothing ended the
// process.
[[noreturn]] void scan_to_the_end(const std::string &input) {
    reset_scanner();
    dup2(STDERR_FILENO, STDOUT_FILENO);
    scan_on(input);
    std::_Exit(EXIT_FAILURE);
}

void expect_unknown(const std::string &input) {
    EXPECT_EXIT(scan_to_the_end(input), testing::ExitedWithCode(0),
                testing::StrEq("Unknow character\n"))
        << input;
}

TEST(ScannerDeathTest, UnknownCharactersEndTheProcess) {
    for (const char *input : {"?", "[", "]", "`", "{", "}", "\\", "$", ":", "\"", "'", "\x01",
                              "\x0b", "\x0c", "\x1f", "\x7f", "\x80", "\xc3\xa9", "\xff"})
        expect_unknown(input);
}

TEST(ScannerDeathTest, UnknownCharactersBehindTokens) {
    for (const char *input : {"$a", "\"\"", "'abc", "'", "\"abc", "a ? b", "a:b", ":::", "'a''b",
                              "select 1 \\", "1$", "/* */ ?", "-- \n ?", "\"a\"\"", "'''''"})
        expect_unknown(input);
}

TEST(ScannerDeathTest, AnUnfinishedLexemeEndsTheProcessAtItsQuoteWhateverItsLength) {
    for (const std::size_t size : {100U, 9000U, 20'000U}) {
        expect_unknown("a '" + std::string(size, 's'));
        expect_unknown("a \"" + std::string(size, 's'));
    }
}

} // namespace
