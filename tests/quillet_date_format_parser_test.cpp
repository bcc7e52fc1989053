// Patterns of TO_CHAR: their words, prefixes, suffixes, quoted text and other characters.
#include "quillet_date_format_parser.h"
#include "quillet_date_format_scanner.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "quillet_date_format_words.h"

namespace {

// A word as a test tells it; no string is "none".
struct word {
    int format = 0;
    int prefix = 0;
    int suffix = 0;
    std::string string = "none";

    bool operator==(const word &) const = default;

    friend std::ostream &operator<<(std::ostream &out, const word &shown) {
        return out << '{' << shown.prefix << ' ' << shown.format << ' ' << shown.suffix << ' '
                   << shown.string << '}';
    }
};

using words = std::vector<word>;

word text(std::string string) { return {DATE_FORMAT_STRING, 0, 0, std::move(string)}; }

constexpr int fm = DATE_FORMAT_PREFIX_FM;
constexpr int fx = DATE_FORMAT_PREFIX_FX;

struct release {
    void operator()(date_format_node *list) const { quillet_date_format_node_free(list); }
};

words parse(const std::string &pattern) {
    const std::unique_ptr<date_format_node, release> list(
        quillet_date_format_parse(pattern.c_str()));
    words found;
    for (const date_format_node *node = list.get(); node; node = node->next)
        found.push_back(
            {node->format, node->prefix, node->suffix, node->string ? node->string : "none"});
    return found;
}

struct spelling {
    const char *text;
    int code;
};

constexpr spelling spellings[] = {
    {"HH", 1001},    {"HH12", 1001},  {"HH24", 1002}, {"MI", 1003},    {"SS", 1004},
    {"MS", 1005},    {"US", 1006},    {"SSSS", 1007}, {"AM", 1008},    {"PM", 1008},
    {"A.M.", 1008},  {"P.M.", 1008},  {"am", 1010},   {"pm", 1010},    {"a.m.", 1010},
    {"p.m.", 1010},  {"Y,YYY", 1012}, {"YYYY", 1013}, {"YYY", 1014},   {"YY", 1015},
    {"Y", 1016},     {"IYYY", 1017},  {"IYY", 1018},  {"IY", 1019},    {"I", 1020},
    {"AD", 1021},    {"BC", 1021},    {"A.D.", 1021}, {"B.C.", 1021},  {"ad", 1023},
    {"bc", 1023},    {"a.d.", 1023},  {"b.c.", 1023}, {"MONTH", 1025}, {"Month", 1026},
    {"month", 1027}, {"MON", 1028},   {"Mon", 1029},  {"mon", 1030},   {"MM", 1031},
    {"DAY", 1032},   {"Day", 1033},   {"day", 1034},  {"DY", 1035},    {"Dy", 1036},
    {"dy", 1037},    {"DDD", 1038},   {"DD", 1039},   {"D", 1040},     {"W", 1041},
    {"WW", 1042},    {"IW", 1043},    {"CC", 1044},   {"J", 1045},     {"Q", 1046},
    {"RM", 1047},    {"rm", 1048},    {"TZ", 1049},   {"tz", 1050},
};

TEST(DateFormatCodes, AreFixed) {
    const int codes[] = {
        DATE_FORMAT_STRING,
        DATE_FORMAT_HH,
        DATE_FORMAT_HH24,
        DATE_FORMAT_MI,
        DATE_FORMAT_SS,
        DATE_FORMAT_MS,
        DATE_FORMAT_US,
        DATE_FORMAT_SSSS,
        DATE_FORMAT_AM_UPPER,
        DATE_FORMAT_AM_LOWER,
        DATE_FORMAT_Y_YYY,
        DATE_FORMAT_YYYY,
        DATE_FORMAT_YYY,
        DATE_FORMAT_YY,
        DATE_FORMAT_Y,
        DATE_FORMAT_IYYY,
        DATE_FORMAT_IYY,
        DATE_FORMAT_IY,
        DATE_FORMAT_I,
        DATE_FORMAT_AD_UPPER,
        DATE_FORMAT_AD_LOWER,
        DATE_FORMAT_MONTH_UPPER,
        DATE_FORMAT_MONTH_CAPITAL,
        DATE_FORMAT_MONTH_LOWER,
        DATE_FORMAT_MON_UPPER,
        DATE_FORMAT_MON_CAPITAL,
        DATE_FORMAT_MON_LOWER,
        DATE_FORMAT_MM,
        DATE_FORMAT_DAY_UPPER,
        DATE_FORMAT_DAY_CAPITAL,
        DATE_FORMAT_DAY_LOWER,
        DATE_FORMAT_DY_UPPER,
        DATE_FORMAT_DY_CAPITAL,
        DATE_FORMAT_DY_LOWER,
        DATE_FORMAT_DDD,
        DATE_FORMAT_DD,
        DATE_FORMAT_D,
        DATE_FORMAT_W,
        DATE_FORMAT_WW,
        DATE_FORMAT_IW,
        DATE_FORMAT_CC,
        DATE_FORMAT_J,
        DATE_FORMAT_Q,
        DATE_FORMAT_RM_UPPER,
        DATE_FORMAT_RM_LOWER,
        DATE_FORMAT_TZ_UPPER,
        DATE_FORMAT_TZ_LOWER,
        DATE_FORMAT_PREFIX_FM,
        DATE_FORMAT_PREFIX_FX,
        DATE_FORMAT_SUFFIX_TH_UPPER,
        DATE_FORMAT_SUFFIX_TH_LOWER,
        DATE_FORMAT_SUFFIX_SP,
    };
    // PM shares the code of AM, and BC that of AD.
    const int expected[] = {1000, 1001, 1002, 1003, 1004, 1005, 1006, 1007, 1008, 1010, 1012,
                            1013, 1014, 1015, 1016, 1017, 1018, 1019, 1020, 1021, 1023, 1025,
                            1026, 1027, 1028, 1029, 1030, 1031, 1032, 1033, 1034, 1035, 1036,
                            1037, 1038, 1039, 1040, 1041, 1042, 1043, 1044, 1045, 1046, 1047,
                            1048, 1049, 1050, 1101, 1102, 1201, 1202, 1203};
    EXPECT_EQ(std::vector<int>(std::begin(codes), std::end(codes)),
              std::vector<int>(std::begin(expected), std::end(expected)));
}

constexpr spelling affixes[] = {
    {"FM", 1101}, {"FX", 1102}, {"TH", 1201}, {"th", 1202}, {"SP", 1203},
};

std::vector<spelling> words_and_affixes() {
    std::vector<spelling> all(std::begin(spellings), std::end(spellings));
    all.insert(all.end(), std::begin(affixes), std::end(affixes));
    return all;
}

// What the list of words finds: a code and its spelling.
std::pair<int, std::string> longest_word(const std::string &pattern) {
    std::size_t length = 0;
    const int code = _quillet_date_format_word(pattern.c_str(), &length);
    return {code, pattern.substr(0, length)};
}

TEST(DateFormatWords, HaveTheSpellingsOfTheTable) {
    const std::vector<spelling> all = words_and_affixes();
    for (const auto &[spelled, code] : all)
        EXPECT_EQ(longest_word(spelled), (std::pair<int, std::string>(code, spelled)));
    const std::vector<std::string> listed = {
#define FORMAT(name, code, plain, with_fm, ...) __VA_ARGS__ __VA_OPT__(, )
#define AFFIX(name, code, spelling) spelling,
#include "quillet_date_formats.def"
    };
    EXPECT_EQ(listed.size(), all.size());
}

TEST(DateFormatWords, AreFoundByTheLongestSpelling) {
    const std::vector<spelling> all = words_and_affixes();
    for (const spelling &first : all)
        for (const spelling &second : all) {
            const std::string pattern = std::string(first.text) + second.text;
            std::pair<int, std::string> expected;
            for (const auto &[spelled, code] : all)
                if (pattern.starts_with(spelled) && std::strlen(spelled) > expected.second.size())
                    expected = {code, spelled};
            EXPECT_EQ(longest_word(pattern), expected) << pattern;
        }
}

TEST(DateFormatWords, NeedTheWholeSpelling) {
    for (const char *pattern : {"", "H", "h", "A", "A.", "A.M", "Mo", "hh", "Hh", "1", " HH", "-",
                                "\"HH", ",YYY", "\xc3\xa9", "\xff"})
        EXPECT_EQ(longest_word(pattern), (std::pair<int, std::string>())) << pattern;
}

TEST(DateFormatParser, TakesEverySpellingAsOneWord) {
    for (const auto &[spelled, code] : spellings)
        EXPECT_EQ(parse(spelled), (words{{code}})) << spelled;
}

TEST(DateFormatParser, PutsAPrefixToItsWord) {
    for (const auto &[spelled, code] : spellings) {
        EXPECT_EQ(parse(std::string("FM") + spelled), (words{{code, fm}})) << spelled;
        EXPECT_EQ(parse(std::string("FX") + spelled), (words{{code, fx}})) << spelled;
    }
}

TEST(DateFormatParser, PutsASuffixToItsWord) {
    constexpr spelling suffixes[] = {{"TH", 1201}, {"th", 1202}, {"SP", 1203}};
    for (const auto &[spelled, code] : spellings)
        for (const auto &[suffix, suffix_code] : suffixes) {
            if (const std::string joined = std::string(spelled) + suffix;
                joined == "MONTH" || joined == "Month" || joined == "month")
                continue; // a longer word
            EXPECT_EQ(parse(std::string(spelled) + suffix), (words{{code, 0, suffix_code}}))
                << spelled << suffix;
            EXPECT_EQ(parse(std::string("FM") + spelled + suffix), (words{{code, fm, suffix_code}}))
                << spelled << suffix;
        }
}

TEST(DateFormatParser, SeparatesEveryPairOfWordsAtABlank) {
    for (const auto &[first, first_code] : spellings)
        for (const auto &[second, second_code] : spellings)
            EXPECT_EQ(parse(std::string(first) + ' ' + second),
                      (words{{first_code}, {' '}, {second_code}}))
                << first << ' ' << second;
}

TEST(DateFormatParser, TakesAnyOtherCharacterAsItself) {
    const std::string in_words = "DIJQWY"; // words of one letter
    for (int code = 1; code < 256; ++code) {
        const char character = static_cast<char>(code);
        if (character == '\n' || in_words.find(character) != std::string::npos)
            continue;
        const int expected = code < 128 ? code : code - 256;
        EXPECT_EQ(parse(std::string(1, character)), (words{{expected}})) << code;
    }
}

struct pattern_case {
    const char *pattern;
    words expected;
};

void check(const std::vector<pattern_case> &cases) {
    for (const auto &[pattern, expected] : cases)
        EXPECT_EQ(parse(pattern), expected) << pattern;
}

TEST(DateFormatParser, TakesTheLongestWord) {
    check({
        {"HH24", {{1002}}},
        {"HH2", {{1001}, {'2'}}},
        {"HH1", {{1001}, {'1'}}},
        {"HH12HH24HH", {{1001}, {1002}, {1001}}},
        {"SSSS", {{1007}}},
        {"SSS", {{1004}, {'S'}}},
        {"SSSSSS", {{1007}, {1004}}},
        {"Monthly", {{1026}, {'l'}, {'y'}}},
        {"Mont", {{1029}, {'t'}}},
        {"MONT", {{1028}, {'T'}}},
        {"monT", {{1030}, {'T'}}},
        {"DDDD", {{1038}, {1040}}},
        {"DDDDDD", {{1038}, {1038}}},
        {"Days", {{1033}, {'s'}}},
        {"Da", {{1040}, {'a'}}},
        {"DA", {{1040}, {'A'}}},
        {"IYYYY", {{1017}, {1016}}},
        {"IIYIYY", {{1020}, {1019}, {1018}}},
        {"YYYYMM", {{1013}, {1031}}},
        {"YYYYYYYY", {{1013}, {1013}}},
        {"YYYYY", {{1013}, {1016}}},
        {"Y,YYY", {{1012}}},
        {"Y,YY", {{1016}, {','}, {1015}}},
        {"Y,YYYY", {{1012}, {1016}}},
        {"YY,YYY", {{1015}, {','}, {1014}}},
        {"WWW", {{1042}, {1041}}},
        {"IWW", {{1043}, {1041}}},
        {"A.M", {{'A'}, {'.'}, {'M'}}},
        {"A.M.D.", {{1008}, {1040}, {'.'}}},
        {"a.d", {{'a'}, {'.'}, {'d'}}},
        {"AMPM", {{1008}, {1008}}},
        {"ADBC", {{1021}, {1021}}},
        {"TZTH", {{1049, 0, 1201}}},
        {"MIMSUS", {{1003}, {1005}, {1006}}},
        {"MMMI", {{1031}, {1003}}},
        {"CCQJ", {{1044}, {1046}, {1045}}},
    });
}

TEST(DateFormatParser, MindsLetterCase) {
    check({
        {"hh", {{'h'}, {'h'}}},
        {"Hh", {{'H'}, {'h'}}},
        {"Mm", {{'M'}, {'m'}}},
        {"mI", {{'m'}, {1020}}},
        {"yyyy", {{'y'}, {'y'}, {'y'}, {'y'}}},
        {"Am", {{'A'}, {'m'}}},
        {"aM", {{'a'}, {'M'}}},
        {"Ad", {{'A'}, {'d'}}},
        {"MOn", {{'M'}, {'O'}, {'n'}}},
        {"MONth", {{1028, 0, 1202}}},
        {"dD", {{'d'}, {1040}}},
        {"dY", {{'d'}, {1016}}},
        {"Rm", {{'R'}, {'m'}}},
        {"Tz", {{'T'}, {'z'}}},
        {"fm", {{'f'}, {'m'}}},
        {"Fm", {{'F'}, {'m'}}},
        {"fx", {{'f'}, {'x'}}},
        {"Th", {{'T'}, {'h'}}},
        {"tH", {{'t'}, {'H'}}},
        {"sp", {{'s'}, {'p'}}},
        {"DSp", {{1040}, {'S'}, {'p'}}},
    });
}

TEST(DateFormatParser, KnowsQuotedText) {
    check({
        {"\"Week\" IW", {text("Week"), {' '}, {1043}}},
        {"\"\"", {text("")}},
        {"\"YYYY FM th\"", {text("YYYY FM th")}},
        {"\"a\"\"b\"", {text("a"), text("b")}},
        {"DD\"of\"MM", {{1039}, text("of"), {1031}}},
        {"\"a\\\"b", {text("a\\"), {'b'}}},
        {"\\\"", {{'"'}}},
        {"\\\"YYYY\"", {{'"'}, {1013}, {'"'}}},
        {"\\\"a\\\"", {{'"'}, {'a'}, {'"'}}},
        {"\\\\\"a\"", {{'\\'}, {'"'}, {'a'}, {'"'}}},
        {"\\a", {{'\\'}, {'a'}}},
        {"\\", {{'\\'}}},
        {"\"", {{'"'}}},
        {"\"YYYY", {{'"'}, {1013}}},
        {"\"a\" \"DD", {text("a"), {' '}, {'"'}, {1039}}},
        {"\"it's 100%\"", {text("it's 100%")}},
        {"\"two\nlines\"", {text("two\nlines")}},
    });
}

TEST(DateFormatParser, KeepsAPrefixThatHasNoWordBehindIt) {
    check({
        {"FM", {{0, fm}}},
        {"FX", {{0, fx}}},
        {"FMFM", {{0, fm}, {0, fm}}},
        {"FMFMDD", {{0, fm}, {1039, fm}}},
        {"FMFXDD", {{0, fm}, {1039, fx}}},
        {"FXFMDD", {{0, fx}, {1039, fm}}},
        {"DDFM", {{1039}, {0, fm}}},
        {"FM\"x\"", {{0, fm}, text("x")}},
        {"FM\"x\"DD", {{0, fm}, text("x"), {1039}}},
        {"FMDDMM", {{1039, fm}, {1031}}},
        {"FM-DD", {{'-', fm}, {1039}}},
        {"FM DD", {{' ', fm}, {1039}}},
        {"FM\\\"DD", {{'"', fm}, {1039}}},
        {"FMDDFMMM", {{1039, fm}, {1031, fm}}},
        {"FFM", {{'F'}, {0, fm}}},
        {"FMI", {{1020, fm}}},
        {"FMMI", {{1003, fm}}},
    });
}

TEST(DateFormatParser, PutsASuffixToWhateverStandsBeforeIt) {
    check({
        {"th", {}},
        {"THSPth", {}},
        {"thDD", {{1039}}},
        {"Dth", {{1040, 0, 1202}}},
        {"DDth", {{1039, 0, 1202}}},
        {"DDTHth", {{1039, 0, 1202}}},
        {"DDthTH", {{1039, 0, 1201}}},
        {"DDthSP", {{1039, 0, 1203}}},
        {"-th", {{'-', 0, 1202}}},
        {"DD th", {{1039}, {' ', 0, 1202}}},
        {"\"x\"th", {{1000, 0, 1202, "x"}}},
        {"FMth", {{0, fm, 1202}}},
        {"FMthDD", {{1039, fm, 1202}}},
        {"FMDDth", {{1039, fm, 1202}}},
        {"DDthMM", {{1039, 0, 1202}, {1031}}},
        {"Month", {{1026}}},
        {"MonTH", {{1029, 0, 1201}}},
    });
}

TEST(DateFormatParser, TakesWholePatternsApart) {
    check({
        {"", {}},
        {"YYYY-MM-DD", {{1013}, {'-'}, {1031}, {'-'}, {1039}}},
        {"HH12:MI:SS am", {{1001}, {':'}, {1003}, {':'}, {1004}, {' '}, {1010}}},
        {"FMDay, DDth Month YYYY",
         {{1033, fm}, {','}, {' '}, {1039, 0, 1202}, {' '}, {1026}, {' '}, {1013}}},
        {"100%", {{'1'}, {'0'}, {'0'}, {'%'}}},
        {"\t\r", {{'\t'}, {'\r'}}},
        {"\xc3\xa9", {{-61}, {-87}}},
        {"\x80\xff", {{-128}, {-1}}},
    });
}

TEST(DateFormatParser, EchoesANewlineAndForgetsIt) {
    testing::internal::CaptureStdout();
    const words found = parse("YYYY\nMM\n\n");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "\n\n\n");
    EXPECT_EQ(found, (words{{1013}, {1031}}));

