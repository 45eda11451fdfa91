#include <algorithm>
#include <limits>
#include <string>

#include "INIfileTest.h"
#include "LargestArray.h"
#include "support/RawBool16.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SaveFile : public INIfileTest {
  protected:
    const std::string kPlainLine = "   KEY          = value\r\n";

    INIlines& Document() { return *file.INIlines(); }
};

TEST_F(SaveFile, WritesAnEqualSignInColumn17BehindThreeBlanksAndTheKey) {
    Document().Add("", "NAME", "x");
    EXPECT_EQ(Save(), "   NAME         = x\r\n");
}

TEST_F(SaveFile, WritesTheBytesOfAWholeDocument) {
    Document().Add("[settings]");
    Document().Add("[settings]", "Name", "Value = 2");
    Document().Add("[settings]", "Empty");
    Document().Add("");
    Document().Add("[other]");
    Document().Add("", "AKeyOf14Charac", "1");
    Document().Add("", "AKeyOfMoreThan14", "gr\xFC\xDF");
    EXPECT_EQ(Save(), "[SETTINGS]\r\n"
                      "   Name         = Value = 2\r\n"
                      "   Empty        =\r\n"
                      "\r\n"
                      "[OTHER]\r\n"
                      "   AKeyOf14Charac= 1\r\n"
                      "   AKeyOfMoreThan14= gr\xFC\xDF\r\n");
}

TEST_F(SaveFile, PadsAKeyOf13CharactersByNothingAndNoLongerOne) {
    Document().Add("", "AKeyOf13Chars", "1");
    EXPECT_EQ(Save(), "   AKeyOf13Chars= 1\r\n");
}

TEST_F(SaveFile, WritesTheHeaderOfALoadedDocumentAsAKey) {
    Load("[Settings]\r\nname=x\r\n");
    EXPECT_EQ(Save(), "   [SETTINGS]   =\r\n"
                      "   NAME         = x\r\n");
}

TEST_F(SaveFile, WritesALineWithAValueButNoKeyAsItsGroupInCapitalsAlone) {
    Document().Add("  [gr\xFCn] ", "", "lost");
    Document().Add("", "", "lost");
    EXPECT_EQ(Save(), "[GR\xDCN]\r\n\r\n");
}

TEST_F(SaveFile, WritesABlankLineForALineOfBlanks) {
    Document().Add("  ", " ", "   ");
    EXPECT_EQ(Save(), "\r\n");
}

TEST_F(SaveFile, TakesThePlaceOfAHiddenFile) {
    world.files.Put(kPath, "old");
    world.files.SetHidden(kPath);
    Document().Add("[new]");
    EXPECT_EQ(Save(), "[NEW]\r\n");
}

TEST_F(SaveFile, WritesAnEmptyCollectionAsAFileOfZeroBytes) {
    world.files.Put(kPath, "old");
    EXPECT_EQ(Save(), "");
}

TEST_F(SaveFile, TrimsKeysAndValues) {
    Document().Add("", "  k  ", "  v  ");
    EXPECT_EQ(Save(), "   k            = v\r\n");
}

TEST_F(SaveFile, TakesBlanksForAValueAsNone) {
    Document().Add("", "k", "   ");
    EXPECT_EQ(Save(), "   k            =\r\n");
}

TEST_F(SaveFile, KeepsTheCaseOfKeysUnlessUcaseSectionIsTrue) {
    Document().Add("", "K\xE9y", "v");
    EXPECT_EQ(Save(), "   K\xE9y          = v\r\n");
    file.UcaseSecton(true);
    EXPECT_EQ(Save(), "   K\xC9Y          = v\r\n");
}

TEST_F(SaveFile, TakesAUcaseSectionThatIsNotExactlyTrueAsFalse) {
    Document().Add("", "Key", "v");
    file.UcaseSecton(FromValue(1));
    EXPECT_EQ(Save(), "   Key          = v\r\n");
    EXPECT_EQ(ValueOf(file.UcaseSection()), 1);
}

