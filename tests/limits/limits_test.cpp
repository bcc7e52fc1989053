// What is long is translated, whatever the machine's stack; what is too deep or would grow too
// large is refused with a code.

#include "quillet.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <limits>
#include <memory>
#include <string>

extern "C" int yy_quillet_lex_destroy(void);

namespace {

enum builder_id { postgresql, mysql, tree, type_view };

struct freed {
    void operator()(char *text) const { std::free(text); }
};

struct translation {
    int code;
    std::string text;
};

translation translate(const std::string &query, int builder) {
    yy_quillet_lex_destroy(); // what a failed query left unread is not part of this one
    quillet_init();
    char *output = nullptr;
    const int code = quillet_translate_query(query.c_str(), &output, builder);
    const std::unique_ptr<char, freed> owned(output);
    return {code, output ? output : ""};
}

std::string repeated(const std::string &text, int count) {
    std::string result;
    result.reserve(text.size() * static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

// begin item separator item separator item end, in a statement and in its rendering.
struct sequence {
    const char *name;
    const char *begin;
    const char *item;
    const char *separator;
    const char *end;
    const char *rendered_begin;
    const char *rendered_item;
    const char *rendered_separator;
    const char *rendered_end;
};

std::string of_members(const char *begin, const char *item, const char *separator, const char *end,
                       int members) {
    return begin + repeated(std::string(item) + separator, members - 1) + item + end;
}

const sequence same_everywhere[] = {
    {"Columns", "select ", "a", ",", " from t", "SELECT ", "a", ", ", " FROM t"},
    {"Tables", "select * from ", "t", ",", "", "SELECT * FROM ", "t", ", ", ""},
    {"Joins", "select * from t ", "cross join u", " ", "", "SELECT * FROM t ", "CROSS JOIN u", " ",
     ""},
    {"Values", "insert into t values (", "1", ",", ")", "INSERT INTO t VALUES (", "1", ", ", ")"},
    {"Assignments", "update t set ", "a=1", ",", "", "UPDATE t SET ", "a = 1", ", ", ""},
    {"GroupBy", "select a from t group by ", "a", ",", "", "SELECT a FROM t GROUP BY ", "a", ", ",
     ""},
    {"OrderBy", "select a from t order by ", "a", ",", "", "SELECT a FROM t ORDER BY ", "a ASC",
     ", ", ""},
    {"WhenBranches", "select case ", "when a then b", " ", " end", "SELECT CASE ", "WHEN a THEN b",
     " ", "  END"},
    {"Arguments", "select f(", "a", ",", ")", "SELECT f(", "a", ", ", ")"},
    {"Sum", "select ", "a", "+", "", "SELECT ", "a", " + ", ""},
    {"Difference", "select ", "a", "-", "", "SELECT ", "a", " - ", ""},
    {"Product", "select ", "a", "*", "", "SELECT ", "a", " * ", ""},
    {"Quotient", "select ", "a", "/", "", "SELECT ", "a", " / ", ""},
    {"And", "select a from t where ", "a", " and ", "", "SELECT a FROM t WHERE ", "a", " AND ", ""},
    {"Or", "select a from t where ", "a", " or ", "", "SELECT a FROM t WHERE ", "a", " OR ", ""},
    {"AndOr", "select a from t where ", "a and b", " or ", "", "SELECT a FROM t WHERE ", "a AND b",
     " OR ", ""},
    {"Terms", "select ", "(a)", "+", "", "SELECT ", "(a)", " + ", ""},
};

const sequence postgresql_alone[] = {
    {"Concatenation", "select ", "a", "||", "", "SELECT ", "a", " || ", ""},
    {"Factorials", "select a ", "!", " ", "", "SELECT a", "!", "", ""},
};

constexpr int members = 100000;

void expect_rendering(const sequence &s, int builder, int count) {
    const translation result =
        translate(of_members(s.begin, s.item, s.separator, s.end, count), builder);
    EXPECT_EQ(result.code, 0) << s.name;
    // Compared as a whole, but not printed: the texts are long.
    EXPECT_TRUE(result.text == of_members(s.rendered_begin, s.rendered_item, s.rendered_separator,
                                          s.rendered_end, count))
        << s.name << " differs with builder " << builder;
}

// Whether the usual stack is there, on which everything up to the parser's limit is rendered.
bool has_usual_stack() {
#if defined(__SANITIZE_ADDRESS__)
    return false; // the frames are larger
#else
    rlimit limit{};
    return getrlimit(RLIMIT_STACK, &limit) == 0 && limit.rlim_cur >= 8192UL * 1024;
#endif
}

// The memory that there is for this process, in MiB: the machine's, or what a container allows.
[[maybe_unused]] long available_memory() {
    constexpr long kib = 1024;
    long available = 0;
    std::ifstream machine("/proc/meminfo");
    for (std::string word; machine >> word;)
        if (long amount = 0; (word == "MemAvailable:" || word == "SwapFree:") && machine >> amount)
            available += amount / kib;
    for (const char *limit :
         {"/sys/fs/cgroup/memory.max", "/sys/fs/cgroup/memory/memory.limit_in_bytes"})
        if (long bytes = 0; std::ifstream(limit) >> bytes)
            available = std::min(available, bytes / kib / kib);
    return available;
}

} // namespace

TEST(Size, OfListsAndChains) {
    for (const sequence &s : same_everywhere)
        for (const int builder : {postgresql, mysql})
            expect_rendering(s, builder, members);
    for (const sequence &s : postgresql_alone)
        expect_rendering(s, postgresql, members);
}

TEST(Size, OfColumnLists) {
    const auto statement = [](const char *separator, const char *into, const char *values) {
        return std::string(into) + of_members("", "a", separator, "", members) + values +
               of_members("", "1", separator, ")", members);
    };
    const std::string query = statement(",", "insert into t (", ") values (");
    for (const int builder : {postgresql, mysql}) {
        const translation result = translate(query, builder);
        EXPECT_EQ(result.code, 0);
        EXPECT_TRUE(result.text == statement(", ", "INSERT INTO t (", ") VALUES ("));
    }
}

TEST(Size, OfCasts) {
    const std::string query = "select a" + repeated("::int", members);
    EXPECT_TRUE(translate(query, postgresql).text ==
                "SELECT " + repeated("CAST(", members) + "a" + repeated(" AS INT4)", members));
    EXPECT_TRUE(translate(query, mysql).text == "SELECT " + repeated("CAST(", members) + "a" +
                                                    repeated(" AS SIGNED INTEGER)", members));
}

TEST(Size, OfMysqlConcatenations) {
    EXPECT_TRUE(translate(of_members("select ", "a", "||", "", members), mysql).text ==
                "SELECT " + repeated("CONCAT(", members - 1) + "a" + repeated(", a)", members - 1));
}

TEST(Size, OfTypeViews) {
    const translation result = translate(of_members("select ", "1", "+", "", members), type_view);
    EXPECT_TRUE(result.text == "SELECT " + repeated("INT8 ( ", members - 1) + "INT8 ( 1 ) " +
                                   repeated(" + INT8 ( 1 )  ) ", members - 1));
}

TEST(Size, OfAMillion) {
    expect_rendering(same_everywhere[0], postgresql, 10 * members);
    expect_rendering(same_everywhere[9], postgresql, 10 * members);
    expect_rendering(same_everywhere[9], mysql, 10 * members);
}

// Tokens that the scanner's buffer must grow for, and what it skips.
TEST(Size, OfLongTokens) {
    const std::string letters = repeated("a", 100 * members);
    const std::string statements[][2] = {
        {"select '" + letters + "'", "SELECT '" + letters + "'"},
        {"select '" + letters + "\\'' from t", "SELECT '" + letters + "\\'' FROM t"},
        {"select \"" + letters + "\".b", "SELECT \"" + letters + "\".b"},
        {"select " + letters + "+1", "SELECT " + letters + " + 1"},
        {"select 1" + repeated("0", 100 * members) + ", 2",
         "SELECT 1" + repeated("0", 100 * members) + ", 2"},
        {"select" + repeated(" ", 100 * members) + "1", "SELECT 1"},
        {"select /*" + letters + "*/ 1 --" + letters, "SELECT 1"},
    };
    for (const auto &[query, rendered] : statements) {
        const std::clock_t begin = std::clock();
        EXPECT_TRUE(translate(query, postgresql).text == rendered) << query.substr(0, 20);
        EXPECT_LT(std::clock() - begin, 10 * CLOCKS_PER_SEC) << query.substr(0, 20);
    }
}

TEST(Size, BeyondTheLimitOfQueries) {
    std::string query = "select 1";
    query.resize(query.size() + 256 * 1024 * 1024, ' ');
    EXPECT_EQ(translate(query, postgresql).code, -3);
    EXPECT_EQ(translate("select 1", postgresql).text, "SELECT 1");
}

#if !defined(__SANITIZE_ADDRESS__) // which sees each node, and takes no account of their size
TEST(Size, BeyondTheLimitOfTrees) {
    constexpr long needed = 2304; // the limit, and what else the process has
    if (available_memory() < needed)
        GTEST_SKIP() << available_memory() << " MiB of memory are too few for a tree of 2 GiB";
    testing::internal::CaptureStdout();
    EXPECT_EQ(translate(of_members("select ", "a", "+", "", 100 * members), postgresql).code, -3);
    EXPECT_EQ(translate("select 1", postgresql).text, "SELECT 1");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}
#endif

// The least time of several translations; this process's own, whatever else runs.
std::clock_t time_of(const sequence &s, int count) {
    const std::string query = of_members(s.begin, s.item, s.separator, s.end, count);
    std::clock_t least = std::numeric_limits<std::clock_t>::max();
    for (int i = 0; i < 5 * members / count && i < 100; ++i) {
        const std::clock_t begin = std::clock();
        translate(query, postgresql);
        least = std::min(least, std::clock() - begin);
    }
    return least;
}

// A cost that grew with the square would grow a hundredfold. The largest trees are larger than a
// processor's cache, which others use as well.
TEST(Size, CostsTimeInProportion) {
    for (const sequence &s : same_everywhere) {
        const std::clock_t time = time_of(s, members / 10);
        EXPECT_LT(time, 20 * time_of(s, members / 100)) << s.name;
        EXPECT_LT(time_of(s, members), 30 * time) << s.name;
    }
}

// Nested constructs: what stands before and behind the innermost operand at every level.
struct nesting {
    const char *name;
    const char *before;
    const char *behind;
    const char *rendered_before;
    const char *rendered_behind;
    int depth; // nearly the parser's limit
};

const nesting nestings[] = {
    {"Parentheses", "(", ")", "(", ")", 9990},
    {"Not", "not ", "", "NOT ", "", 9990},
    {"Minus", "- ", "", "- ", "", 9990},
    {"CaseOperand", "case ", " when 1 then 2 end", "CASE ", " WHEN 1 THEN 2  END", 9980},
    {"CaseElse", "case when a then b else ", " end", "CASE WHEN a THEN b ELSE ", " END", 2450},
    {"Functions", "f(", ")", "f(", ")", 4990},
    {"Equal", "a = ", "", "a = ", "", 4990},
    {"BitwiseAnd", "a & ", "", "a & ", "", 4990},
    {"Casts", "cast(", " as int)", "CAST(", " AS INT4)", 4990},
    {"RightTerms", "a + (", ")", "a + (", ")", 3320},
};

TEST(Depth, UpToTheParsersLimit) {
    const bool must_translate = has_usual_stack();
    for (const nesting &n : nestings) {
        const std::string query =
            "select " + repeated(n.before, n.depth) + "x" + repeated(n.behind, n.depth);
        const translation result = translate(query, postgresql);
        if (must_translate || result.code == 0) {
            EXPECT_EQ(result.code, 0) << n.name;
            EXPECT_TRUE(result.text == "SELECT " + repeated(n.rendered_before, n.depth) + "x" +
                                           repeated(n.rendered_behind, n.depth))
                << n.name;
        } else {
            EXPECT_EQ(result.code, -3) << n.name;
        }
        for (const int builder : {mysql, type_view}) {
            const int code = translate(query, builder).code;
            EXPECT_TRUE(code == 0 || (code == -3 && !must_translate)) << n.name << ' ' << builder;
        }
    }
}

TEST(Depth, OfTreeViews) {
    for (const nesting &n : nestings) {
        const std::string query =
            "select " + repeated(n.before, 100) + "x" + repeated(n.behind, 100);
        EXPECT_EQ(translate(query, tree).code, 0) << n.name;
    }
}

TEST(Depth, BeyondTheParsersLimit) {
    for (const nesting &n : nestings)
        EXPECT_EQ(
            translate("select " + repeated(n.before, 100000) + "x" + repeated(n.behind, 100000),
                      postgresql)
                .code,
            -3)
            << n.name;
}

// Texts that stand twice in their own rendering.
TEST(BlowUp, EndsAsAFailure) {
    const nesting doubled[] = {
        {"IsTrue", "", " is true", "", "", 40},
        {"IsDistinct", "(", " is distinct from y)", "", "", 40},
        {"BitOr", "bit_or(", ")", "", "", 40},
        {"BoolAnd", "bool_and(", ")", "", "", 40},
        {"Overlay", "overlay(", " placing a from 1 for 2)", "", "", 40},
        {"Seconds", "date_part('second', ", ")", "", "", 40},
        {"Overlaps", "((", ", interval '1 day') overlaps (c, d))", "", "", 40},
        {"LongChain", "", " is true", "", "", 20000},
    };
    for (const nesting &n : doubled) {
        const std::clock_t begin = std::clock();
        EXPECT_EQ(
            translate("select " + repeated(n.before, n.depth) + "x" + repeated(n.behind, n.depth),
                      mysql)
                .code,
            -3)
            << n.name;
        EXPECT_LT(std::clock() - begin, 10 * CLOCKS_PER_SEC) << n.name; // with sanitizers, too
    }
}

TEST(BlowUp, OfTheTreesIndentation) {
    EXPECT_EQ(translate(of_members("select ", "a", "+", "", members), tree).code, -3);
}

TEST(BlowUp, DoesNotHinderTheNextTranslation) {
    translate("select x" + repeated(" is true", 40), mysql);
    EXPECT_EQ(translate("select 1", mysql).text, "SELECT 1");
}
