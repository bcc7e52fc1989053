/*
 * Arithmetic with dates, times and intervals in the builder mysql: the texts by the types of the
 * operands. The first row that fits counts; what no row fits is rendered by default. Internal.
 */
#ifndef QUILLET_MYSQL_ARITHMETIC_H
#define QUILLET_MYSQL_ARITHMETIC_H

#include "quillet_mysql_errors.h"
#include "quillet_rules.h"

namespace quillet::mysql {

namespace operand_types {

inline constexpr type_set date = type_set::of(QUILLET_TYPE_DATE);
inline constexpr type_set time = type_set::of(QUILLET_TYPE_TIME);
inline constexpr type_set timestamp = type_set::of(QUILLET_TYPE_TIMESTAMP);
inline constexpr type_set interval = type_set::of(QUILLET_TYPE_INTERVAL);
inline constexpr type_set integer = integer_types;
inline constexpr type_set moment = datetime_types_not_interval;
inline constexpr type_set any = any_type;

constexpr typed_text row(type_set left, type_set right, std::string_view text, int type,
                         std::size_t skipped = 0) {
    return {left, right, text_template(text), type, skipped};
}

constexpr typed_text row(type_set left, type_set right, reason why) {
    return {.left = left, .right = right, .refusal = static_cast<std::int32_t>(why)};
}

} // namespace operand_types

inline constexpr auto sums = [] {
    using namespace operand_types;
    return std::to_array({
        row(date, integer, "$1 + INTERVAL $2 DAY", QUILLET_TYPE_DATE),
        row(integer, date, "$2 + INTERVAL $1 DAY", QUILLET_TYPE_DATE),
        row(timestamp, time, "ADDTIME($1, $2)", QUILLET_TYPE_TIMESTAMP),
        row(moment, time, "ADDTIME(CAST($1 AS DATETIME), $2)", QUILLET_TYPE_TIMESTAMP),
        row(time, timestamp, "ADDTIME($2, $1)", QUILLET_TYPE_TIMESTAMP),
        row(time, moment, "ADDTIME(CAST($2 AS DATETIME), $1)", QUILLET_TYPE_TIMESTAMP),
        row(interval, interval, reason::INTERVAL_SUM),
        row(time, interval, reason::INTERVAL_SUM),
        row(interval, time, reason::INTERVAL_SUM),
    });
}();

inline constexpr auto differences = [] {
    using namespace operand_types;
    return std::to_array({
        row(date, date, "TO_DAYS($1) - TO_DAYS($2)", QUILLET_TYPE_INT8),
        row(time, time, reason::INTERVAL_DIFFERENCE),
        row(date, integer, "$1 - INTERVAL $2 DAY", QUILLET_TYPE_DATE),
        row(integer, date, "$2 - INTERVAL $1 DAY", QUILLET_TYPE_DATE), // the mirror image of +
        row(interval, interval, reason::INTERVAL_DIFFERENCE),
        row(time, interval, reason::INTERVAL_DIFFERENCE),
        row(interval, time, reason::INTERVAL_DIFFERENCE),
        row(timestamp, timestamp, reason::INTERVAL_DIFFERENCE),
    });
}();

inline constexpr auto products = [] {
    using namespace operand_types;
    return std::to_array({
        row(interval, any, reason::INTERVAL_PRODUCT),
        row(any, interval, reason::INTERVAL_PRODUCT),
    });
}();

inline constexpr auto quotients = [] {
    using namespace operand_types;
    return std::to_array({
        row(interval, any, reason::INTERVAL_QUOTIENT),
        row(any, interval, reason::INTERVAL_QUOTIENT),
    });
}();

// The minus of an interval stands after its first word, whatever that is.
inline constexpr auto negations = [] {
    using namespace operand_types;
    constexpr std::string_view word = "INTERVAL ";
    return std::to_array({
        row(interval, any, "INTERVAL -$1", QUILLET_TYPE_INTERVAL, word.size()),
    });
}();

} // namespace quillet::mysql

#endif
