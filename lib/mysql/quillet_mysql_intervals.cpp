#include "quillet_mysql_intervals.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "quillet_letter_case.h"
#include "quillet_types.h"

namespace quillet::mysql {

namespace {

constexpr std::string_view units[] = {"microsecond", "second", "minute",  "hour", "day",
                                      "week",        "month",  "quarter", "year"};

bool is_digit(char c) { return c >= '0' && c <= '9'; }

// Takes the first word off a text.
std::string_view taken_word(std::string_view &text) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string_view word = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return word;
}

// A number of digits, perhaps with a fraction.
bool is_number(std::string_view word) {
    const std::size_t digits = word.find_first_not_of("0123456789.");
    return !word.empty() && is_digit(word.front()) && digits == std::string_view::npos &&
           std::count(word.begin(), word.end(), '.') <= 1;
}

// Whether hours, minutes and seconds with colons between them are those of a day.
bool is_on_clock(std::string_view time) {
    for (const int end : {24, 60, 60}) {
        int part = 0;
        std::from_chars(time.data(), time.data() + time.size(), part);
        if (part >= end)
            return false;
        time.remove_prefix(std::min(time.find(':'), time.size() - 1) + 1);
        if (time.empty())
            break;
    }
    return true;
}

// A unit, which may be a plural.
bool is_unit(std::string_view word) {
    if (!word.empty() && lower_case(word.back()) == 's')
        word.remove_suffix(1);
    return std::any_of(std::begin(units), std::end(units),
                       [&](std::string_view unit) { return equal_ignoring_case(unit, word); });
}

} // namespace

interval_form form_of_interval(std::string_view text) {
    interval_form form;
    if (text.starts_with('-'))
        text.remove_prefix(1);
    while (!text.empty()) {
        const std::string_view number = taken_word(text);
        const std::string_view unit = taken_word(text);
        if (!is_number(number) || !is_unit(unit))
            return form;
        ++form.parts;
        const bool is_second = equal_ignoring_case(unit.substr(0, 6), "second");
        form.has_fraction |= number.find('.') != std::string_view::npos && !is_second;
    }
    form.is_read = form.parts > 0;
    return form;
}

bool is_in_calendar(std::string_view text, int type) {
    const bool is_time = type == QUILLET_TYPE_TIME || type == QUILLET_TYPE_TIMEZ;
    const bool has_date = text.find('-') != std::string_view::npos || text.size() == 8;
    const bool has_time = text.find(':') != std::string_view::npos;
    if (is_time ? !has_time : !has_date || (has_time && text.size() == 8))
        return false;
    int year = 0;
    int month = 0;
    int day = 0;
    std::string_view time = text;
    if (text.find('-') != std::string_view::npos) {
        const char *next = text.data();
        const char *end = text.data() + text.size();
        const auto take = [&](int &value) {
            next = std::from_chars(next, end, value).ptr;
            next += next != end ? 1 : 0;
        };
        take(year);
        take(month);
        take(day);
        time = text.substr(static_cast<std::size_t>(next - text.data()));
        const bool is_leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
        constexpr int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        if (month < 1 || month > 12 || day < 1)
            return false;
        if (day > lengths[month - 1] + (is_leap && month == 2 ? 1 : 0))
            return false;
    }
    return !has_time || is_on_clock(time);
}

bool is_numeric_date(std::string_view text) {
    return !text.empty() && is_digit(text.front()) &&
           text.find_first_not_of("0123456789-:. ") == std::string_view::npos;
}

} // namespace quillet::mysql
