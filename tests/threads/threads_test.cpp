// Translations in several threads at the same time, on stacks of all sizes, beside classic calls
// and releases of memory. QUILLET_THREADS_SECONDS says how long.

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <pthread.h>

#include "quillet.h"

namespace {

struct freed {
    void operator()(quillet_translation *made) const { quillet_translation_free(made); }
    void operator()(char *text) const { std::free(text); }
};

// All that a translation says.
std::string told(const std::string &statement, int builder) {
    const std::unique_ptr<quillet_translation, freed> made(
        quillet_translate(statement.data(), statement.size(), builder, nullptr));
    std::string all = std::to_string(made->code) + '|' + (made->text ? made->text : "none");
    for (std::size_t i = 0; i < made->diagnostic_count; ++i) {
        const quillet_diagnostic &each = made->diagnostics[i];
        all += '|' + std::string(each.id) + '|' + each.message + '|' + std::to_string(each.offset) +
               '+' + std::to_string(each.length) + '|' + std::to_string(each.line) + ':' +
               std::to_string(each.column);
    }
    return all;
}

std::string repeated(const std::string &text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

std::string nested(int depth) {
    return "select " + repeated("(", depth) + "initcap(a) || f(b)" + repeated(")", depth);
}

struct task {
    std::string statement;
    int builder;
    std::string expected;
    bool is_deep; // so that a small stack may not do for it
};

std::vector<task> tasks() {
    const std::string statements[] = {
        "select a, b || 'c', extract(year from d) from t where e between 1 and 2 order by 1 desc",
        "select to_char(timestamp '2005-01-01', 'YYYY-MM-DD \"at\" HH24:MI'), to_char(d, 'Q')",
        "select to_char(date '2005-01-01', 'DD Q'), initcap(to_hex(a)), 5 !, interval '1 day' * 2",
        "update t set a = default, b = 'x' where c similar to 'd' or e ?",
        "select a from\nt where b = 'unended",
        "select a from t /* open",
        "insert into t (a, b) values (1, default)",
        "insert into t (a, b) values (1)",
        "select a +",
        "select " + repeated("a + ", 3000) + "to_hex(b)",
        "select " + repeated("a, ", 3000) + "b from t",
        "select '" + repeated("a", 20000) + "'",
    };
    std::vector<task> all;
    for (int builder = 0; builder < quillet_get_builder_count(); ++builder) {
        for (const std::string &statement : statements)
            all.push_back({statement, builder, told(statement, builder), false});
        for (const int depth : {50, 1000, 20000})
            all.push_back({nested(depth), builder, told(nested(depth), builder), true});
    }
    return all;
}

struct work {
    const std::vector<task> &tasks;
    std::chrono::steady_clock::time_point end;
    std::size_t first;
    long done = 0;
    std::string wrong = {};
};

bool is_as_expected(const task &each) {
    const std::string got = told(each.statement, each.builder);
    return got == each.expected || (each.is_deep && got.starts_with("-3|none|") &&
                                    got.find("too-deep") != std::string::npos);
}

void *translate_on(void *argument) {
    work &own = *static_cast<work *>(argument);
    for (std::size_t i = own.first; std::chrono::steady_clock::now() < own.end; ++i) {
        const task &each = own.tasks[i % own.tasks.size()];
        if (!is_as_expected(each)) {
            own.wrong = each.statement.substr(0, 80) + ": " +
                        told(each.statement, each.builder).substr(0, 200);
            break;
        }
        ++own.done;
    }
    return nullptr;
}

std::chrono::seconds duration() {
    const char *seconds = std::getenv("QUILLET_THREADS_SECONDS");
    return std::chrono::seconds(seconds ? std::atoi(seconds) : 1);
}

TEST(Threads, TranslateSideBySide) {
    constexpr std::size_t kibibyte = 1024;
    const std::size_t stacks[] = {64, 64, 128, 256, 512, 1024, 4096, 8192};
    quillet_init();
    const std::vector<task> all = tasks();
    const auto end = std::chrono::steady_clock::now() + duration();

    std::vector<work> works;
    for (std::size_t i = 0; i < std::size(stacks); ++i)
        works.push_back({all, end, i * all.size() / std::size(stacks)});
    std::vector<pthread_t> threads(works.size());
    for (std::size_t i = 0; i < works.size(); ++i) {
        pthread_attr_t attributes;
        ASSERT_EQ(pthread_attr_init(&attributes), 0);
        ASSERT_EQ(pthread_attr_setstacksize(&attributes, stacks[i] * kibibyte), 0);
        ASSERT_EQ(pthread_create(&threads[i], &attributes, translate_on, &works[i]), 0);
        pthread_attr_destroy(&attributes);
    }

    // The classic calls are one at a time, but not alone.
    long classic_calls = 0;
    while (std::chrono::steady_clock::now() < end) {
        char *text = nullptr;
        ASSERT_EQ(quillet_translate_query("select a || b, to_char(date 'x', 'YYYY')", &text, 1), 0);
        const std::unique_ptr<char, freed> owned(text);
        ASSERT_STREQ(text, "SELECT CONCAT(a, b), DATE_FORMAT(CAST('x' AS DATE), '%Y')");
        ASSERT_EQ(quillet_translate_query("select initcap(a)", &text, 1), -3);
        ASSERT_EQ(quillet_get_detailed_error_code(), -11);
        if (++classic_calls % 64 == 0)
            quillet_release_memory();
    }

    long done = 0;
    for (std::size_t i = 0; i < works.size(); ++i) {
        pthread_join(threads[i], nullptr);
        EXPECT_EQ(works[i].wrong, "") << stacks[i] << " KiB";
        EXPECT_GT(works[i].done, 0) << stacks[i] << " KiB";
        done += works[i].done;
    }
    RecordProperty("translations", std::to_string(done));
    RecordProperty("classic_calls", std::to_string(classic_calls));
}

} // namespace
