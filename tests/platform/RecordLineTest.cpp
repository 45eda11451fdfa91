#include "tools/RecordLine.h"

#include <gtest/gtest.h>

namespace zy::test {
namespace {

TEST(RecordLineTest, HasATabBetweenTheFieldsAndALineEnd) {
    EXPECT_EQ(RecordLine({"zyGlobal", "mRules", "Write", "C:\\SYS\\new.tmp"}),
              "zyGlobal\tmRules\tWrite\tC:\\SYS\\new.tmp\n");
}

TEST(RecordLineTest, HasFourFieldsEvenWhenTheyAreEmpty) {
    EXPECT_EQ(RecordLine({"", "", "", ""}), "\t\t\t\n");
    EXPECT_EQ(RecordLine({"", "m", "", ""}), "\tm\t\t\n");
}

TEST(RecordLineTest, ShowsControlCharactersByTheirNumbers) {
    EXPECT_EQ(RecordLine({"a\tb", "c\r\nd", "\x1B[0m", "\x7F"}),
              "a<U+0009>b\tc<U+000D><U+000A>d\t<U+001B>[0m\t<U+007F>\n");
}

TEST(RecordLineTest, ShowsEverythingElseThatBreaksALineByItsNumber) {
    EXPECT_EQ(RecordLine({"\u0085", "\u009B", "\u2028", "\u2029"}),
              "<U+0085>\t<U+009B>\t<U+2028>\t<U+2029>\n");
}

TEST(RecordLineTest, LeavesLettersOfAnyScript) {
    EXPECT_EQ(RecordLine({"é", "€", "Ω", "😀"}), "é\t€\tΩ\t😀\n");
}

} // namespace
} // namespace zy::test
