// What is long is translated, whatever the machine's stack; what is too deep or would grow too
// large is refused with a code.

#include "quillet.h"

#include <gtest/gtest.h>
#include <pthread.h>
#include <sys/resource.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <memory>
#include <string>

#include "../host_builder.h"

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

translation translate(const std::string &query, int id) {
    yy_quillet_lex_destroy(); // what a failed query left unread is not part of this one
    quillet_init();
    char *output = nullptr;
    const int code = quillet_translate_query(query.c_str(), &output, id);
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

void expect_rendering(const sequence &s, int id, int count) {
    const translation result =
        translate(of_members(s.begin, s.item, s.separator, s.end, count), id);
    EXPECT_EQ(result.code, 0) << s.name;
    // Compared as a whole, but not printed: the texts are long.
    EXPECT_TRUE(result.text == of_members(s.rendered_begin, s.rendered_item, s.rendered_separator,
                                          s.rendered_end, count))
        << s.name << " differs with builder " << id;
}

// How much more stack each call takes than in an optimised build.
#if defined(__SANITIZE_ADDRESS__)
constexpr int frame_growth = 8;
#elif defined(__OPTIMIZE__)
constexpr int frame_growth = 1;
#else
constexpr int frame_growth = 2;
#endif

// How many times less than the usual stack this one is; that one holds what the parser lets
// through.
int missing_stack() {
    constexpr rlim_t usual = 8192UL * 1024;
    rlimit limit{};
    const bool is_known = getrlimit(RLIMIT_STACK, &limit) == 0;
    return is_known && limit.rlim_cur < usual ? static_cast<int>(usual / limit.rlim_cur) : 1;
}

} // namespace

TEST(Size, OfListsAndChains) {
    for (const sequence &s : same_everywhere)
        for (const int id : {postgresql, mysql})
            expect_rendering(s, id, members);
    for (const sequence &s : postgresql_alone)
        expect_rendering(s, postgresql, members);
}

TEST(Size, OfColumnLists) {
    const auto statement = [](const char *separator, const char *into, const char *values) {
        return std::string(into) + of_members("", "a", separator, "", members) + values +
               of_members("", "1", separator, ")", members);
    };
    const std::string query = statement(",", "insert into t (", ") values (");
    for (const int id : {postgresql, mysql}) {
        const translation result = translate(query, id);
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

// Nested constructs: what stands before and after the innermost operand at every level.
struct nesting {
    const char *name;
    const char *before;
    const char *after;
    const char *rendered_before;
    const char *rendered_after;
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

std::string nested_query(const nesting &n, int depth) {
    return "select " + repeated(n.before, depth) + "x" + repeated(n.after, depth);
}

// Up to the depth that the stack surely holds; if that is not the parser's limit, what is deeper
// may be refused.
TEST(Depth, UpToTheParsersLimit) {
    const int lack = frame_growth * missing_stack();
    for (const nesting &n : nestings)
        for (const int depth : {n.depth / lack, n.depth}) {
            const translation result = translate(nested_query(n, depth), postgresql);
            const bool is_sure = depth == n.depth / lack;
            if (is_sure || result.code == 0) {
                EXPECT_EQ(result.code, 0) << n.name << ' ' << depth;
                EXPECT_TRUE(result.text == "SELECT " + repeated(n.rendered_before, depth) + "x" +
                                               repeated(n.rendered_after, depth))
                    << n.name << ' ' << depth;
            } else {
                EXPECT_EQ(result.code, -3) << n.name << ' ' << depth;
            }
            for (const int id : {mysql, type_view}) {
                const int code = translate(nested_query(n, depth), id).code;
                EXPECT_TRUE(code == 0 || (code == -3 && !is_sure))
                    << n.name << ' ' << id << ' ' << depth;
            }
        }
}

// The bound is that of the running thread, however little of its stack is left.

struct thread_task {
    const nesting *nested;
    int code[4];
};

void *translate_nested(void *argument) {
    auto &task = *static_cast<thread_task *>(argument);
    const nesting &n = *task.nested;
    for (const int id : {postgresql, mysql, type_view}) {
        task.code[id] = translate(nested_query(n, n.depth), id).code;
    }
    task.code[tree] = translate("select (((x)))", mysql).code;
    return nullptr;
}

void expect_in_thread(const nesting &n, std::size_t stack_size) {
    pthread_attr_t attributes;
    pthread_t thread{};
    thread_task task{&n, {1, 1, 1, 1}};
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, stack_size), 0);
    ASSERT_EQ(pthread_create(&thread, &attributes, translate_nested, &task), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
    for (const int id : {postgresql, mysql, type_view})
        EXPECT_TRUE(task.code[id] == 0 || task.code[id] == -3)
            << n.name << ' ' << id << ' ' << stack_size;
    EXPECT_EQ(task.code[tree], 0) << n.name << ' ' << stack_size;
}

TEST(Depth, EndsWhereTheThreadsStackDoes) {
    constexpr std::size_t smallest = 64UL * 1024 * frame_growth;
    for (const nesting &n : nestings)
        for (std::size_t size = smallest; size <= 8192UL * 1024; size *= 2)
            expect_in_thread(n, size);
}

// A host may be deep in calls of its own when it translates.
[[gnu::noinline]] int translate_below(std::size_t used, const std::string &query) {
    volatile char frame[1024] = {};
    frame[0] = 1;
    return used > sizeof frame ? translate_below(used - sizeof frame, query) + (frame[0] - 1)
                               : translate(query, postgresql).code;
}

void *translate_deep_in_calls(void *) {
    const nesting functions = {"Functions", "f(", ")", "", "", 4990};
    const std::string query = nested_query(functions, functions.depth);
    for (std::size_t used = 0; used <= 400UL * 1024; used += 10UL * 1024) {
        const int code = translate_below(used, query);
        EXPECT_TRUE(code == 0 || code == -3) << used;
    }
    return nullptr;
}

TEST(Depth, EndsThereInDeepCallsOfTheHost) {
    pthread_attr_t attributes;
    pthread_t thread{};
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, 512UL * 1024 * frame_growth), 0);
    ASSERT_EQ(pthread_create(&thread, &attributes, translate_deep_in_calls, nullptr), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

// Through the operations of a host every list and chain is nested calls.
TEST(Depth, OfListsAndChainsThroughAHost) {
    for (const int id : {postgresql, mysql, type_view}) {
        translate("select 1", id); // fills the registry
        const quillet_tests::hosted host(id);
        for (const sequence &s : same_everywhere) {
            const auto code = [&](int count) {
                return translate(of_members(s.begin, s.item, s.separator, s.end, count), id).code;
            };
            EXPECT_EQ(code(members), -3) << s.name << ' ' << id;
            EXPECT_EQ(code(20), 0) << s.name << ' ' << id;
        }
    }
}

TEST(Depth, OfTreeViews) {
    for (const nesting &n : nestings) {
        EXPECT_EQ(translate(nested_query(n, 100), tree).code, 0) << n.name;
    }
}

TEST(Depth, BeyondTheParsersLimit) {
    for (const nesting &n : nestings)
        EXPECT_EQ(translate(nested_query(n, 100000), postgresql).code, -3) << n.name;
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
        EXPECT_EQ(translate(nested_query(n, n.depth), mysql).code, -3) << n.name;
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
