#include "basics/Number.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>

namespace zy::test {
namespace {

struct Numeric {
    const char* text;
    double value;
};

TEST(ParseNumber, ReadsTheUsualDecimalForms) {
    const Numeric cases[] = {{"1", 1},      {"100", 100},   {"1.5", 1.5},  {".5", 0.5},
                             {"5.", 5},     {"007", 7},     {"  3  ", 3},  {"+4", 4},
                             {"-4", -4},    {"1e2", 100},   {"1E+2", 100}, {"25e-1", 2.5},
                             {"-.5e1", -5}, {"100.0", 100}, {"+0", 0},     {"1.e1", 10}};
    for (const auto& [text, value] : cases) {
        const auto number = ParseNumber(text, '.');
        ASSERT_TRUE(number) << text;
        EXPECT_DOUBLE_EQ(*number, value) << text;
    }
}

TEST(ParseNumber, RefusesWhatIsNoDecimalNumber) {
    for (const char* text :
         {"",    " ",   "+",     "-",     ".",   "-.",   "e5",       ".e5",   "1e",  "1e+", "abc",
          "1a",  "a1",  "0x10",  "&H10",  "inf", "-inf", "infinity", "nan",   "1,5", "1 2", "--1",
          "+-1", "- 1", "1.2.3", "1e2.5", "\t1", "1\n",  "1e5e5",    "1_000", "\xB2"}) {
        EXPECT_FALSE(ParseNumber(text, '.')) << text;
    }
}

TEST(ParseNumber, RefusesATextCutByNul) {
    EXPECT_FALSE(ParseNumber(std::string("1\0", 2), '.'));
}

TEST(ParseNumber, AcceptsTheLocalesSeparatorBesideThePoint) {
    EXPECT_DOUBLE_EQ(ParseNumber("1,5", ',').value(), 1.5);
    EXPECT_DOUBLE_EQ(ParseNumber("1.5", ',').value(), 1.5);
    EXPECT_FALSE(ParseNumber("1.000,5", ','));
    EXPECT_FALSE(ParseNumber("1,5", '\''));
}

TEST(ParseNumber, ComesOutInfiniteBeyondTheRangeOfADouble) {
    EXPECT_EQ(ParseNumber("1e999", '.').value(), INFINITY);
    EXPECT_EQ(ParseNumber("-1e999", '.').value(), -INFINITY);
    EXPECT_EQ(ParseNumber(std::string(400, '9'), '.').value(), INFINITY);
}

TEST(ParseNumber, ComesOutZeroBelowTheRangeOfADouble) {
    EXPECT_EQ(ParseNumber("1e-999", '.').value(), 0);
    EXPECT_EQ(ParseNumber("0." + std::string(400, '0') + "1", '.').value(), 0);
    EXPECT_EQ(ParseNumber("0e999999999999", '.').value(), 0);
}

} // namespace
} // namespace zy::test
