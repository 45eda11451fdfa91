#include "platform/TimeDigits.h"

#include <gtest/gtest.h>

namespace zy::test {
namespace {

using namespace std::chrono_literals;

TEST(Digits, AreFilledWithZerosAndNeverCutOff) {
    EXPECT_EQ(Digits(0, 2), "00");
    EXPECT_EQ(Digits(7, 3), "007");
    EXPECT_EQ(Digits(123, 2), "123");
}

TEST(TimeDigits, SortByTime) {
    EXPECT_EQ(DateDigits(2026y / 1 / 2), "20260102");
    EXPECT_EQ(DateDigits(987y / 11 / 22), "09871122");
    EXPECT_EQ(ClockDigits(0s), "000000");
    EXPECT_EQ(ClockDigits(3h + 4min + 5s), "030405");
    EXPECT_EQ(ClockDigits(23h + 59min + 59s), "235959");
}

TEST(PlainTime, IsUnderstoodEverywhere) {
    EXPECT_EQ(PlainTime(std::chrono::local_days(2026y / 11 / 22) + 14h + 7min + 5s), "2026-11-22 14:07:05");
    EXPECT_EQ(PlainTime(std::chrono::local_days(1970y / 1 / 1) - 1s), "1969-12-31 23:59:59");
}

} // namespace
} // namespace zy::test
