// Thousands of calls in one process: what a call leaves to the next one, and what it does not.

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "quillet.h"
#include "quillet_globals.h"
#include "quillet_mysql_builder.h"
#include "quillet_mysql_rendering.h"
#include "support.h"

namespace {

enum builder_id { postgresql, mysql, tree, type_view, none };

// One call and all that can be seen of it. A refusal sets the builder's reason, which then stays.
struct call {
    const char *query;
    int builder;
    int code;
    const char *text;
    const char *printed = "";
    int reason = 0;
};

// Calls that belong together: the first state of the scanner is the last one too.
using scenario = std::vector<call>;

const scenario scenarios[] = {
    // Good statements, with every builder.
    {{"select 1", postgresql, 0, "SELECT 1"}},
    {{"select 1 + 2", type_view, 0, "SELECT INT8 ( INT8 ( 1 )  + INT8 ( 2 )  ) "}},
    {{"delete from t", tree, 0, "main [0]\n  delete [0]\n    table [0]\n      identifier [0]\n"}},
    {{"select a || b", mysql, 0, "SELECT CONCAT(a, b)"}},

    // Failures that leave nothing behind.
    {{"select 1", none, -1, nullptr}},
    {{"", postgresql, -2, nullptr, "Error: syntax error\n"}},
    {{"select )", type_view, -2, nullptr, "Error: syntax error\n"}},
    {{"insert into t (a) values (1, 2)", postgresql, -2, nullptr}},
    {{"select substring(s, 1, 2)", mysql, -2, nullptr}},

    // Refusals, whose reason stays.
    {{"select initcap(a)", mysql, -3, nullptr, "", -11}},
    {{"select a !", mysql, -3, nullptr, "", -2}},
    {{"select * from t offset 3", mysql, -3, nullptr, "", -27}},
    {{"insert into t (a) values (1, default, default)", mysql, -2, nullptr, "", -38}},
    {{"select cast(age(a) as int)", mysql, 0, "SELECT CAST( AS SIGNED INTEGER)", "", -19}},

    // A comment goes on in the next query.
    {{"select 1 /* a", postgresql, 0, "SELECT 1"},
     {"b */ select 2", tree, 0,
      "main [0]\n  select [0]\n    distinct_select_list [0]\n      select_list [0]\n"
      "        select_item [0]\n          expression [0]\n            const_generic [0]\n"
      "              const_integer [0]\n0\n"}},
    {{"select 1 /* a /* b", mysql, 0, "SELECT 1"},
     {"c */ d", mysql, -2, nullptr, "Error: syntax error\n"},
     {"e */ select 2", mysql, 0, "SELECT 2"}},
    {{"select 1 -- a", postgresql, 0, "SELECT 1"}, {"b\nselect 2", postgresql, 0, "SELECT 2"}},
    {{"select /*\n*/ 1", postgresql, 0, "SELECT 1", "\n"}},

    // What a syntax error leaves unread comes before the next query.
    {{"select ) select 5", postgresql, -2, nullptr, "Error: syntax error\n"},
     {" + 6", postgresql, 0, "SELECT 5 + 6"}},
    {{"select ) , ;", mysql, -2, nullptr, "Error: syntax error\n"},
     {"", mysql, -2, nullptr, "Error: syntax error\n"},
     {"", mysql, -2, nullptr, "Error: syntax error\n"},
     {"select 7", mysql, 0, "SELECT 7"}},
};

void expect_call(const call &c, int &reason) {
    char *output = nullptr;
    testing::internal::CaptureStdout();
    const int code = quillet_translate_query(c.query, &output, c.builder);
    std::fflush(stdout);
    const std::string printed = testing::internal::GetCapturedStdout();
    const quillet_tests::owned<char> text(output);

    EXPECT_EQ(code, c.code) << c.query;
    EXPECT_EQ(error_code, c.code) << c.query;
    EXPECT_EQ(last_builder_id, c.builder) << c.query;
    EXPECT_EQ(root, nullptr) << c.query;
    EXPECT_EQ(printed, c.printed) << c.query;
    EXPECT_STREQ(output, c.text) << c.query;
    EXPECT_STREQ(quillet_get_error_description(), error_descriptions[-c.code]) << c.query;

    if (c.reason != 0)
        reason = c.reason;
    EXPECT_EQ(quillet_get_detailed_error_code(), c.builder == mysql ? reason : 0) << c.query;
}

// An open string or name and a colon of its own end the process.
bool has_unknown_character(const std::string &query) {
    const auto count = [&](char c) { return std::count(query.begin(), query.end(), c); };
    return count('\'') % 2 != 0 || count('"') % 2 != 0 || count(':') % 2 != 0 ||
           query.find(": ) :") != std::string::npos;
}

} // namespace

TEST(Session, OfThousandsOfCalls) {
    quillet_init();
    quillet_tests::reset_scanner();
    int reason = quillet_mysql_get_error_code();
    std::mt19937 random(20); // the same order every time
    std::uniform_int_distribution<std::size_t> any(0, std::size(scenarios) - 1);
    for (int i = 0; i < 5000; ++i) {
        for (const call &c : scenarios[any(random)])
            expect_call(c, reason);
        if (HasFailure())
            return;
    }
    quillet_tests::reset_scanner();
}

// A statement cut off at every place, and one with a stray token at every place, whatever the
// builder: no call may end in anything but a code, and sanitizers see that none leaks.
TEST(Session, OfBrokenStatements) {
    const std::string statements[] = {
        "select distinct on (a, b) a.b as c, case x when 1 then 'a' else \"d\" end, f(distinct g), "
        "count(*) from t as u, v natural left outer join w cross join x join y on a = b join z "
        "using (m, n) where a between 1 and 2 and not b is null group by a, b.c having d like 'e' "
        "escape 'f' order by g asc, h desc limit 5 offset 6",
        "insert into t (a, b, c) values (1, default, trim(both 'x' from y) || overlay(a placing b "
        "from 1 for 2) || substring(a from 2) || position(a in b) || convert(a using b))",
        "update t set a = cast(b as int)::text, c = interval '1 day' + date '2005-01-01' at time "
        "zone interval 'x' where (a, b) overlaps (c, d) or e is not unknow",
        "delete from t where a !~* 'x' and extract(year from b) = 2005.5 and -c ! = |/ 2 ;",
    };
    quillet_init();
    for (const std::string &statement : statements) {
        for (std::size_t i = 0; i <= statement.size(); ++i) {
            for (const int id : {postgresql, mysql, tree, type_view}) {
                for (const std::string &broken :
                     {statement.substr(0, i),
                      statement.substr(0, i) + " ) " + statement.substr(i)}) {
                    if (has_unknown_character(broken))
                        continue;
                    quillet_tests::reset_scanner();
                    char *output = nullptr;
                    testing::internal::CaptureStdout();
                    const int code = quillet_translate_query(broken.c_str(), &output, id);
                    testing::internal::GetCapturedStdout();
                    const quillet_tests::owned<char> text(output);
                    EXPECT_TRUE(code == 0 || code == -2 || code == -3) << broken;
                    EXPECT_EQ(code == 0, output != nullptr) << broken;
                }
            }
        }
    }
    quillet_tests::reset_scanner();
}