    testing::internal::CaptureStdout();
    EXPECT_EQ(parse("FM\nDDth"), (words{{1039, fm, 1202}}));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "\n");

    testing::internal::CaptureStdout();
    EXPECT_EQ(quillet_date_format_parse("\n"), nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "\n");
}

TEST(DateFormatParser, GivesNoListWithoutAWord) {
    EXPECT_EQ(quillet_date_format_parse(""), nullptr);
    EXPECT_EQ(quillet_date_format_parse("th"), nullptr);
}

TEST(DateFormatParser, ReadsPatternsBeyondItsBuffer) {
    std::string pattern;
    words expected;
    for (int i = 0; i < 10000; ++i) {
        pattern += "YYYY-";
        expected.push_back({1013});
        expected.push_back({'-'});
    }
    EXPECT_EQ(parse(pattern), expected);

    const std::string quoted(40000, 'x');
    EXPECT_EQ(parse("DD\"" + quoted + "\"MM"), (words{{1039}, text(quoted), {1031}}));
}

TEST(DateFormatParser, LeavesThePatternAlone) {
    char pattern[] = "DD\"of\"MM";
    quillet_date_format_node_free(quillet_date_format_parse(pattern));
    EXPECT_STREQ(pattern, "DD\"of\"MM");
}

TEST(DateFormatParser, HandsTheQuotedTextOver) {
    parse("\"x\"");
    EXPECT_EQ(quillet_format_string, nullptr);
}

