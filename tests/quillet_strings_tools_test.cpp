#include "quillet_strings_tools.h"

#include <gtest/gtest.h>

#include <string>

#include "quillet_concat.h"
#include "support.h"

using namespace quillet_tests;

namespace {

struct join_case {
    const char *first;
    const char *second;
    const char *plain;
    const char *spaced;
};

constexpr join_case joins[] = {
    // first, second, plain, spaced
    {nullptr, nullptr, nullptr, nullptr},
    {nullptr, "", "", ""},
    {"", nullptr, "", ""},
    {"", "", "", ""},
    {nullptr, "x", "x", "x"},
    {"x", nullptr, "x", "x"},
    {"", "x", "x", "x"},
    {"x", "", "x", "x"},
    {"a", "b", "ab", "a b"},
    {"WHERE a", nullptr, "WHERE a", "WHERE a"},
    {" ", " ", "  ", "   "},
    {"a ", " b", "a  b", "a   b"},
    {"one two", "three", "one twothree", "one two three"},
    {"\xc3\xa9", "\n", "\xc3\xa9\n", "\xc3\xa9 \n"},
};

// A text as the tables tell it; NULL is told apart from "".
std::string shown(const char *text) { return text ? '"' + std::string(text) + '"' : "NULL"; }

std::string shown_and_freed(char *text) {
    const owned<char> holder(text);
    return shown(text);
}

class Join : public testing::TestWithParam<join_case> {
protected:
    const char *const first = GetParam().first;
    const char *const second = GetParam().second;
    const std::string plain = shown(GetParam().plain);
    const std::string spaced = shown(GetParam().spaced);
};

TEST_P(Join, ReleasesNothing) {
    const owned<char> a(copy(first));
    const owned<char> b(copy(second));
    EXPECT_EQ(shown_and_freed(_quillet_concat(a.get(), b.get(), 0)), plain);
    EXPECT_EQ(shown_and_freed(_quillet_concat(a.get(), b.get(), 1)), spaced);
    EXPECT_EQ(shown_and_freed(_quillet_concat(a.get(), b.get(), -7)), spaced);
    EXPECT_EQ(shown_and_freed(quillet_concat(a.get(), b.get())), plain);
    EXPECT_EQ(shown_and_freed(quillet_sconcat(a.get(), b.get())), spaced);
    EXPECT_EQ(shown(a.get()), shown(first));
    EXPECT_EQ(shown(b.get()), shown(second));
}

TEST_P(Join, IsANewText) {
    const owned<char> a(copy(first));
    const owned<char> b(copy(second));
    const owned<char> joined(quillet_concat(a.get(), b.get()));
    if (joined) {
        EXPECT_NE(joined.get(), a.get());
        EXPECT_NE(joined.get(), b.get());
    }
}

// What is released is the leak checker's to see, and what is not is released here.

TEST_P(Join, ReleasesFirst) {
    const owned<char> b(copy(second));
    EXPECT_EQ(shown_and_freed(quillet_concat_free_first(copy(first), b.get())), plain);
    EXPECT_EQ(shown_and_freed(quillet_sconcat_free_first(copy(first), b.get())), spaced);
    EXPECT_EQ(shown(b.get()), shown(second));
}

TEST_P(Join, ReleasesSecond) {
    const owned<char> a(copy(first));
    EXPECT_EQ(shown_and_freed(quillet_concat_free_second(a.get(), copy(second))), plain);
    EXPECT_EQ(shown_and_freed(quillet_sconcat_free_second(a.get(), copy(second))), spaced);
    EXPECT_EQ(shown(a.get()), shown(first));
}

TEST_P(Join, ReleasesBoth) {
    EXPECT_EQ(shown_and_freed(quillet_concat_free_both(copy(first), copy(second))), plain);
    EXPECT_EQ(shown_and_freed(quillet_sconcat_free_both(copy(first), copy(second))), spaced);
}

INSTANTIATE_TEST_SUITE_P(Texts, Join, testing::ValuesIn(joins));

TEST(JoinAliases, TheReleasedTextMayBeTheOtherOne) {
    char *text = copy("ab");
    EXPECT_EQ(shown_and_freed(quillet_concat_free_first(text, text)), "\"abab\"");
    text = copy("ab");
    EXPECT_EQ(shown_and_freed(quillet_sconcat_free_first(text, text)), "\"ab ab\"");
    text = copy("ab");
    EXPECT_EQ(shown_and_freed(quillet_concat_free_second(text, text)), "\"abab\"");
    text = copy("ab");
    EXPECT_EQ(shown_and_freed(quillet_sconcat_free_second(text, text)), "\"ab ab\"");
}

TEST(JoinAliases, TheReleasedTextMayHoldTheOtherOne) {
    char *text = copy("abc");
    EXPECT_EQ(shown_and_freed(quillet_concat_free_first(text, text + 1)), "\"abcbc\"");
    text = copy("abc");
    EXPECT_EQ(shown_and_freed(quillet_sconcat_free_second(text + 2, text)), "\"c abc\"");
}

TEST(JoinLiterals, MayStandWhereNothingIsReleased) {
    EXPECT_EQ(shown_and_freed(quillet_concat_free_second("a", copy("b"))), "\"ab\"");
    EXPECT_EQ(shown_and_freed(quillet_sconcat_free_first(copy("a"), "b")), "\"a b\"");
}

TEST(JoinLengths, LongTextsAreJoinedWhole) {
    const std::string first(100'000, 'a');
    const std::string second(70'000, 'b');
    EXPECT_EQ(taken(quillet_concat(first.c_str(), second.c_str())), first + second);
    EXPECT_EQ(taken(quillet_sconcat(first.c_str(), second.c_str())), first + ' ' + second);
}

struct extract_case {
    const char *text;
    int at_begin;
    int at_end;
    const char *expected;
};

constexpr extract_case extracts[] = {
    // text, at_begin, at_end, expected
    {"'abc'", 1, 1, "abc"}, {"''", 1, 1, ""},     {"x", 1, 1, ""},       {"", 1, 1, ""},
    {"", 0, 0, ""},         {nullptr, 0, 0, ""},  {nullptr, 1, 1, ""},   {nullptr, 3, 0, ""},
    {nullptr, -1, 0, ""},   {"abc", 0, 0, "abc"}, {"abc", 1, 0, "bc"},   {"abc", 0, 1, "ab"},
    {"abc", 2, 1, ""},      {"abc", 1, 2, ""},    {"abc", 3, 0, ""},     {"abc", 0, 3, ""},
    {"abc", 4, 0, ""},      {"abc", 0, 4, ""},    {"abc", 100, 100, ""}, {"abcdef", 2, 3, "c"},
};

class Extract : public testing::TestWithParam<extract_case> {};

TEST_P(Extract, LeavesOutBothEnds) {
    const auto &[text, at_begin, at_end, expected] = GetParam();
    const owned<char> string(copy(text));
    EXPECT_EQ(shown_and_freed(quillet_extract_string(string.get(), at_begin, at_end)),
              shown(expected));
    EXPECT_EQ(shown(string.get()), shown(text));
    EXPECT_EQ(shown_and_freed(quillet_extract_string_free(copy(text), at_begin, at_end)),
              shown(expected));
}

INSTANTIATE_TEST_SUITE_P(Texts, Extract, testing::ValuesIn(extracts));

} // namespace
