#include "basics/Date.h"

#include <gtest/gtest.h>

namespace zy::test {
namespace {

using namespace std::chrono_literals;

TEST(DateTest, TwoDigitsBelowFiftyAreYearsOfThisCentury) {
    EXPECT_EQ(FullYear(0), 2000);
    EXPECT_EQ(FullYear(49), 2049);
    EXPECT_EQ(FullYear(50), 1950);
    EXPECT_EQ(FullYear(99), 1999);
}

TEST(DateTest, AYearAMonthAndADayAreADate) {
    EXPECT_EQ(ParseDate("26-11-20"), 2026y / 11 / 20);
    EXPECT_EQ(ParseDate("26/11/20"), 2026y / 11 / 20);
    EXPECT_EQ(ParseDate("26.11.20"), 2026y / 11 / 20);
    EXPECT_EQ(ParseDate("26-1-5"), 2026y / 1 / 5);
    EXPECT_EQ(ParseDate("2026-1-5"), 2026y / 1 / 5);
    EXPECT_EQ(ParseDate("49-12-31"), 2049y / 12 / 31);
    EXPECT_EQ(ParseDate("50-01-01"), 1950y / 1 / 1);
}

TEST(DateTest, ADayThatTheCalendarLacksIsNoDate) {
    EXPECT_EQ(ParseDate("00-02-29"), 2000y / 2 / 29);
    EXPECT_EQ(ParseDate("24-02-29"), 2024y / 2 / 29);
    for (const auto* text :
         {"26-02-29", "50-02-29", "26-04-31", "26-13-01", "26-00-10", "26-01-00", "26-01-32"}) {
        EXPECT_FALSE(ParseDate(text)) << text;
    }
}

TEST(DateTest, YearsOfFourDigitsBeginWithTheHundredth) {
    EXPECT_EQ(ParseDate("0100-01-01"), 100y / 1 / 1);
    EXPECT_EQ(ParseDate("0099-12-31"), std::nullopt);
}

TEST(DateTest, OtherTextsAreNoDates) {
    for (const auto* text :
         {"",         "YY-MM-DD", "26",       "26-11",    "26-11-",   "-11-20",    "26-11/20", "26--20",
          "261120",   " 26-11-2", "26-11-2 ", "6-11-20",  "226-1-1",  "0099-1-1",  "26-111-1", "26-1-111",
          "26-001-1", "26-1-001", "20 Nov",   "11:20:26", "2a-11-20", "26-11-20x", "+6-11-20"}) {
        EXPECT_FALSE(ParseDate(text)) << text;
    }
}

TEST(DateTest, OnlyTwoDigitsEachBetweenHyphensAreAShortDate) {
    EXPECT_EQ(ParseShortDate("26-11-20"), 2026y / 11 / 20);
    for (const auto* text : {"26/11/20", "2026-1-5", "26-1-5", "26-02-30", "", "YY-MM-DD"}) {
        EXPECT_FALSE(ParseShortDate(text)) << text;
    }
}

TEST(DateTest, AShortDateHasTwoDigitsForEachPart) {
    EXPECT_EQ(ShortDate(2026y / 11 / 20), "26-11-20");
    EXPECT_EQ(ShortDate(2005y / 1 / 2), "05-01-02");
    EXPECT_EQ(ShortDate(1999y / 12 / 31), "99-12-31");
}

} // namespace
} // namespace zy::test