TEST_F(SaveFile, HasItsDefaults) {
    EXPECT_FALSE(file.UcaseSection());
    EXPECT_EQ(file.LeadingSpaces(), 3);
    EXPECT_EQ(file.EqualPos(), 17);
}

TEST_F(SaveFile, KeepsItsOptionsOverLoadingAndSaving) {
    file.UcaseSecton(true);
    file.LeadingSpaces(1);
    file.EqualPos(9);
    Load("a=1\r\n");
    Save();
    EXPECT_TRUE(file.UcaseSection());
    EXPECT_EQ(file.LeadingSpaces(), 1);
    EXPECT_EQ(file.EqualPos(), 9);
}

struct Layout {
    std::int32_t leadingSpaces;
    std::int32_t equalPos;
    const char* line;
};

TEST_F(SaveFile, LaysOutAKeyByLeadingSpacesAndEqualPos) {
    constexpr auto kLeast = std::numeric_limits<std::int32_t>::min();
    Document().Add("", "key", "v");
    for (const auto& layout :
         {Layout{0, 0, "key= v\r\n"}, Layout{0, 4, "key= v\r\n"}, Layout{0, 5, "key = v\r\n"},
          Layout{1, 5, " key= v\r\n"}, Layout{5, 1, "     key= v\r\n"}, Layout{2, 10, "  key    = v\r\n"},
          Layout{-1, -1, "key= v\r\n"}, Layout{kLeast, kLeast, "key= v\r\n"},
          Layout{-5, 6, "key  = v\r\n"}}) {
        file.LeadingSpaces(layout.leadingSpaces);
        file.EqualPos(layout.equalPos);
        EXPECT_EQ(Save(), layout.line) << layout.leadingSpaces << ", " << layout.equalPos;
    }
}

TEST_F(SaveFile, LeavesTheLinesAsTheyAre) {
    Load("[One]\r\na = 1\r\n");
    const auto before = Lines();
    file.UcaseSecton(true);
    Save();
    EXPECT_EQ(Lines(), before);
}

TEST_F(SaveFile, WritesWhatIsLoadedAgainAsTheSameLines) {
    Document().Add("[one]");
    Document().Add("", "k", "v = w");
    Document().Add("[two]");
    Document().Add("", "=odd", "x");
    const std::string bytes = Save();
    EXPECT_EQ(bytes, "[ONE]\r\n   k            = v = w\r\n[TWO]\r\n   =odd         = x\r\n");
    EXPECT_THAT(Load(bytes), ElementsAre(Texts{"[ONE]", "[ONE]", ""}, Texts{"[ONE]", "K", "v = w"},
                                         Texts{"[TWO]", "[TWO]", ""}));
}

TEST_F(SaveFile, KeepsLoadedKeysAndValuesOfAnyLength) {
    std::string lines;
    for (std::size_t length = 1; length <= 100; ++length) {
        std::string text;
        for (std::size_t i = 0; i < length; ++i) {
            text += static_cast<char>('A' + (i + length) % 26);
        }
        lines +=
            "   " + text + std::string(13 - std::min<std::size_t>(length, 13), ' ') + "= " + text + "\r\n";
    }
    Load(lines);
    EXPECT_EQ(Save(), lines);
}

// Lines that take more room than the file had.

TEST_F(SaveFile, WritesLinesOfTheFileBehindOneThatHasBecomeVeryLong) {
    Load(kPlainLine + kPlainLine + kPlainLine);
    const std::string text(4'000'000, 'v');
    Document().Item(1).Value(text);
    EXPECT_EQ(Save(), "   KEY          = " + text + "\r\n" + kPlainLine + kPlainLine);
}

TEST_F(SaveFile, WritesVeryLongKeysAndHeadersBehindLinesOfTheFile) {
    const std::string text(4'000'000, 'T');
    Load(kPlainLine + kPlainLine);
    Document().Add(text);
    Document().Add("", text, "v");
    EXPECT_EQ(Save(), kPlainLine + kPlainLine + text + "\r\n   " + text + "= v\r\n");
}

