#include "platform/posix/PathText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace zy::test {
namespace {

using ::testing::Optional;
using namespace std::string_literals;

const PathText& Text() {
    static const PathText text(Windows1252());
    return text;
}

TEST(PathTextTest, LeavesAnAsciiNameAsItIs) {
    EXPECT_EQ(Text().NameToInside("ZYRules.sys"), "ZYRules.sys");
    EXPECT_THAT(Text().NameToOutside("ZYRules.sys"), Optional("ZYRules.sys"s));
}

TEST(PathTextTest, HasOneByteForALetterOfTheCodePage) {
    EXPECT_EQ(Text().NameToInside("Größe€.sys"), "Gr\xF6\xDF\x65\x80.sys");
    EXPECT_THAT(Text().NameToOutside("Gr\xF6\xDF\x65\x80.sys"), Optional("Größe€.sys"s));
}

TEST(PathTextTest, EscapesEachByteOfACharacterThatTheCodePageLacks) {
    EXPECT_EQ(Text().NameToInside("aΩb"), "a\x1A"
                                          "CE\x1A"
                                          "A9b");
}

TEST(PathTextTest, EscapesBytesThatAreNotUtf8) {
    EXPECT_EQ(Text().NameToInside("a\xFF\xC3"), "a\x1A"
                                                "FF\x1A"
                                                "C3");
}

TEST(PathTextTest, EscapesWhatWouldMeanSomethingElseInside) {
    EXPECT_EQ(Text().NameToInside("a\\b"), "a\x1A"
                                           "5Cb");
    EXPECT_EQ(Text().NameToInside("a\x1A"), "a\x1A"
                                            "1A");
}

TEST(PathTextTest, BringsEveryNameThereAndBack) {
    std::string everyByte;
    for (int byte = 1; byte < 256; ++byte) {
        everyByte += byte == '/' ? ' ' : static_cast<char>(byte);
    }
    for (const auto& name : {"ZYRules.sys"s, "Größe"s, "Ω中😀"s, "\xED\xA0\x80"s, "\xC3"s,
                             "\x1A"
                             "5C"s,
                             everyByte}) {
        EXPECT_THAT(Text().NameToOutside(Text().NameToInside(name)), Optional(name));
    }
}

TEST(PathTextTest, BringsAnEscapedNameBackFromCapitals) {
    const auto capitals = Windows1252().UCase(Text().NameToInside("Ω中\xFF"));
    EXPECT_THAT(Text().NameToOutside(capitals), Optional("Ω中\xFF"s));
}

TEST(PathTextTest, TakesEscapesInSmallLettersToo) {
    EXPECT_THAT(Text().NameToOutside("\x1A"
                                     "ce\x1A"
                                     "a9"),
                Optional("Ω"s));
}

TEST(PathTextTest, HasNoNameOutsideForWhatCannotBeOne) {
    for (const auto& name : {"a\0b"s, "a/b"s, "\x1A"s,
                             "\x1A"
                             "5"s,
                             "\x1A"
                             "G0"s,
                             "\x1A"
                             "0G"s,
                             "\x1A"
                             "2F"s,
                             "\x1A"
                             "00"s}) {
        EXPECT_EQ(Text().NameToOutside(name), std::nullopt) << name;
    }
}

TEST(PathTextTest, TurnsAPathOfTheSystemIntoOneWithBackslashes) {
    EXPECT_EQ(Text().PathToInside("/home/u/Größe"), "\\home\\u\\Gr\xF6\xDF\x65");
}

TEST(PathTextTest, LeavesNoBackslashAtTheEndOfAPath) {
    EXPECT_EQ(Text().PathToInside("/home/u/"), R"(\home\u)");
    EXPECT_EQ(Text().PathToInside("//home//u//"), R"(\home\u)");
    EXPECT_EQ(Text().PathToInside("/"), "");
    EXPECT_EQ(Text().PathToInside(""), "");
}

TEST(PathTextTest, TurnsAnyTextOfTheSystemIntoOneOfTheCodePage) {
    EXPECT_EQ(Text().TextToInside("Größe / \\ €"), "Gr\xF6\xDF\x65 / \\ \x80");
}

TEST(PathTextTest, MarksWhatATextOfTheCodePageCannotHold) {
    EXPECT_EQ(Text().TextToInside("a😀b\xFFΩ"), "a\x1A"
                                               "b\x1A\x1A");
}

} // namespace
} // namespace zy::test
