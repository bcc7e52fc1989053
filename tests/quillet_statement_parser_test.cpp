#include "quillet_statement_parser.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <limits>
#include <memory>
#include <string_view>

#include "quillet_tree_memory.h"

using namespace quillet;
using namespace std::string_view_literals;

namespace {

struct closed {
    void operator()(std::FILE *file) const { std::fclose(file); }
};

// While one lives, standard input has something to read.
class waiting_input {
public:
    explicit waiting_input(std::string_view text) : file_(std::tmpfile()) {
        EXPECT_EQ(std::fwrite(text.data(), 1, text.size(), file_.get()), text.size());
        std::rewind(file_.get());
        EXPECT_EQ(dup2(fileno(file_.get()), STDIN_FILENO), STDIN_FILENO);
    }
    ~waiting_input() {
        dup2(former_, STDIN_FILENO);
        close(former_);
    }
    waiting_input(const waiting_input &) = delete;
    waiting_input &operator=(const waiting_input &) = delete;

    static bool is_untouched() { return lseek(STDIN_FILENO, 0, SEEK_CUR) == 0; }

private:
    const int former_ = dup(STDIN_FILENO);
    const std::unique_ptr<std::FILE, closed> file_;
};

TEST(StatementParser, ReadsNothingButTheStatement) {
    struct faulty {
        std::string_view statement;
        parse_fault fault;
        std::uint32_t begin, end;
    };
    const waiting_input input("from here on from from");
    for (const faulty &each : {
             faulty{"", parse_fault::syntax_error, 0, 0},
             {"\0"sv, parse_fault::unknown_character, 0, 1},
             {"\0select 1"sv, parse_fault::unknown_character, 0, 1},
             {"select a\0"sv, parse_fault::unknown_character, 8, 9},
             {"select a\0b"sv, parse_fault::unknown_character, 8, 9},
             {"select a\0\0"sv, parse_fault::unknown_character, 8, 9},
             {"select a) b\0c"sv, parse_fault::syntax_error, 8, 9},
             {"select 'a\0b'"sv, parse_fault::unknown_character, 9, 10},
         }) {
        tree_memory memory;
        const tree_under_way tree(memory, tree_owner::library,
                                  std::numeric_limits<std::size_t>::max());
        const parse_result parsed = parse_statement(each.statement, memory);
        EXPECT_EQ(parsed.root, nullptr) << each.statement;
        EXPECT_EQ(parsed.fault, each.fault) << each.statement;
        EXPECT_EQ(parsed.where.begin, each.begin) << each.statement;
        EXPECT_EQ(parsed.where.end, each.end) << each.statement;
    }
    EXPECT_TRUE(waiting_input::is_untouched());
}

} // namespace
