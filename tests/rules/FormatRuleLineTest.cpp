#include <gtest/gtest.h>

#include "rules/RulesFormat.h"

namespace zy::test {
namespace {

TEST(FormatRuleLine, PutsEveryKeyOfTheFileInAFieldOfThirteenCharacters) {
    EXPECT_EQ(FormatRuleLine("CODE", "R1"), "   CODE         = R1");
    EXPECT_EQ(FormatRuleLine("MIN", "1"), "   MIN          = 1");
    EXPECT_EQ(FormatRuleLine("MAX", "100"), "   MAX          = 100");
    EXPECT_EQ(FormatRuleLine("COND", ">="), "   COND         = >=");
    EXPECT_EQ(FormatRuleLine("ZONE", "-15S"), "   ZONE         = -15S");
    EXPECT_EQ(FormatRuleLine("DESC1", "text"), "   DESC1        = text");
}

TEST(FormatRuleLine, EndsRightBehindTheBlankForAnEmptyValue) {
    EXPECT_EQ(FormatRuleLine("DESC2", ""), "   DESC2        = ");
    EXPECT_EQ(FormatRuleLine("DESC3", ""), "   DESC3        = ");
}

TEST(FormatRuleLine, PutsTheEqualsSignInColumn17ForEveryKeyThatFits) {
    for (std::size_t length = 0; length <= 13; ++length) {
        const auto line = FormatRuleLine(std::string(length, 'K'), "V");
        EXPECT_EQ(line.find('='), 16U) << line;
        EXPECT_EQ(line.substr(18), "V") << line;
    }
}

TEST(FormatRuleLine, NeitherPadsNorCutsALongerKey) {
    EXPECT_EQ(FormatRuleLine("ABCDEFGHIJKLMN", "V"), "   ABCDEFGHIJKLMN= V");
    const std::string longKey(300, 'K');
    EXPECT_EQ(FormatRuleLine(longKey, "V"), "   " + longKey + "= V");
}

TEST(FormatRuleLine, TakesTheValueAsItStands) {
    for (const std::string value : {"  a  ", "a=b", "[RULE]", "\"q\"", "\t", "\xE9"}) {
        EXPECT_EQ(FormatRuleLine("CODE", value), "   CODE         = " + value);
    }
    const std::string withNul("a\0b", 3);
    EXPECT_EQ(FormatRuleLine("CODE", withNul), "   CODE         = " + withNul);
}

} // namespace
} // namespace zy::test
