#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "platform/CodePage.h"

namespace zy::test {
namespace {

using ::testing::Eq;
using ::testing::Optional;
using namespace std::string_literals;

std::string AllBytes() {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

TEST(Windows1252CodePage, BringsEveryByteToUnicodeAndBack) {
    for (const char byte : AllBytes()) {
        EXPECT_THAT(Windows1252().FromUnicode(Windows1252().ToUnicode(byte)), Optional(byte));
    }
}

TEST(Windows1252CodePage, BringsATextOfAllBytesToUtf8AndBack) {
    EXPECT_THAT(Windows1252().FromUtf8(Windows1252().ToUtf8(AllBytes())), Optional(AllBytes()));
}

TEST(Windows1252CodePage, GivesEachByteACharacterOfItsOwn) {
    std::u32string characters;
    for (const char byte : AllBytes()) {
        const char32_t character = Windows1252().ToUnicode(byte);
        EXPECT_EQ(characters.find(character), std::u32string::npos) << static_cast<unsigned>(character);
        characters += character;
    }
}

TEST(Windows1252CodePage, AgreesWithUnicodeOutsideItsSpecialRange) {
    for (const char byte : AllBytes()) {
        const auto number = static_cast<unsigned char>(byte);
        if (number < 0x80 || number >= 0xA0) {
            EXPECT_EQ(Windows1252().ToUnicode(byte), number);
        }
    }
}

TEST(Windows1252CodePage, KnowsTheCharactersOfItsSpecialRange) {
    EXPECT_EQ(Windows1252().ToUtf8("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"), "€‚ƒ„…†‡ˆ‰Š‹ŒŽ");
    EXPECT_EQ(Windows1252().ToUtf8("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"),
              "‘’“”•–—˜™š›œžŸ");
}

TEST(Windows1252CodePage, LetsUnassignedBytesStandForTheControlCharactersOfTheirNumber) {
    for (const char byte : {'\x81', '\x8D', '\x8F', '\x90', '\x9D'}) {
        EXPECT_EQ(Windows1252().ToUnicode(byte), static_cast<unsigned char>(byte));
    }
}

TEST(Windows1252CodePage, LacksTheControlCharactersWhoseBytesAreTaken) {
    EXPECT_EQ(Windows1252().FromUnicode(0x80), std::nullopt);
    EXPECT_EQ(Windows1252().FromUnicode(0x9F), std::nullopt);
}

TEST(Windows1252CodePage, LacksCharactersOfOtherScripts) {
    for (const char32_t character : {U'\u0100', U'\u0430', U'\u4E2D', U'\U0001F600'}) {
        EXPECT_EQ(Windows1252().FromUnicode(character), std::nullopt);
    }
}

// Capitals

TEST(Windows1252CodePage, HasTheCapitalsOfEveryLetter) {
    EXPECT_EQ(Windows1252().UCase("abcdefghijklmnopqrstuvwxyz"), "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    EXPECT_EQ(
        Windows1252().ToUtf8(Windows1252().UCase(*Windows1252().FromUtf8("àáâãäåæçèéêëìíîïðñòóôõöøùúûüýþ"))),
        "ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞ");
    EXPECT_EQ(Windows1252().ToUtf8(Windows1252().UCase(*Windows1252().FromUtf8("šœžÿ"))), "ŠŒŽŸ");
}

TEST(Windows1252CodePage, LeavesALetterWhoseCapitalItLacks) {
    EXPECT_EQ(Windows1252().UCase("\xDF\xB5\x83\xAA\xBA"), "\xDF\xB5\x83\xAA\xBA");
}

TEST(Windows1252CodePage, LeavesWhatIsNoSmallLetter) {
    const auto capitals = Windows1252().UCase(AllBytes());
    int changed = 0;
    for (std::size_t byte = 0; byte < capitals.size(); ++byte) {
        changed += capitals[byte] == static_cast<char>(byte) ? 0 : 1;
    }
    EXPECT_EQ(changed, 26 + 30 + 4);
    EXPECT_EQ(Windows1252().Upper('\xF7'), '\xF7');
}

TEST(Windows1252CodePage, FindsNothingToChangeInCapitals) {
    const auto capitals = Windows1252().UCase(AllBytes());
    EXPECT_EQ(Windows1252().UCase(capitals), capitals);
}

// UTF-8

struct MalformedText {
    const char* what;
    std::string utf8;
};

void PrintTo(const MalformedText& text, std::ostream* out) {
    *out << text.what;
}

class MalformedUtf8 : public ::testing::TestWithParam<MalformedText> {};

INSTANTIATE_TEST_SUITE_P(
    Utf8, MalformedUtf8,
    ::testing::Values(
        MalformedText{"a continuation byte alone", "\x80"s}, MalformedText{"the last one alone", "\xBF"s},
        MalformedText{"a lead byte alone", "\xC3"s}, MalformedText{"a lead byte before a letter", "\xC3x"s},
        MalformedText{"a three-byte character cut short", "\xE2\x82"s},
        MalformedText{"a three-byte character broken off", "\xE2\x82x"s},
        MalformedText{"a four-byte character cut short", "\xF0\x9F\x98"s},
        MalformedText{"a slash in two bytes", "\xC0\xAF"s}, MalformedText{"a NUL in two bytes", "\xC0\x80"s},
        MalformedText{"two bytes for a letter", "\xC1\x81"s},
        MalformedText{"three bytes for a two-byte character", "\xE0\x83\xA9"s},
        MalformedText{"four bytes for a three-byte character", "\xF0\x82\x82\xAC"s},
        MalformedText{"the first surrogate", "\xED\xA0\x80"s},
        MalformedText{"the last surrogate", "\xED\xBF\xBF"s},
        MalformedText{"a number beyond Unicode", "\xF4\x90\x80\x80"s},
        MalformedText{"a lead byte beyond Unicode", "\xF5\x80\x80\x80"s},
        MalformedText{"a byte that UTF-8 never has", "\xFF"s}));

TEST_P(MalformedUtf8, IsNotTaken) {
    std::string_view rest = GetParam().utf8;
    EXPECT_EQ(TakeUtf8(rest), std::nullopt);
    EXPECT_EQ(rest, GetParam().utf8);
}

TEST_P(MalformedUtf8, GivesNoText) {
    EXPECT_EQ(Windows1252().FromUtf8(GetParam().utf8), std::nullopt);
    EXPECT_EQ(Windows1252().FromUtf8("before" + GetParam().utf8 + "behind"), std::nullopt);
}

TEST(Utf8, BringsTheFirstAndTheLastCharacterOfEachLengthThereAndBack) {
    for (const char32_t character :
         {0x0U, 0x7FU, 0x80U, 0x7FFU, 0x800U, 0xD7FFU, 0xE000U, 0xFFFFU, 0x10000U, 0x10FFFFU}) {
        std::string utf8;
        AppendUtf8(utf8, character);
        std::string_view rest = utf8;
        EXPECT_THAT(TakeUtf8(rest), Optional(Eq(character)));
        EXPECT_EQ(rest, "");
    }
}

TEST(Utf8, HasTheBytesThatTheStandardGives) {
    std::string utf8;
    for (const char32_t character : {U'$', U'\u00A3', U'\u20AC', U'\U00010348'}) {
        AppendUtf8(utf8, character);
    }
    EXPECT_EQ(utf8, "\x24\xC2\xA3\xE2\x82\xAC\xF0\x90\x8D\x88");
}

TEST(Utf8, TakesOneCharacterAfterTheOther) {
    std::string_view rest = "aé€";
    EXPECT_THAT(TakeUtf8(rest), Optional(Eq(U'a')));
    EXPECT_THAT(TakeUtf8(rest), Optional(Eq(U'é')));
    EXPECT_THAT(TakeUtf8(rest), Optional(Eq(U'€')));
    EXPECT_EQ(TakeUtf8(rest), std::nullopt);
}

TEST(Utf8, GivesNoTextWhereTheCodePageLacksACharacter) {
    EXPECT_EQ(Windows1252().FromUtf8("Größe Ω"), std::nullopt);
}

} // namespace
} // namespace zy::test
