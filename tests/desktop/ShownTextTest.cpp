#include "desktop/ShownText.h"

#include <gtest/gtest.h>

namespace zy::test {
namespace {

std::string Taken(std::string_view before, const wxString& shown) {
    const auto edited = TakeEdit(Windows1252(), before, shown);
    return edited ? edited->text : "(refused)";
}

std::size_t ChangeEnd(std::string_view before, const wxString& shown) {
    return TakeEdit(Windows1252(), before, shown).value().changeEnd;
}

TEST(ShownText, HasOneCharacterForEachByte) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    const wxString shown = ToShown(Windows1252(), all);
    EXPECT_EQ(shown.length(), 256U);
    EXPECT_EQ(shown[0], wxUniChar(0x2400));
    EXPECT_EQ(shown[0x80], wxUniChar(0x20AC));
    EXPECT_EQ(shown[0xFF], wxUniChar(0xFF));
}

TEST(TakeEdit, TakesWhatWasInsertedReplacedOrRemoved) {
    EXPECT_EQ(Taken("", "abc"), "abc");
    EXPECT_EQ(Taken("abc", "abXc"), "abXc");
    EXPECT_EQ(Taken("abc", "aXc"), "aXc");
    EXPECT_EQ(Taken("abc", "ac"), "ac");
    EXPECT_EQ(Taken("abc", ""), "");
    EXPECT_EQ(Taken("abc", "abc"), "abc");
    EXPECT_EQ(Taken("aaa", "aa"), "aa");
    EXPECT_EQ(Taken("aa", "aaa"), "aaa");
}

TEST(TakeEdit, TellsWhereTheChangeEnds) {
    EXPECT_EQ(ChangeEnd("abc", "abXc"), 3U);
    EXPECT_EQ(ChangeEnd("abc", "ac"), 1U);
    EXPECT_EQ(ChangeEnd("ab", "a\r\n\r\nb"), 3U);
}

TEST(TakeEdit, PutsNewTextOnOneLineAndLeavesOldTextAlone) {
    EXPECT_EQ(Taken("", "a\r\nb\rc\nd\te"), "a b c d e");
    EXPECT_EQ(Taken("a\tb", "a\tbc"), "a\tbc");
    EXPECT_EQ(Taken("a\tb", "Xa\tb"), "Xa\tb");
}

TEST(TakeEdit, RefusesACharacterThatTheCodePageLacks) {
    EXPECT_EQ(Taken("abc", wxString::FromUTF8("abΩc")), "(refused)");
    EXPECT_EQ(Taken("abc", wxString::FromUTF8("ab😀c")), "(refused)");
    EXPECT_EQ(Taken("abc", wxString::FromUTF8("ab€c")), "ab\x80"
                                                        "c");
}

TEST(TakeEdit, KeepsANulThatIsShownAsItsSymbol) {
    const std::string before{"a\0b", 3};
    EXPECT_EQ(Taken(before, ToShown(Windows1252(), before) + "c"), before + "c");
}

TEST(WithMnemonic, MarksTheAccessKeyAndShowsEveryAmpersand) {
    EXPECT_EQ(WithMnemonic(Windows1252(), "Delete", 'l'), "De&lete");
    EXPECT_EQ(WithMnemonic(Windows1252(), "This & That", 'h'), "T&his && That");
    EXPECT_EQ(WithMnemonic(Windows1252(), "Plain", '\0'), "Plain");
}

} // namespace
} // namespace zy::test
