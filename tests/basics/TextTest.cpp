#include "basics/Text.h"

#include <gtest/gtest.h>

namespace zy::test {
namespace {

TEST(Trim, TakesBlanksOffBothEnds) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(LTrim("  a b  "), "a b  ");
    EXPECT_EQ(RTrim("  a b  "), "  a b");
}

TEST(Trim, LeavesNothingOfBlanksAlone) {
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(LTrim("   "), "");
    EXPECT_EQ(RTrim("   "), "");
    EXPECT_EQ(Trim(""), "");
}

TEST(Trim, KeepsTabsLineEndsAndHardBlanks) {
    EXPECT_EQ(Trim(" \ta\r\n\xA0 "), "\ta\r\n\xA0");
}

TEST(Contains, FindsACharacterAnywhere) {
    EXPECT_TRUE(Contains("ab", 'b'));
    EXPECT_FALSE(Contains("ab", 'c'));
    EXPECT_FALSE(Contains("", '"'));
}

TEST(Names, AreTheSameInAnyCaseOfTheirAsciiLetters) {
    EXPECT_TRUE(IsSameName("Desc1_", "dESC1_"));
    EXPECT_FALSE(IsSameName("DESC1", "DESC"));
    EXPECT_FALSE(IsSameName("DESC1", "DESC2"));
    EXPECT_FALSE(IsSameName("[", "{")) << "as far apart as a letter and its capital";
    EXPECT_FALSE(IsSameName("\xC9", "\xE9")) << "letters of the code page";
}

} // namespace
} // namespace zy::test
