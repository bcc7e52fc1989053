// The warning that MySQL groups operators otherwise. Which statements have it was seen on servers:
// of those that group otherwise both gave other rows, or MySQL rejected the text.

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <string>
#include <string_view>
#include <vector>

#include "quillet.hpp"

namespace {

constexpr std::string_view id = "grouped-otherwise";

quillet::translation made_of(const std::string &expression) {
    return quillet::translate("select " + expression + " from operand", quillet::target::mysql);
}

long count_of(const quillet::translation &made) {
    const auto &all = made.diagnostics();
    return std::count_if(all.begin(), all.end(), [](const auto &each) { return each.id == id; });
}

using operators = std::vector<const char *>;

// A chain of so many operators that take turns.
std::string chain(const operators &names, int count) {
    std::string text = "n1";
    for (int i = 0; i < count; ++i)
        text.append(" ").append(names[static_cast<std::size_t>(i) % names.size()]).append(" n2");
    return text;
}

// The processor's time for a translation, in seconds; the least of three.
double time_of(const std::string &expression, bool is_refused = false) {
    double least = 1e9;
    for (int i = 0; i < 3; ++i) {
        const std::clock_t begin = std::clock();
        EXPECT_EQ(!made_of(expression), is_refused);
        least = std::min(least, double(std::clock() - begin) / CLOCKS_PER_SEC);
    }
    return least;
}

} // namespace

TEST(Grouping, WarnsWhereMySQLGroupsOtherwise) {
    for (const char *expression : {"n1 & n2 << n3",
                                   "n1 | n2 << n3",
                                   "n1 | n2 & n3",
                                   "n1 + n2 # n3",
                                   "n1 / n2 # n3",
                                   "n1 # n2 << n3",
                                   "n1 >> n2 # n3",
                                   "@ n1 - n2",
                                   "@ n1 | n2",
                                   "~ n1 % n2",
                                   "not b1 is true",
                                   "not b1 is not false",
                                   "s1 not like s2 is null",
                                   "s1 ilike s2 is true",
                                   "s1 !~ s2 is null",
                                   "n1 || s2 is not null",
                                   "not s1 !~ s2",
                                   "b1 = s2 !~ s3",
                                   "b1 > s2 !~* s3",
                                   "b1 is distinct from b2 or b3",
                                   "b1 is distinct from n2 <= n3",
                                   "s1 !~ s2 between b2 and b3",
                                   "s1 not like s2 != b3"}) {
        const quillet::translation made = made_of(expression);
        ASSERT_TRUE(made) << expression;
        EXPECT_EQ(count_of(made), 1) << expression;
    }
}

TEST(Grouping, SaysNothingWhereBothGroupAlike) {
    for (const char *expression : {"n1 + n2 * n3",
                                   "n1 * n2 + n3",
                                   "n1 - n2 - n3",
                                   "n1 * n2 / n3",
                                   "n1 & n2 + n3",
                                   "n1 << n2 + n3",
                                   "n1 & n2 & n3",
                                   "n1 | n2 | n3",
                                   "n1 ^ n2 ^ n3",
                                   "n1 ^ - n2",
                                   "n1 - - n2",
                                   "not n1 != n2",
                                   "not b1 and b2",
                                   "b1 or b2 and b3",
                                   "- n1 is null",
                                   "n1 & n2 <= n3",
                                   "s1 not ilike s2 || s3",
                                   "b1 and s2 ~ s3",
                                   "b1 = s2 ~ s3",
                                   "n1 % n2 is distinct from n3",
                                   "n1 << n2 between n2 and n3",
                                   "n1::integer != n2",
                                   "n1 ^ ~ n2",
                                   "b1 < s2 ~* s3"}) {
        const quillet::translation made = made_of(expression);
        ASSERT_TRUE(made) << expression;
        EXPECT_EQ(count_of(made), 0) << expression;
    }
}

