#include "INIfileTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

TEST(INIline, StartsWithEmptyTexts) {
    EXPECT_EQ(TextsOf(INIline()), Texts{});
}

TEST(INIline, KeepsEachTextAsItIsSet) {
    INIline line;
    line.Group("[ g ]");
    line.Section(" s=");
    line.Value(std::string_view("\0v\r\n", 4));
    EXPECT_EQ(TextsOf(line), (Texts{"[ g ]", " s=", std::string("\0v\r\n", 4)}));
    line.Section("");
    EXPECT_EQ(TextsOf(line), (Texts{"[ g ]", "", std::string("\0v\r\n", 4)}));
}

TEST(INIline, TakesTextsThatAreItsOwn) {
    INIline line("g", "section", "value");
    line.Value(line.Value().substr(2));
    line.Section(line.Value());
    line.Group(line.Section());
    EXPECT_EQ(TextsOf(line), (Texts{"lue", "lue", "lue"}));
}

TEST(INIline, TakesTextsLongerThanALineOfAFile) {
    const std::string longText(100'000, 'x');
    const INIline line(longText, longText, longText);
    EXPECT_EQ(TextsOf(line), (Texts{longText, longText, longText}));
}

TEST(INIline, IsItsOwnAfterCopying) {
    INIline first("g", "s", "v");
    INIline second = first;
    second.Value("w");
    INIline third;
    third = second;
    third.Group("h");
    EXPECT_EQ(TextsOf(first), (Texts{"g", "s", "v"}));
    EXPECT_EQ(TextsOf(second), (Texts{"g", "s", "w"}));
    EXPECT_EQ(TextsOf(third), (Texts{"h", "s", "w"}));
}

TEST(INIline, LeavesAnEmptyLineBehindWhenItIsMoved) {
    INIline first("g", "s", "v");
    const INIline second = std::move(first);
    EXPECT_EQ(
        TextsOf(first),
        Texts{}); // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move): that is what is asked here
    EXPECT_EQ(TextsOf(second), (Texts{"g", "s", "v"}));
}

class INIlineOfAFile : public INIfileTest {
  protected:
    INIlineOfAFile() { Load("[One]\r\na=1\r\nb=2\r\n"); }
};

TEST_F(INIlineOfAFile, ChangesAloneWhenATextOfItIsSet) {
    file.INIlines()->Item(1).Group("[X]");
    file.INIlines()->Item(2).Value("a longer value than before");
    EXPECT_THAT(Lines(),
                ElementsAre(Texts{"[X]", "[ONE]", ""}, Texts{"[ONE]", "A", "a longer value than before"},
                            Texts{"[ONE]", "B", "2"}));
}

TEST_F(INIlineOfAFile, TakesTextsThatAreItsOwn) {
    auto& line = file.INIlines()->Item(2);
    line.Value(line.Group());
    line.Group(line.Section());
    EXPECT_EQ(TextsOf(line), (Texts{"A", "A", "[ONE]"}));
}

TEST_F(INIlineOfAFile, LivesOnInACopy) {
    const INIline copy = file.INIlines()->Item(2);
    Load("x=1\r\n");
    EXPECT_EQ(TextsOf(copy), (Texts{"[ONE]", "A", "1"}));
}

} // namespace
} // namespace zy::test