TEST_F(SaveFile, WritesManyLinesOfTheFileAndChangedOnesInTurn) {
    std::string lines;
    for (int i = 0; i < 300; ++i) {
        lines += kPlainLine;
    }
    Load(lines);
    std::string expected;
    for (int i = 1; i <= 300; ++i) {
        if (i % 3 != 0) {
            expected += kPlainLine;
            continue;
        }
        const std::string text(static_cast<std::size_t>(i) * static_cast<std::size_t>(i), 'v');
        Document().Item(i).Value(text);
        expected += "   KEY          = " + text + "\r\n";
    }
    EXPECT_EQ(Save(), expected);
}

TEST_F(SaveFile, TracesItsStartWithTheFileNameAndNothingElse) {
    world.traceServers.SetRunning(true);
    Save();
    EXPECT_THAT(world.traceServers.Records(),
                ElementsAre(TraceRecord{"zyGlobal", "INIFile", "SaveFile", R"(Start C:\SYS\Demo.ini)"}));
}

TEST_F(SaveFile, DeletesTheOldFileFirstAndWritesTheNewOneWithOneWrite) {
    world.files.Put(kPath, "old");
    AddLines(1000);
    world.files.Plan({});
    Save();
    EXPECT_THAT(world.files.Operations().Lines(),
                ElementsAre(R"(PathExists C:\SYS\Demo.ini)", R"(Delete C:\SYS\Demo.ini)",
                            R"(Create C:\SYS\Demo.ini)", R"(Write C:\SYS\Demo.ini)",
                            R"(Flush C:\SYS\Demo.ini)", R"(Close C:\SYS\Demo.ini)"));
}

TEST_F(SaveFile, CreatesAFileThatIsNotThere) {
    world.files.Plan({});
    AddLines(1);
    EXPECT_EQ(Save(), "   K            = V\r\n");
    EXPECT_THAT(world.files.Operations().Lines(),
                ElementsAre(R"(PathExists C:\SYS\Demo.ini)", R"(Create C:\SYS\Demo.ini)",
                            R"(Write C:\SYS\Demo.ini)", R"(Flush C:\SYS\Demo.ini)",
                            R"(Close C:\SYS\Demo.ini)"));
}

TEST_F(SaveFile, Writes32767Lines) {
    constexpr std::string_view kLine = "   K            = V\r\n";
    AddLines(32'767);
    std::string expected;
    for (int i = 0; i < 32'767; ++i) {
        expected += kLine;
    }
    EXPECT_TRUE(Save() == expected);
}

TEST_F(SaveFile, RaisesOverflowForMoreLinesBeforeItTouchesTheFile) {
    for (const int more : {1, 233}) {
        Document().Clear();
        AddLines(32'767 + more);
        world.files.Put(kPath, "old");
        world.files.Plan({});
        EXPECT_EQ(ErrorNumber([this] { file.SaveFile(kPath); }), 6);
        EXPECT_THAT(world.files.Operations().Lines(), IsEmpty());
        EXPECT_EQ(world.files.Get(kPath), "old");
    }
}

TEST_F(SaveFile, TracesItsStartAlsoWhenItRaisesOverflow) {
    world.traceServers.SetRunning(true);
    AddLines(33'000);
    EXPECT_EQ(ErrorNumber([this] { file.SaveFile(kPath); }), 6);
    EXPECT_EQ(world.traceServers.Records().size(), 1U);
}

TEST_F(SaveFile, TakesNoRoomForTheGroupsOfKeys) {
    const std::string group = "[" + std::string(30'000, 'g');
    std::string bytes = group + "\r\n";
    for (int i = 0; i < 30'000; ++i) {
        bytes += "k=v\r\n";
    }
    Load(bytes);
    TakeLargestArray();
    const INIfileText text(Document(), {}, world.codePage);
    const auto room = TakeLargestArray();
    EXPECT_GE(room, text.Get().size());
    EXPECT_LT(room, 2'000'000U);
    EXPECT_EQ(text.Get().size(), 3 + group.size() + 3 + std::size_t{30'000} * 21);
}

} // namespace
} // namespace zy::test
