// Without memory quillet_translate gives a translation that says so and nothing else.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "fixture.h"
#include "host_builder.h"
#include "quillet.h"
#include "statements.h"
#include "translation_checks.h"
#include "watch.h"

using namespace quillet_tests;

namespace {

// Statements that fail, one for each way to.
std::vector<std::string> failing_statements() {
    using namespace std::string_literals;
    return {
        "select a from t where b = = 'c'",
        "select a, cast('b' as double precision) from t natural join u )",
        "select ?",
        "select a from t where b = \xc3\xa9",
        "select 'a",
        "select \"a",
        "select a from t where b = \"\"",
        "select a /* b",
        "select a from /* b",
        "select a\0 from t"s,
        "select ltrim(), extract() from t",
        "insert into t (a, b) values (1)",
        "select timestamp 'a' at foo zone 'b'",
        "select initcap(a), timestamp 'b' at time zone 'c' from t where to_hex(d) ~~ age(e)",
        "select cast(initcap(a) as date) from t",
        "select " + repeated("(", 6000) + "a" + repeated(")", 6000),
        "select " + repeated("initcap(a), ", 1000) + "b from t",
        "select initcap('" + repeated("a", 100000) + "')",
    };
}

std::vector<std::string> hosted_statements() {
    return {
        "select a + 1, upper(b), case when c then 'd' end from t order by b desc limit 3",
        "select initcap(a), cast(b as real) from t where c between 1 and 2 limit 1 offset 2",
        "select cast(b as date) from t where ltrim() = to_hex(c)",
    };
}

owned_translation translate(std::string_view statement, int id, long failing = 0) {
    return owned_translation(
        watched([&] { return quillet_translate(statement.data(), statement.size(), id, nullptr); },
                failing));
}

void free_counted(owned_translation made) {
    watched_on([&] { made.reset(); });
}

bool says_out_of_memory(const quillet_translation &made) {
    return made.code == QUILLET_CAN_NOT_TRANSLATE && !made.text && made.text_length == 0 &&
           made.diagnostic_count == 1 && made.diagnostics[0].severity == QUILLET_ERROR &&
           has_id(made, "out-of-memory");
}

class Translation : public Memory {
protected:
    void SetUp() override {
        Memory::SetUp();
        testing::internal::CaptureStdout();
    }

    void TearDown() override {
        Memory::TearDown();
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    }

    // Lets each allocation of a translation fail, or of hundreds, as without an arena, some hundred
    // of them. Returns how many have failed.
    static long fail_each(const std::string &statement, int id) {
        SCOPED_TRACE(statement.substr(0, 60) + ' ' + std::to_string(id));
        forget();
        owned_translation made = translate(statement, id);
        const long count = allocations;
        const std::string expected = shown(*made);
        free_counted(std::move(made));
        const long step = count > 200 ? count / 100 : 1;
        long failed = 0;
        for (long failing = 1; failing <= count; failing += step) {
            forget();
            EXPECT_EQ(live_blocks, 0) << failing;
            made = translate(statement, id, failing);
            failed += has_failed;
            EXPECT_TRUE(has_failed) << failing;
            if (can_do_without)
                EXPECT_EQ(shown(*made), expected) << failing;
            else
                EXPECT_TRUE(says_out_of_memory(*made)) << failing << ": " << shown(*made);
            free_counted(std::move(made));
            made = translate(statement, id);
            EXPECT_EQ(shown(*made), expected) << failing;
            free_counted(std::move(made));
        }
        forget();
        EXPECT_EQ(live_blocks, 0);
        return failed;
    }
};

TEST_F(Translation, LacksForUsualStatements) {
    for (const std::string &statement : usual_statements())
        for (int id = 0; id < quillet_get_builder_count(); ++id)
            EXPECT_GE(fail_each(statement, id), 8) << statement;
}

TEST_F(Translation, LacksForLargeStatements) {
    for (const std::string &statement : large_statements())
        for (int id = 0; id < quillet_get_builder_count(); ++id)
            EXPECT_GE(fail_each(statement, id), 8) << statement.substr(0, 60);
}

TEST_F(Translation, LacksForWhatFails) {
    for (const std::string &statement : failing_statements())
        for (int id = 0; id < quillet_get_builder_count(); ++id)
            EXPECT_GE(fail_each(statement, id), 4) << statement.substr(0, 60);
    EXPECT_GE(fail_each("select a", quillet_get_builder_count()), 2);
}

// What a host's operations get in between is NULL, and the whole fails all the same.
TEST_F(Translation, LacksForTheOperationsOfAHost) {
    for (const std::string &statement : hosted_statements())
        for (int id = 0; id < quillet_get_builder_count(); ++id) {
            const hosted host(id);
            EXPECT_GE(fail_each(statement, id), 50) << statement;
        }
}

// To free what a syntax error leaves of a tree for a host may do without, and then the error
// stands.
TEST_F(Translation, LacksForAParseForAHost) {
    const std::string statement = "select double precision 'a', cast(b as double precision) from )";
    const hosted host(0);
    owned_translation made = translate(statement, 0);
    const std::string expected = shown(*made);
    ASSERT_TRUE(has_id(*made, "syntax-error"));
    free_counted(std::move(made));
    const long count = allocations;
    long lacking = 0;
    for (long failing = 1; failing <= count; ++failing) {
        forget();
        EXPECT_EQ(live_blocks, 0) << failing;
        made = translate(statement, 0, failing);
        EXPECT_TRUE(has_failed) << failing;
        lacking += says_out_of_memory(*made);
        EXPECT_TRUE(says_out_of_memory(*made) || shown(*made) == expected) << failing;
        free_counted(std::move(made));
    }
    EXPECT_GE(lacking, count - 4); // the list of what is given, and the sort's memory
}

// A call has what an earlier one has left, and needs less; for want of that it fails as well.
TEST_F(Translation, LacksForALaterStatement) {
    for (const std::string &statement : failing_statements())
        for (long failing = 1;; failing += failing / 50 + 1) {
            free_counted(translate("select a from t", 1));
            owned_translation made = translate(statement, 1, failing);
            const bool is_lacking = has_failed && !can_do_without;
            EXPECT_EQ(says_out_of_memory(*made), is_lacking) << statement.substr(0, 60);
            const bool has_ended = !has_failed;
            free_counted(std::move(made));
            if (has_ended)
                break;
            forget();
            EXPECT_EQ(live_blocks, 0) << statement.substr(0, 60) << ' ' << failing;
        }
}

} // namespace
