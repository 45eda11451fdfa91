#include "shell/mZYGlobal.h"

#include "basics/RuntimeError.h"
#include "support/WorldTest.h"

namespace zy {
namespace {

std::vector<std::string> Split(std::string_view line) {
    const Fields fields = SplitFields(line);
    std::vector<std::string> result;
    for (std::int32_t field = 1; field <= std::get<std::int32_t>(fields[0]); ++field) {
        result.emplace_back(fields.Text(field));
    }
    return result;
}

using ::testing::ElementsAre;

TEST(StripAtNull, ReturnsATextWithoutNulUnchanged) {
    EXPECT_EQ(StripAtNull("abc"), "abc");
}

TEST(StripAtNull, CutsAtTheFirstNul) {
    EXPECT_EQ(StripAtNull(std::string_view("ab\0c\0d", 6)), "ab");
}

TEST(StripAtNull, LeavesNothingOfATextThatStartsWithNul) {
    EXPECT_EQ(StripAtNull(std::string_view("\0abc", 4)), "");
    EXPECT_EQ(StripAtNull(""), "");
}

TEST(FileNameOf, IsThePartBehindTheLastBackslash) {
    EXPECT_EQ(FileNameOf(R"(C:\dir\file.txt)"), "file.txt");
    EXPECT_EQ(FileNameOf(R"(C:\dir\)"), "");
}

TEST(FileNameOf, IsTheWholePathWithoutABackslash) {
    EXPECT_EQ(FileNameOf("file.txt"), "file.txt");
}

TEST(FolderOf, KeepsTheClosingBackslash) {
    EXPECT_EQ(FolderOf(R"(C:\dir\file.txt)"), R"(C:\dir\)");
}

TEST(FolderOf, IsEmptyWithoutABackslash) {
    EXPECT_EQ(FolderOf("file.txt"), "");
    EXPECT_EQ(FolderOf(""), "");
}

TEST(SplitFields, SplitsAtTabsAloneWhenTheLineHoldsOne) {
    EXPECT_THAT(Split("a\tb,c"), ElementsAre("a", "b,c"));
    EXPECT_THAT(Split("a,b\tc"), ElementsAre("a,b", "c"));
}

TEST(SplitFields, GivesOneEmptyFieldForAnEmptyLine) {
    EXPECT_THAT(Split(""), ElementsAre(""));
}

TEST(SplitFields, UnquotesAndTrimsEveryField) {
    EXPECT_THAT(Split("\"x\", y  "), ElementsAre("x", "y"));
}

TEST(SplitFields, DoesNotProtectASeparatorByQuotes) {
    EXPECT_THAT(Split("a,\"b,c\""), ElementsAre("a", "\"b", "c\""));
}

TEST(SplitFields, KeepsEmptyFieldsBetweenAndAroundSeparators) {
    EXPECT_THAT(Split(",,a,"), ElementsAre("", "", "a", ""));
    EXPECT_THAT(Split("\t"), ElementsAre("", ""));
}

TEST(SplitFields, GivesTheCountInElementZero) {
    const auto count = [](std::string_view line) { return std::get<std::int32_t>(SplitFields(line)[0]); };
    EXPECT_EQ(count(""), 1);
    EXPECT_EQ(count("a"), 1);
    EXPECT_EQ(count("a,b,"), 3);
    EXPECT_EQ(count("a,b\tc,d"), 2);
}

TEST(SplitFields, RaisesSubscriptOutOfRangeForAnElementItDoesNotHave) {
    const Fields fields = SplitFields("a,b");
    for (const std::int32_t field : {-1, 3}) {
        try {
            static_cast<void>(fields[field]);
            ADD_FAILURE() << "field " << field << " was given";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), 9);
        }
    }
}

TEST(LineFields, GiveWhatSplitFieldsGivesAndTellTheirEnd) {
    constexpr std::string_view kLine = "\"a\"\t b,c \td";
    Separators separators(kLine);
    auto fields = separators.FieldsOf(kLine);
    EXPECT_EQ(fields.Separator(), '\t');
    EXPECT_EQ(fields.Next(), "a");
    EXPECT_EQ(fields.Next(), "b,c");
    EXPECT_FALSE(fields.AtEnd());
    EXPECT_EQ(fields.Rest(), "d");
    EXPECT_EQ(fields.Next(), "d");
    EXPECT_TRUE(fields.AtEnd());
    EXPECT_EQ(fields.Rest(), "");
}

TEST(Separators, AreChosenForEachLineOfATextAnew) {
    constexpr std::string_view kText = "a,b|c\td,e|f,g";
    Separators separators(kText);
    for (const auto& [line, second] :
         {std::pair(kText.substr(0, 3), "b"), std::pair(kText.substr(4, 5), "d,e"),
          std::pair(kText.substr(10, 3), "g")}) {
        auto fields = separators.FieldsOf(line);
        fields.Next();
        EXPECT_EQ(fields.Next(), second) << line;
        EXPECT_TRUE(fields.AtEnd()) << line;
    }
}