TEST(Grouping, SaysNothingOfParenthesesRoundWhatBelongsTogether) {
    for (const char *expression :
         {"(n1 & n2) << n3", "(n1 | n2) << n3", "(n1 | n2) & n3", "(n1 + n2) # n3",
          "(n1 / n2) # n3", "(n1 # n2) << n3", "(n1 >> n2) # n3", "@ (n1 - n2)", "(@ n1) | n2",
          "~ (n1 % n2)", "not (b1 is true)", "(s1 not like s2) is null", "(s1 ilike s2) is true",
          "(n1 || s2) is not null", "not (s1 !~ s2)", "b1 = (s2 !~ s3)",
          "(b1 is distinct from b2) or b3", "b1 is distinct from (n2 <= n3)"}) {
        const quillet::translation made = made_of(expression);
        ASSERT_TRUE(made) << expression;
        EXPECT_EQ(count_of(made), 0) << expression;
    }
}

// What hangs together is one group; calls, lists and parentheses end it.
TEST(Grouping, WarnsOfEachGroupOnce) {
    EXPECT_EQ(count_of(made_of("n1 | n2 & n3 | n1 & n2 | n3 << n1")), 1);
    EXPECT_EQ(count_of(made_of("n1 | n2 & n3, n1 + n2, @ n1 - n2")), 2);
    EXPECT_EQ(count_of(made_of("(n1 | n2 & n3) + (n1 + n2) * (@ n1 - n2)")), 2);
    EXPECT_EQ(count_of(made_of("coalesce(n1 | n2 & n3, n1 + n2) + n3")), 1);
}

TEST(Grouping, WarnsAtThePlaceOfTheGroup) {
    const std::string statement = "select a,\n  b | c & d\nfrom t";
    const quillet::translation made = quillet::translate(statement, quillet::target::mysql);
    const auto &all = made.diagnostics();
    const auto found =
        std::find_if(all.begin(), all.end(), [](const auto &each) { return each.id == id; });
    ASSERT_NE(found, all.end());
    EXPECT_EQ(found->severity, quillet::severity::warning);
    EXPECT_EQ(found->line, 2);
    EXPECT_EQ(statement.substr(found->offset, found->length), "b | c & d");
}

TEST(Grouping, SaysNothingOfPostgreSQLText) {
    EXPECT_EQ(count_of(quillet::translate("select a | b & c from t", quillet::target::postgresql)),
              0);
}

// Four times as many operators take four times as long, where the square would be sixteen times.
TEST(Grouping, OfChainsTakesTimeInProportion) {
    const std::vector<operators> chains = {{"+"}, {"+", "*"}, {"and", "or"}, {"<<", "||"}};
    for (const operators &each : chains) {
        const double some = time_of(chain(each, 25000));
        const double more = time_of(chain(each, 100000));
        EXPECT_LT(more, 10 * some + 0.01) << each.front();
    }
}

// An operand that is refused is not looked for among all operators that stand before it.
TEST(Grouping, OfRefusedOperandsTakesTimeInProportion) {
    const auto items = [](int count) {
        std::string text = "1";
        for (int i = 0; i < count; ++i)
            text += ", f(n1 + n2)";
        for (int i = 0; i < count; ++i)
            text += ", n1 ! + 1";
        return text;
    };
    const double some = time_of(items(20000), true);
    const double more = time_of(items(80000), true);
    EXPECT_LT(more, 10 * some + 0.01);
}

TEST(Grouping, OfALongChainIsFound) {
    EXPECT_EQ(count_of(made_of(chain({"<<"}, 100000))), 0);
    EXPECT_EQ(count_of(made_of(chain({"<<"}, 100000) + " # n3")), 1);
    EXPECT_EQ(count_of(made_of("@ n1 + " + chain({"+", "*"}, 100000))), 1);
    EXPECT_EQ(count_of(made_of(chain({"|", "&"}, 500))), 1);
}
