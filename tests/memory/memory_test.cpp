// Without memory a translation fails with a code: nothing is printed, nothing ends the process,
// nothing stays behind, and the next translation gives its text.

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "fixture.h"
#include "host_builder.h"
#include "quillet.h"
#include "quillet_date_format_parser.h"
#include "quillet_parser.h"
#include "quillet_strings_tools.h"
#include "quillet_tree_view_builder.h"
#include "statements.h"
#include "watch.h"

using namespace quillet_tests;

namespace {

struct translation {
    int code;
    std::string text;
    std::string printed;
    bool operator==(const translation &) const = default;
};

translation translate(const std::string &statement, int id, long failing = 0) {
    char *output = nullptr;
    testing::internal::CaptureStdout();
    const int code =
        watched([&] { return quillet_translate_query(statement.c_str(), &output, id); }, failing);
    const translation result{code, output ? output : "none",
                             testing::internal::GetCapturedStdout()};
    watched_on([&] { std::free(output); });
    return result;
}

class Classic : public Memory {
protected:
    // Lets each allocation of a translation fail, or where there are thousands, as without an
    // arena, some hundred of them. Returns how many there are.
    static long fail_each(const std::string &statement, int id) {
        forget();
        const translation expected = translate(statement, id);
        const long step = allocations / 100 + 1;
        for (long failing = 1;; failing += step) {
            forget();
            EXPECT_EQ(live_blocks, 0) << statement.substr(0, 60) << ' ' << id << ' ' << failing;
            const translation result = translate(statement, id, failing);
            if (!has_failed) {
                EXPECT_EQ(result, expected);
                return failing - 1;
            }
            EXPECT_EQ(result, (translation{-3, "none", ""}))
                << statement.substr(0, 60) << ' ' << id << ' ' << failing;
            EXPECT_STREQ(quillet_get_error_description(), "can not translate");
            EXPECT_EQ(translate(statement, id), expected)
                << statement.substr(0, 60) << ' ' << id << ' ' << failing;
        }
    }
};

TEST_F(Classic, LacksForUsualStatements) {
    for (const std::string &statement : usual_statements())
        for (int id = 0; id < quillet_get_builder_count(); ++id)
            EXPECT_GE(fail_each(statement, id), 5) << statement;
}

TEST_F(Classic, LacksForLargeStatements) {
    for (const std::string &statement : large_statements())
        for (int id = 0; id < quillet_get_builder_count(); ++id)
            EXPECT_GE(fail_each(statement, id), 5) << statement.substr(0, 60);
}

// What a host's operations get in between is NULL, and the whole fails all the same.
TEST_F(Memory, LacksForTheOperationsOfAHost) {
    const std::string statement = "select a + 1, upper(b), case when c then 'd' end from t where "
                                  "a between 1 and 2 order by b desc limit 3";
    for (int id = 0; id < quillet_get_builder_count(); ++id) {
        const quillet_tests::hosted host(id);
        const translation expected = translate(statement, id);
        ASSERT_EQ(expected.code, 0);
        for (long failing = 1;; ++failing) {
            forget();
            EXPECT_EQ(live_blocks, 0) << id << ' ' << failing;
            const translation result = translate(statement, id, failing);
            if (!has_failed)
                break;
            EXPECT_EQ(result, (translation{-3, "none", ""})) << id << ' ' << failing;
            EXPECT_EQ(translate(statement, id), expected) << id << ' ' << failing;
        }
    }
}

// Operations that make something return NULL.
TEST_F(Memory, LacksForWhatIsMade) {
    // Makes something, frees it and says whether it was there.
    const auto expect_null = [](auto make) {
        for (long failing = 1;; ++failing) {
            const bool is_made = watched(make, failing);
            EXPECT_EQ(is_made, !has_failed);
            EXPECT_EQ(live_blocks, 0);
            if (!has_failed)
                return;
        }
    };
    const auto freed_builder = [](builder *made) {
        const bool is_made = made != nullptr;
        if (made)
            quillet_builder_free(made);
        return is_made;
    };
    const auto freed_text = [](char *made) {
        const bool is_made = made != nullptr;
        std::free(made);
        return is_made;
    };
    for (int id = 0; id < quillet_get_builder_count(); ++id)
        expect_null([&] { return freed_builder(quillet_get_builder_info(id)->constructor()); });
    expect_null([&] { return freed_text(quillet_concat("a", "b")); });
    expect_null([&] { return freed_text(quillet_extract_string("abc", 1, 1)); });
    expect_null([&] { return freed_text(quillet_print(2, "label", 0)); });
    expect_null([] {
        node_select *made = quillet_node_select_create();
        const bool is_made = made != nullptr;
        quillet_node_select_free(made);
        return is_made;
    });
    expect_null([] {
        build_result *made = quillet_build_result_create();
        const bool is_made = made != nullptr;
        std::free(made);
        return is_made;
    });
    forget();
    for (long failing = 1;; ++failing) {
        date_format_node *made =
            watched([] { return quillet_date_format_parse("YYYY \"text\" MM"); }, failing);
        const bool was_refused = has_failed;
        EXPECT_EQ(made == nullptr, was_refused);
        watched([&] {
            quillet_date_format_node_free(made);
            return 0;
        });
        forget();
        EXPECT_EQ(live_blocks, 0) << failing;
        if (!was_refused)
            break;
    }
}

// A tree that could not be finished is freed, and so is what a syntax error leaves of one.
TEST_F(Memory, LacksForAParse) {
    struct parse_case {
        const char *statement;
        int result;
    };
    for (const parse_case &parsed :
         {parse_case{"select a, cast('b' as double precision) from t natural join u", 1},
          {"select double precision 'a', cast(b as int) from t left join u on c", 0},
          {"insert into t (a) values (1, default, 'c' || d) where", 1}})
        for (long failing = 1;; ++failing) {
            forget();
            EXPECT_EQ(live_blocks, 0) << parsed.statement << ' ' << failing;
            testing::internal::CaptureStdout();
            const int found = watched([&] { return quillet_parse(parsed.statement); }, failing);
            const std::string printed = testing::internal::GetCapturedStdout();
            const bool was_refused = has_failed;
            node_main *tree = quillet_take_root();
            // To free what a syntax error leaves may do without.
            if (was_refused && found != parsed.result) {
                EXPECT_EQ(found, QUILLET_PARSE_STACK_OVERFLOW) << parsed.statement << failing;
                EXPECT_EQ(printed, "") << parsed.statement << failing;
            } else {
                EXPECT_EQ(found, parsed.result) << parsed.statement << failing;
                EXPECT_EQ(printed, found ? "Error: syntax error\n" : "");
                EXPECT_EQ(was_refused && found == QUILLET_PARSE_ACCEPTED, false);
            }
            EXPECT_EQ(tree != nullptr, found == QUILLET_PARSE_ACCEPTED);
            watched([&] {
                quillet_node_main_free(tree);
                return 0;
            });
            if (!was_refused)
                break;
        }
}

// What is given back is all that was kept; what a failed query left unread is still there.
TEST_F(Memory, IsGivenBack) {
    translate("select " + repeated("a, ", 20000) + "b from t", 1);
    EXPECT_GT(live_blocks, 0);
    watched([] {
        quillet_release_memory();
        return 0;
    });
    EXPECT_EQ(live_blocks, 0);
    EXPECT_EQ(translate("select 1 /* a", 0).text, "SELECT 1");
    watched([] {
        quillet_release_memory();
        return 0;
    });
    EXPECT_EQ(translate("b */ select 2", 0).text, "SELECT 2");
    EXPECT_EQ(translate("select ) select 3", 0),
              (translation{-2, "none", "Error: syntax error\n"}));
    watched([] {
        quillet_release_memory();
        return 0;
    });
    EXPECT_EQ(translate(" + 4", 0).text, "SELECT 3 + 4");
}

} // namespace
