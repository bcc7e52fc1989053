#include "quillet_parser_tools.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <type_traits>

namespace {

static_assert(std::is_same_v<decltype(parse_data::string), char *>);
static_assert(std::is_same_v<decltype(parse_data::length), int>);
static_assert(std::is_same_v<decltype(parse_data::pos), int>);
static_assert(offsetof(parse_data, string) == 0);
static_assert(offsetof(parse_data, length) == sizeof(char *));
static_assert(offsetof(parse_data, pos) == sizeof(char *) + sizeof(int));

struct release {
    void operator()(parse_data *data) const { _quillet_parse_data_free(data); }
};

using owned_data = std::unique_ptr<parse_data, release>;

TEST(ParseData, HoldsACopy) {
    const std::string text = "select 1";
    const owned_data data(_quillet_parse_data_create(text.c_str()));
    EXPECT_STREQ(data->string, "select 1");
    EXPECT_NE(data->string, text.c_str());
    EXPECT_EQ(data->length, 8);
    EXPECT_EQ(data->pos, 0);
}

TEST(ParseData, OfTheEmptyText) {
    const owned_data data(_quillet_parse_data_create(""));
    EXPECT_STREQ(data->string, "");
    EXPECT_EQ(data->length, 0);
    char untouched = '?';
    EXPECT_EQ(_quillet_input_from_string(data.get(), &untouched, 1), 0);
    EXPECT_EQ(untouched, '?');
    EXPECT_EQ(data->pos, 0);
}

struct step {
    int max_size;
    const char *read;
};

void expect_steps(const char *text, const std::initializer_list<step> &steps) {
    const owned_data data(_quillet_parse_data_create(text));
    int position = 0;
    for (const auto &[max_size, read] : steps) {
        char buffer[16];
        std::memset(buffer, '?', sizeof buffer);
        const auto count = static_cast<int>(std::strlen(read));
        EXPECT_EQ(_quillet_input_from_string(data.get(), buffer, max_size), count);
        EXPECT_EQ(std::string(buffer, sizeof buffer),
                  read + std::string(sizeof buffer - static_cast<std::size_t>(count), '?'));
        position += count;
        EXPECT_EQ(data->pos, position);
    }
    EXPECT_STREQ(data->string, text);
}

TEST(InputFromString, HandsOutTheTextInSteps) {
    expect_steps("abcdefg", {{3, "abc"}, {3, "def"}, {3, "g"}, {3, ""}, {3, ""}});
    expect_steps("abc", {{3, "abc"}, {1, ""}});
    expect_steps("abc", {{16, "abc"}, {16, ""}});
    expect_steps("abc", {{1, "a"}, {0, ""}, {1, "b"}, {9, "c"}, {9, ""}});
    expect_steps("\xff\n\x01", {{2, "\xff\n"}, {2, "\x01"}, {2, ""}});
    expect_steps("", {{8, ""}});
}

TEST(InputFromString, HandsOutALongTextWhole) {
    std::string text;
    for (int i = 0; i < 10'000; ++i)
        text += std::to_string(i);
    const owned_data data(_quillet_parse_data_create(text.c_str()));
    std::string read;
    char buffer[8192];
    while (const int count = _quillet_input_from_string(data.get(), buffer, sizeof buffer))
        read.append(buffer, static_cast<std::size_t>(count));
    EXPECT_EQ(read, text);
    EXPECT_EQ(data->pos, data->length);
}

} // namespace
