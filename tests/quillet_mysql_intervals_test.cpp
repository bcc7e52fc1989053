// What MySQL makes of the texts of intervals, dates and times, before it sees them.

#include <gtest/gtest.h>

#include "quillet_mysql_intervals.h"
#include "quillet_types.h"

namespace {

using namespace quillet::mysql;

interval_form form(const char *text) { return form_of_interval(text); }

} // namespace

TEST(IntervalForm, IsReadIfEachNumberHasAUnit) {
    for (const char *text : {"1 day", "1 day 2 hours", "-1 day", "1 DAY", "10 Minutes",
                             "3 quarters 1 microsecond", "1 week", "1 year 2 months", "1.5 hours"})
        EXPECT_TRUE(form(text).is_read) << text;
}

TEST(IntervalForm, IsNotReadOtherwise) {
    for (const char *text : {"",          "-",
                             "1",         "day",
                             "day 1",     "1 day 2",
                             "01:30:00",  "1 day 01:30:00",
                             "1 day ago", "1  day",
                             " 1 day",    "- 1 day",
                             "+1 day",    "1 day -2 hours",
                             "1e3 days",  "1..5 days",
                             ".5 days",   "1 fortnight",
                             "1 dayss",   "1 decade",
                             "P1D",       "1day"})
        EXPECT_FALSE(form(text).is_read) << text;
}

TEST(IntervalForm, CountsItsParts) {
    EXPECT_EQ(form("1 day").parts, 1);
    EXPECT_EQ(form("-1 day").parts, 1);
    EXPECT_EQ(form("1 day 2 hours").parts, 2);
    EXPECT_EQ(form("1 year 2 months 3 days 4 hours").parts, 4);
    EXPECT_EQ(form("01:30:00").parts, 0);
}

// MySQL takes a fraction of a second and rounds every other one.
TEST(IntervalForm, HasAFractionUnlessItIsOfSeconds) {
    for (const char *text : {"1.5 hours", "0.5 day", "1 day 2.5 hours", "2.5 hours 1 second",
                             "1.5 microseconds", "1.0 months"})
        EXPECT_TRUE(form(text).has_fraction) << text;
    for (const char *text : {"1.5 seconds", "0.25 second", "1.5 SECONDS", "1 day", "15 hours"})
        EXPECT_FALSE(form(text).has_fraction) << text;
}

TEST(NumericDate, BeginsWithADigitAndHasNoWords) {
    for (const char *text : {"2005-01-31", "2005-01-31 10:20:30", "20050131", "10:20:30",
                             "2005-01-31 10:20:30.5", "2005-1-5", "7"})
        EXPECT_TRUE(is_numeric_date(text)) << text;
    for (const char *text :
         {"", "today", "infinity", "January 1, 2005", "2005-Jan-31", "1/8/1999", "04:05 PM", "-7",
          " 2005-01-31", "2005-01-31T10:20:30", "2005-01-31 10:20:30+02"})
        EXPECT_FALSE(is_numeric_date(text)) << text;
}

TEST(Calendar, HasTheDaysOfEachMonth) {
    for (const char *text : {"2005-01-31", "2005-04-30", "2005-12-31", "2004-02-29", "2000-02-29",
                             "2005-1-5", "20050131"})
        EXPECT_TRUE(is_in_calendar(text, QUILLET_TYPE_DATE)) << text;
    for (const char *text :
         {"2005-02-29", "1900-02-29", "2100-02-29", "2005-04-31", "2005-06-31", "2005-09-31",
          "2005-11-31", "2005-01-32", "2005-01-00", "2005-00-10", "2005-13-01", "7", "10:20:30"})
        EXPECT_FALSE(is_in_calendar(text, QUILLET_TYPE_DATE)) << text;
}

TEST(Calendar, HasTheTimesOfADay) {
    for (const char *text : {"2005-01-31 00:00:00", "2005-01-31 23:59:59", "2005-01-31 23:59",
                             "2005-01-31 10:20:30.999999", "2005-01-31"})
        EXPECT_TRUE(is_in_calendar(text, QUILLET_TYPE_TIMESTAMP)) << text;
    for (const char *text : {"2005-01-31 24:00:00", "2005-01-31 10:60:00", "2005-01-31 10:20:60",
                             "2005-02-30 10:20:30", "2005-01-31 10:60", "10:20:30", "7"})
        EXPECT_FALSE(is_in_calendar(text, QUILLET_TYPE_TIMESTAMP)) << text;
}

TEST(Calendar, HasTimesWithoutADay) {
    for (const int type : {int{QUILLET_TYPE_TIME}, int{QUILLET_TYPE_TIMEZ}}) {
        for (const char *text : {"10:20:30", "10:20", "00:00:00", "23:59:59.5", "1:02:03"})
            EXPECT_TRUE(is_in_calendar(text, type)) << text;
        for (const char *text :
             {"24:00:00", "25:00:00", "10:60:00", "10:20:61", "7", "102030", "2005-01-31"})
            EXPECT_FALSE(is_in_calendar(text, type)) << text;
    }
}
