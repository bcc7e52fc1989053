// The text of a rendering: what is appended, cut and taken out, and the gaps that are filled later.

#include "quillet_output.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>

namespace {

using quillet::output;

class Output : public testing::Test {
protected:
    output::memory gaps;
    output out{gaps};

    // All of it, once the gaps are settled.
    std::string text() {
        out.settle({});
        const std::unique_ptr<char, decltype(&std::free)> released(out.release(), &std::free);
        return released.get();
    }
};

TEST_F(Output, IsEmptyAtFirst) {
    EXPECT_EQ(out.size(), 0U);
    EXPECT_FALSE(out.has_grown_since(out.here()));
    EXPECT_EQ(out.text_since({}), "");
    EXPECT_EQ(text(), "");
}

TEST_F(Output, GrowsAtItsEnd) {
    out.append("ab");
    const output::place after = out.here();
    EXPECT_FALSE(out.has_grown_since(after));
    out.append('c');
    out.append("");
    EXPECT_TRUE(out.has_grown_since(after));
    EXPECT_EQ(out.text_since(after), "c");
    EXPECT_EQ(out.size(), 3U);
    EXPECT_EQ(text(), "abc");
}

TEST_F(Output, GrowsBeyondItsFirstMemory) {
    std::string wanted;
    for (int i = 0; i < 10000; ++i) {
        out.append("0123456789");
        wanted += "0123456789";
    }
    EXPECT_EQ(text(), wanted);
}

TEST_F(Output, IsCutBackWithItsGaps) {
    out.append("a");
    const output::gap kept = out.leave_gap();
    const output::place begin = out.here();
    out.append("b");
    out.fill(out.leave_gap(), "dropped");
    out.append("c");
    out.cut(begin);
    EXPECT_EQ(gaps.size(), 1U);
    out.append("d");
    out.fill(kept, "-");
    EXPECT_EQ(text(), "a-d");
}

TEST_F(Output, LosesWhatStandsBetweenTwoPlaces) {
    out.append("a");
    const output::gap before = out.leave_gap();
    const output::place begin = out.here();
    out.append("bcd");
    out.fill(out.leave_gap(), "dropped");
    const output::place end = out.here();
    out.append("e");
    const output::gap after = out.leave_gap();
    out.append("f");
    const output::gap last = out.leave_gap();
    out.fill(after, "2");
    out.fill(last, "3");
    out.cut(begin, end);
    // Gaps after the places are others now.
    EXPECT_EQ(gaps.size(), 3U);
    out.fill(before, "1");
    EXPECT_EQ(text(), "a1e2f3");
}

TEST_F(Output, LosesNothingBetweenEqualPlaces) {
    const output::place begin = out.here();
    out.cut(begin, begin);
    out.append("a");
    out.cut(out.here(), out.here());
    EXPECT_EQ(text(), "a");
}

TEST_F(Output, FillsGapsInAnyOrder) {
    const output::gap first = out.leave_gap();
    out.append("b");
    const output::gap second = out.leave_gap();
    const output::gap third = out.leave_gap();
    out.append("e");
    const output::gap last = out.leave_gap();
    out.fill(last, "f");
    out.fill(third, "d");
    out.fill(first, "a");
    out.fill(second, "c");
    EXPECT_EQ(text(), "abcdef");
}

TEST_F(Output, LeavesUnfilledGapsEmpty) {
    out.append("a");
    out.leave_gap();
    out.append("b");
    out.fill(out.leave_gap(), "");
    out.append("c");
    EXPECT_EQ(text(), "abc");
}

TEST_F(Output, TakesTheLastFillingOfAGap) {
    const output::gap gap = out.leave_gap();
    out.fill(gap, "first");
    out.fill(gap, "x");
    EXPECT_EQ(text(), "x");
}

TEST_F(Output, SettlesWhatComesAfterAPlace) {
    const output::gap earlier = out.leave_gap();
    out.append("b");
    const output::place begin = out.here();
    const output::gap later = out.leave_gap();
    out.append("d");
    out.fill(earlier, "a");
    out.fill(later, "c");
    EXPECT_EQ(out.settle(begin), "cd");
    EXPECT_EQ(gaps.size(), 1U);
    EXPECT_EQ(out.settle(begin), "cd");
    EXPECT_EQ(text(), "abcd");
}

TEST_F(Output, SettlesWhatComesAfterAGap) {
    const output::gap outer = out.leave_gap();
    out.append("b");
    out.fill(out.leave_gap(), "c");
    out.append("d");
    EXPECT_EQ(out.settle_after(outer), "bcd");
    EXPECT_EQ(gaps.size(), 1U);
    out.fill(outer, "a");
    EXPECT_EQ(text(), "abcd");
}

TEST_F(Output, KnowsTheGapAtAPlace) {
    out.append("a");
    out.leave_gap();
    const output::place begin = out.here();
    out.leave_gap();
    out.append("c");
    out.leave_gap();
    out.fill(output::gap_at(begin), "b");
    EXPECT_EQ(text(), "abc");
}

TEST_F(Output, ReplacesCharactersAtItsEnds) {
    struct ends {
        const char *text;
        const char *replaced;
    };
    for (const auto &[text, replaced] : {ends{"xaxbx", "yaxby"},
                                         {"xab", "yab"},
                                         {"abx", "aby"},
                                         {"axb", "axb"},
                                         {"x", "y"},
                                         {"xx", "yy"},
                                         {"", ""}}) {
        out.append("x");
        const output::place begin = out.here();
        out.append(text);
        out.replace_at_ends(begin, 'x', 'y');
        EXPECT_EQ(out.text_since(begin), replaced) << text;
        EXPECT_EQ(out.text_since({}).front(), 'x') << text;
        out.cut({});
    }
}

TEST_F(Output, BeginsAnewAfterItsRelease) {
    out.append("a");
    EXPECT_EQ(text(), "a");
    EXPECT_EQ(out.size(), 0U);
    out.append("b");
    EXPECT_EQ(text(), "b");
}

} // namespace