TEST(Separators, EndALineWhereTheNextLineHoldsTheNextOne) {
    constexpr std::string_view kText = "a|,b";
    Separators separators(kText);
    auto first = separators.FieldsOf(kText.substr(0, 1));
    EXPECT_EQ(first.Next(), "a");
    EXPECT_TRUE(first.AtEnd());
    auto second = separators.FieldsOf(kText.substr(2));
    EXPECT_EQ(second.Next(), "");
    EXPECT_EQ(second.Next(), "b");
}

TEST(Unquote, TakesOnePairOfQuotesOff) {
    EXPECT_EQ(Unquote("\"x\""), "x");
    EXPECT_EQ(Unquote("\"\"x\"\""), "\"x\"");
}

TEST(Unquote, LeavesNothingOfTwoQuotesOrOfOne) {
    EXPECT_EQ(Unquote("\"\""), "");
    EXPECT_EQ(Unquote("\""), "");
    EXPECT_EQ(Unquote(""), "");
}

TEST(Unquote, KeepsQuotesBehindABlank) {
    EXPECT_EQ(Unquote(" \"x\""), "\"x\"");
    EXPECT_EQ(Unquote("\"x\" "), "\"x\"");
}

TEST(Unquote, TrimsBlanksInsideTheQuotes) {
    EXPECT_EQ(Unquote("\" x \""), "x");
}

TEST(Unquote, KeepsASingleQuoteAtOneEnd) {
    EXPECT_EQ(Unquote("\"x"), "\"x");
    EXPECT_EQ(Unquote("x\""), "x\"");
}

class SystemDirTest : public test::WorldTest {
  protected:
    std::string With(std::string_view directory) {
        world.system.SetSystemDirectory(directory);
        return GetSystemDir(world.system);
    }
};

TEST_F(SystemDirTest, EndsInABackslash) {
    EXPECT_EQ(With(R"(C:\SYS)"), R"(C:\SYS\)");
}

TEST_F(SystemDirTest, IsCutAtItsFirstNul) {
    EXPECT_EQ(With(std::string_view("C:\\SYS\0   ", 10)), R"(C:\SYS\)");
}

TEST_F(SystemDirTest, GetsASecondBackslashWhenItEndsInOne) {
    EXPECT_EQ(With(R"(C:\)"), R"(C:\\)");
}

TEST_F(SystemDirTest, IsABackslashAloneWhenTheSystemGivesNone) {
    EXPECT_EQ(With(""), "\\");
}

class ReadFileTextTest : public test::WorldTest {
  protected:
    std::unique_ptr<FileHandle> Open(std::string_view bytes) {
        world.files.Put(R"(C:\SYS\f)", bytes);
        return world.files.OpenForReading(R"(C:\SYS\f)").handle;
    }
};

TEST_F(ReadFileTextTest, ReadsOneCharacterAByte) {
    const std::string bytes("a\0\r\n\xB0\xFF", 6);
    EXPECT_EQ(ReadFileText(*Open(bytes), 6), bytes);
}

TEST_F(ReadFileTextTest, ReadsOnFromTheHandlesPosition) {
    const auto file = Open("abcdef");
    EXPECT_EQ(ReadFileText(*file, 2), "ab");
    EXPECT_EQ(ReadFileText(*file, 3), "cde");
}

TEST_F(ReadFileTextTest, IsShorterAtTheEndOfTheFile) {
    EXPECT_EQ(ReadFileText(*Open("abc"), 10), "abc");
}

TEST_F(ReadFileTextTest, IsEmptyForACountOfZeroWithoutReading) {
    const auto file = Open("abc");
    world.files.Plan({});
    EXPECT_EQ(ReadFileText(*file, 0), "");
    EXPECT_EQ(world.files.Operations().Count(), 0U);
}

TEST_F(ReadFileTextTest, IsEmptyWhenReadingFails) {
    const auto file = Open("abc");
    world.files.Plan({.operation = 1});
    EXPECT_EQ(ReadFileText(*file, 3), "");
}

class HoldsTextTest : public test::WorldTest {
  protected:
    bool Holds(std::string_view text) { return HoldsText(world.files, R"(C:\SYS\f)", text); }
};

TEST_F(HoldsTextTest, IsTrueForThatTextAndNoOther) {
    EXPECT_FALSE(Holds("")) << "there is no file";
    world.files.Put(R"(C:\SYS\f)", "abc");
    EXPECT_TRUE(Holds("abc"));
    for (const auto* other : {"", "ab", "abcd", "abx"}) {
        EXPECT_FALSE(Holds(other)) << other;
    }
    world.files.Put(R"(C:\SYS\f)", "");
    EXPECT_TRUE(Holds(""));
}

TEST_F(HoldsTextTest, IsFalseForWhatCannotBeReadWhole) {
    world.files.Put(R"(C:\SYS\f)", "abc");
    for (const std::size_t operation : {1U, 2U}) {
        world.files.Plan({.operation = operation});
        EXPECT_FALSE(Holds("abc"));
    }
}

} // namespace
} // namespace zy