TEST(DateFormatParser, KeepsNothingForTheNextPattern) {
    EXPECT_EQ(parse("\"open"), (words{{'"'}, {'o'}, {'p'}, {'e'}, {'n'}}));
    EXPECT_EQ(parse("FM"), (words{{0, fm}}));
    EXPECT_EQ(parse("DD"), (words{{1039}}));
}

TEST(DateFormatScanner, GivesTheTokensAndThenZero) {
    char pattern[] = "FMDDth \"x\"";
    parse_data data{};
    data.string = pattern;
    data.length = static_cast<int>(std::strlen(pattern));
    quillet_date_format = &data;
    const int expected[] = {1101, 1039, 1202, ' ', 1000, 0};
    for (const int token : expected)
        EXPECT_EQ(yy_quillet_date_format_lex(), token);
    EXPECT_STREQ(quillet_format_string, "\"x\"");
    std::free(std::exchange(quillet_format_string, nullptr));
    quillet_date_format = nullptr;
}

TEST(DateFormatNode, IsCreatedEmpty) {
    date_format_node *node = quillet_date_format_node_create();
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->prefix, 0);
    EXPECT_EQ(node->format, 0);
    EXPECT_EQ(node->suffix, 0);
    EXPECT_EQ(node->string, nullptr);
    EXPECT_EQ(node->next, nullptr);
    quillet_date_format_node_free(node);
}

TEST(DateFormatNode, IsFreedWithWhatFollows) {
    date_format_node *first = quillet_date_format_node_create();
    first->string = strdup("x");
    first->next = quillet_date_format_node_create();
    first->next->next = quillet_date_format_node_create();
    first->next->next->string = strdup("y");
    quillet_date_format_node_free(first); // a leak would be found by the sanitizers
    quillet_date_format_node_free(nullptr);
}

} // namespace
