// Without memory a translation fails with a code: nothing is printed, nothing ends the process,
// nothing stays behind, and the next translation gives its text.

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <new>
#include <string>
#include <vector>

#include "host_builder.h"
#include "quillet.h"
#include "quillet_date_format_parser.h"
#include "quillet_parser.h"
#include "quillet_strings_tools.h"
#include "quillet_tree_view_builder.h"

// The linker gives the names.
// NOLINTBEGIN(bugprone-reserved-identifier)

extern "C" {
int yy_quillet_lex_destroy(void);
void *__real_malloc(std::size_t size);
void *__real_calloc(std::size_t count, std::size_t size);
void *__real_realloc(void *block, std::size_t size);
void *__real_aligned_alloc(std::size_t alignment, std::size_t size);
void __real_free(void *block);
}

namespace {

// While the library is watched its blocks are counted, and one allocation may fail.
volatile bool is_watching = false; // which the compiler thinks that free does not look at
long live_blocks = 0;
long allocations = 0;
long failing_allocation = 0; // the number of the one that fails, 0 for none
bool has_failed = false;

bool is_allowed() {
    if (!is_watching)
        return true;
    if (++allocations != failing_allocation)
        return true;
    has_failed = true;
    return false;
}

void *counted(void *block) {
    if (is_watching && block)
        ++live_blocks;
    return block;
}

void discount(const void *block) {
    if (is_watching && block)
        --live_blocks;
}

// Watches a call of the library, in which one allocation fails.
template <class Call> auto watched(Call call, long failing = 0) {
    is_watching = true;
    allocations = 0;
    failing_allocation = failing;
    has_failed = false;
    auto result = call();
    is_watching = false;
    return result;
}

} // namespace

extern "C" {

void *__wrap_malloc(std::size_t size) {
    return is_allowed() ? counted(__real_malloc(size)) : nullptr;
}

void *__wrap_calloc(std::size_t count, std::size_t size) {
    return is_allowed() ? counted(__real_calloc(count, size)) : nullptr;
}

void *__wrap_realloc(void *block, std::size_t size) {
    if (!is_allowed())
        return nullptr;
    void *moved = __real_realloc(block, size);
    return block ? moved : counted(moved);
}

void *__wrap_aligned_alloc(std::size_t alignment, std::size_t size) {
    return is_allowed() ? counted(__real_aligned_alloc(alignment, size)) : nullptr;
}

void __wrap_free(void *block) {
    discount(block);
    __real_free(block);
}
}

void *operator new(std::size_t size) {
    void *block = is_allowed() ? counted(__real_malloc(size)) : nullptr;
    if (!block)
        throw std::bad_alloc();
    return block;
}

void operator delete(void *block) noexcept {
    discount(block);
    __real_free(block);
}

void operator delete(void *block, std::size_t) noexcept { operator delete(block); }

// NOLINTEND(bugprone-reserved-identifier)

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
    is_watching = true;
    std::free(output);
    is_watching = false;
    return result;
}

// As at the beginning of the process.
void forget() {
    watched([] {
        yy_quillet_lex_destroy();
        quillet_release_memory();
        return 0;
    });
}

std::string repeated(const std::string &text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

std::vector<std::string> statements() {
    std::ifstream file(STATEMENTS);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    std::vector<std::string> found;
    for (std::size_t begin = 0, end = 0; (end = text.find(';', begin)) != std::string::npos;
         begin = end + 1)
        found.push_back(text.substr(begin, end + 1 - begin));
    return found;
}

// What makes each of the library's memories grow.
std::vector<std::string> large_statements() {
    return {
        "select " + repeated("a, ", 3000) + "b from t",
        "select " + repeated("a + ", 3000) + "b",
        "select " + repeated("(", 500) + "a" + repeated(")", 500),
        "select " + repeated("f(", 300) + "a" + repeated(")", 300),
        "select '" + repeated("a", 100000) + "'",
        "select to_char(timestamp '2005-01-01', '" + repeated("YYYY-DD \"text\" ", 30) + "')",
        "select a is distinct from b || 'c', a is true, timestamp 'x' at time zone 'y' from t",
        "select double precision 'x' + cast(a as int) from t where b = c",
        "select date_trunc('month', d), ltrim(s, 'x'), overlay(a placing b from 1 for 2) from t",
        "select case when a then b else c end from t natural join u limit 1 offset 2",
        "insert into t (a, b) values (1, default)",
    };
}

class Memory : public testing::Test {
protected:
    void SetUp() override {
        quillet_init();
        forget();
        live_blocks = 0;
    }

    void TearDown() override { forget(); }

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

TEST_F(Memory, LacksForUsualStatements) {
    for (const std::string &statement : statements())
        for (int id = 0; id < quillet_get_builder_count(); ++id)
            EXPECT_GE(fail_each(statement, id), 8) << statement;
}

TEST_F(Memory, LacksForLargeStatements) {
    for (const std::string &statement : large_statements())
        for (int id = 0; id < quillet_get_builder_count(); ++id)
            EXPECT_GE(fail_each(statement, id), 8) << statement.substr(0, 60);
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
