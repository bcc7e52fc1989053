/*
 * What MySQL makes of the literals of intervals and dates. Internal.
 */
#ifndef QUILLET_MYSQL_INTERVALS_H
#define QUILLET_MYSQL_INTERVALS_H

#include <string_view>

namespace quillet::mysql {

// The form of an interval literal.
struct interval_form {
    bool is_read = false;      // it consists of numbers with units that MySQL has
    bool has_fraction = false; // of another unit than the second
    int parts = 0;
};

interval_form form_of_interval(std::string_view text);

// Whether a date or time is written in numbers.
bool is_numeric_date(std::string_view text);

// Whether there is the date or time of a type that a text in numbers names.
bool is_in_calendar(std::string_view text, int type);

} // namespace quillet::mysql

#endif
