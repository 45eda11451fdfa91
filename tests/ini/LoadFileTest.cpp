#include "INIfileTest.h"

namespace zy::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LoadFile : public INIfileTest {};

TEST_F(LoadFile, TrimsAKeyAndItsValueAndKeepsFurtherEqualSignsInTheValue) {
    EXPECT_THAT(Load("  name =  Value = 2 \r\n"), ElementsAre(Texts{"", "NAME", "Value = 2"}));
}

TEST_F(LoadFile, KeepsAHeaderInCapitalsWithWhateverStandsBehindIt) {
    EXPECT_THAT(Load("[Settings] ; note\r\n"),
                ElementsAre(Texts{"[SETTINGS] ; NOTE", "[SETTINGS] ; NOTE", ""}));
}

TEST_F(LoadFile, TakesNoCommentsAndNoBlankLines) {
    EXPECT_THAT(Load("; comment\r\n\r\n   \r\nno equal sign\r\n"), IsEmpty());
}

TEST_F(LoadFile, TakesACommentWithAnEqualSignAsAKey) {
    EXPECT_THAT(Load("; a=b\r\n"), ElementsAre(Texts{"", "; A", "b"}));
}

TEST_F(LoadFile, MakesABlankOfATabInsideAValue) {
    EXPECT_THAT(Load("a=1\t2\r\n"), ElementsAre(Texts{"", "A", "1 2"}));
}

TEST_F(LoadFile, LeavesOutALastLineWithoutALineEnd) {
    EXPECT_THAT(Load("a=1\r\nb=2"), ElementsAre(Texts{"", "A", "1"}));
    EXPECT_THAT(Load("a=1\r\nb=2\r"), ElementsAre(Texts{"", "A", "1"}));
}

TEST_F(LoadFile, PutsEveryKeyUnderTheLastHeaderBeforeIt) {
    EXPECT_THAT(Load("a=1\r\n[One]\r\nb=2\r\nc=3\r\n[Two]\r\n[Three]\r\nd=4\r\n"),
                ElementsAre(Texts{"", "A", "1"}, Texts{"[ONE]", "[ONE]", ""}, Texts{"[ONE]", "B", "2"},
                            Texts{"[ONE]", "C", "3"}, Texts{"[TWO]", "[TWO]", ""},
                            Texts{"[THREE]", "[THREE]", ""}, Texts{"[THREE]", "D", "4"}));
}

TEST_F(LoadFile, KeepsLinesThatRepeatAKeyInTheirOrder) {
    EXPECT_THAT(Load("a=1\r\nA=2\r\n"), ElementsAre(Texts{"", "A", "1"}, Texts{"", "A", "2"}));
}

TEST_F(LoadFile, TakesAHeaderThatStandsBehindBlanks) {
    EXPECT_THAT(Load(" \t [One]  \r\n"), ElementsAre(Texts{"[ONE]", "[ONE]", ""}));
}

TEST_F(LoadFile, TakesAnythingThatStartsWithABracketAsAHeader) {
    EXPECT_THAT(Load("[a=b\r\n[\r\n"), ElementsAre(Texts{"[A=B", "[A=B", ""}, Texts{"[", "[", ""}));
}

TEST_F(LoadFile, TakesBracketsBehindTheFirstCharacterAsPartOfAKey) {
    EXPECT_THAT(Load("a]=1\r\n]=2\r\nx[0]=3\r\n"),
                ElementsAre(Texts{"", "A]", "1"}, Texts{"", "]", "2"}, Texts{"", "X[0]", "3"}));
}

TEST_F(LoadFile, DropsALineThatStartsWithAnEqualSign) {
    EXPECT_THAT(Load("=a\r\n  = b\r\n====\r\n=\r\nc=1\r\n"), ElementsAre(Texts{"", "C", "1"}));
}

TEST_F(LoadFile, LeavesARunOfEqualSignsToTheValue) {
    EXPECT_THAT(Load("a===b==\r\n"), ElementsAre(Texts{"", "A", "==b=="}));
}

TEST_F(LoadFile, TakesAKeyWithoutAValue) {
    EXPECT_THAT(Load("a=\r\nb=   \r\nc=\t\r\n"),
                ElementsAre(Texts{"", "A", ""}, Texts{"", "B", ""}, Texts{"", "C", ""}));
}

