#include "platform/windows/AnsiCodePage.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

namespace zy::test {
namespace {

class AnsiCodePageTest : public ::testing::Test {
  protected:
    void SetUp() override {
        constexpr UINT kWindows1252 = 1252;
        if (::GetACP() != kWindows1252) {
            GTEST_SKIP() << "This Windows is set to another code page: " << ::GetACP();
        }
    }

    static std::string AllBytes() {
        std::string bytes;
        for (int byte = 0; byte < 256; ++byte) {
            bytes += static_cast<char>(byte);
        }
        return bytes;
    }
};

TEST_F(AnsiCodePageTest, HasTheCharactersOfOurOwnTable) {
    for (const char byte : AllBytes()) {
        EXPECT_EQ(AnsiCodePage().ToUnicode(byte), Windows1252().ToUnicode(byte))
            << static_cast<int>(static_cast<unsigned char>(byte));
    }
}

TEST_F(AnsiCodePageTest, HasTheCapitalsOfOurOwnTable) {
    for (const char byte : AllBytes()) {
        EXPECT_EQ(AnsiCodePage().Upper(byte), Windows1252().Upper(byte))
            << static_cast<int>(static_cast<unsigned char>(byte));
    }
}

TEST_F(AnsiCodePageTest, RefusesACharacterThatItLacksInsteadOfTakingAnotherForIt) {
    EXPECT_EQ(AnsiCodePage().FromUtf8("Ω"), std::nullopt);
    EXPECT_EQ(AnsiCodePage().FromUtf8("ā"), std::nullopt) << "not an a";
}

} // namespace
} // namespace zy::test