TEST_F(LoadFile, MakesCapitalsOfKeysAsTheCodePageDefinesThemAndKeepsTheCaseOfValues) {
    EXPECT_THAT(Load("gr\xF6\xDF"
                     "e \xFC=gr\xF6\xDF"
                     "e\r\n"),
                ElementsAre(Texts{"",
                                  "GR\xD6\xDF"
                                  "E \xDC",
                                  "gr\xF6\xDF"
                                  "e"}));
}

TEST_F(LoadFile, MakesCapitalsOfKeysWhateverUcaseSectionSays) {
    for (const bool ucase : {false, true}) {
        file.UcaseSecton(ucase);
        EXPECT_THAT(Load("Key=v\r\n"), ElementsAre(Texts{"", "KEY", "v"}));
    }
}

TEST_F(LoadFile, KeepsQuotesAndBlanksInsideAValue) {
    EXPECT_THAT(Load("a=\" x  y \"\r\n"), ElementsAre(Texts{"", "A", "\" x  y \""}));
}

TEST_F(LoadFile, ReplacesTheLinesOfTheFileBefore) {
    Load("a=1\r\n");
    EXPECT_THAT(Load("b=2\r\n"), ElementsAre(Texts{"", "B", "2"}));
}

TEST_F(LoadFile, StartsWithoutAHeaderAgain) {
    Load("[One]\r\na=1\r\n");
    EXPECT_THAT(Load("b=2\r\n"), ElementsAre(Texts{"", "B", "2"}));
}

TEST_F(LoadFile, ReadsTheFileWithOneReadAndWritesNothing) {
    world.files.Put(kPath, "a=1\r\n");
    world.files.Plan({});
    file.LoadFile(kPath);
    EXPECT_THAT(world.files.Operations().Lines(),
                ElementsAre(R"(PathExists C:\SYS\Demo.ini)", R"(OpenAlwaysForReading C:\SYS\Demo.ini)",
                            R"(Read C:\SYS\Demo.ini)", R"(Close C:\SYS\Demo.ini)"));
    EXPECT_EQ(world.files.Get(kPath), "a=1\r\n");
}

TEST_F(LoadFile, ClosesTheFileBeforeItLooksAtTheLines) {
    world.files.Put(kPath, std::string(40'000, 'x') + "\r\n");
    world.files.Plan({});
    EXPECT_EQ(ErrorNumber([&] { file.LoadFile(kPath); }), 6);
    EXPECT_THAT(world.files.Operations().Lines(), Contains(R"(Close C:\SYS\Demo.ini)"));
}

TEST_F(LoadFile, ReadsAHiddenFile) {
    world.files.Put(kPath, "a=1\r\n");
    world.files.SetHidden(kPath);
    file.LoadFile(kPath);
    EXPECT_THAT(Lines(), ElementsAre(Texts{"", "A", "1"}));
}

TEST_F(LoadFile, OpensNothingWhereNothingIs) {
    world.files.Plan({});
    file.LoadFile(kPath);
    EXPECT_THAT(world.files.Operations().Lines(), ElementsAre(R"(PathExists C:\SYS\Demo.ini)"));
}

TEST_F(LoadFile, TakesAFailureToLookForTheFileAsNoFile) {
    world.files.Put(kPath, "a=1\r\n");
    world.files.Plan({.operation = 1});
    file.LoadFile(kPath);
    EXPECT_THAT(Lines(), IsEmpty());
    EXPECT_THAT(world.files.Operations().Lines(), ::testing::SizeIs(1));
}

TEST_F(LoadFile, SendsNoTrace) {
    world.traceServers.SetRunning(true);
    Load("a=1\r\n");
    EXPECT_THAT(world.traceServers.Records(), IsEmpty());
}

TEST_F(LoadFile, TakesMoreThan32767Lines) {
    std::string bytes;
    for (int i = 0; i < 33'000; ++i) {
        bytes += "k=" + std::to_string(i) + "\r\n";
    }
    Load(bytes);
    ASSERT_EQ(file.INIlines()->Count(), 33'000);
    EXPECT_EQ(file.INIlines()->Item(33'000).Value(), "32999");
}

} // namespace
} // namespace zy::test
