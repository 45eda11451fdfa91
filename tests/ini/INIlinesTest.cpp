#include "INIfileTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> Sections(const INIlines& lines) {
    std::vector<std::string> sections;
    for (const auto& line : lines) {
        sections.emplace_back(line.Section());
    }
    return sections;
}

class INIlinesTest : public ::testing::Test {
  protected:
    void AddSections(const std::vector<std::string>& sections) {
        for (const auto& section : sections) {
            lines.Add("", section);
        }
    }

    INIlines lines;
};

TEST_F(INIlinesTest, StartsEmpty) {
    EXPECT_EQ(lines.Count(), 0);
    EXPECT_THAT(Sections(lines), IsEmpty());
}

TEST_F(INIlinesTest, AddsAtTheEndAndReturnsTheLine) {
    EXPECT_EQ(TextsOf(lines.Add("[g]", "s", "v")), (Texts{"[g]", "s", "v"}));
    EXPECT_EQ(TextsOf(lines.Add("[h]", "t", "w")), (Texts{"[h]", "t", "w"}));
    EXPECT_EQ(lines.Count(), 2);
    EXPECT_EQ(TextsOf(lines.Item(1)), (Texts{"[g]", "s", "v"}));
    EXPECT_EQ(TextsOf(lines.Item(2)), (Texts{"[h]", "t", "w"}));
}

TEST_F(INIlinesTest, AddsEmptyTextsForThoseLeftOut) {
    EXPECT_EQ(TextsOf(lines.Add("[g]")), (Texts{"[g]", "", ""}));
    EXPECT_EQ(TextsOf(lines.Add("[g]", "s")), (Texts{"[g]", "s", ""}));
}

TEST_F(INIlinesTest, KeepsTextsAsTheyAreGiven) {
    EXPECT_EQ(TextsOf(lines.Add(" g\t", "a=b", "\r\n")), (Texts{" g\t", "a=b", "\r\n"}));
}

TEST_F(INIlinesTest, HandsOutTheLineItselfAndNotACopy) {
    lines.Add("", "a").Value("1");
    lines.Item(1).Section("b");
    EXPECT_EQ(TextsOf(lines.Item(1)), (Texts{"", "b", "1"}));
}

TEST_F(INIlinesTest, KeepsReferencesWhileLinesAreAdded) {
    auto& first = lines.Add("", "first");
    for (int i = 0; i < 1000; ++i) {
        lines.Add("", "more");
    }
    EXPECT_EQ(&first, &lines.Item(1));
    EXPECT_EQ(first.Section(), "first");
}

TEST_F(INIlinesTest, RaisesSubscriptOutOfRangeForALineItDoesNotHave) {
    AddSections({"a", "b"});
    const auto& constLines = lines;
    for (const int index : {-1, 0, 3, 32'768}) {
        EXPECT_EQ(ErrorNumber([&] { lines.Item(index); }), 9) << index;
        EXPECT_EQ(ErrorNumber([&] { static_cast<void>(constLines.Item(index)); }), 9) << index;
        EXPECT_EQ(ErrorNumber([&] { lines.Remove(index); }), 9) << index;
    }
    EXPECT_THAT(Sections(lines), ElementsAre("a", "b"));
}

TEST_F(INIlinesTest, RaisesSubscriptOutOfRangeForAnyLineWhenItIsEmpty) {
    EXPECT_EQ(ErrorNumber([&] { lines.Item(1); }), 9);
    EXPECT_EQ(ErrorNumber([&] { lines.Remove(1); }), 9);
}

TEST_F(INIlinesTest, RaisesInvalidProcedureCallForAnyKey) {
    AddSections({"a", "b"});
    for (const char* key : {"a", "1", ""}) {
        EXPECT_EQ(ErrorNumber([&] { lines.Item(key); }), 5) << key;
        EXPECT_EQ(ErrorNumber([&] { lines.Remove(key); }), 5) << key;
    }
    EXPECT_THAT(Sections(lines), ElementsAre("a", "b"));
}

TEST_F(INIlinesTest, MovesLaterLinesUpWhenOneIsRemoved) {
    AddSections({"a", "b", "c", "d"});
    lines.Remove(2);
    EXPECT_THAT(Sections(lines), ElementsAre("a", "c", "d"));
    lines.Remove(3);
    EXPECT_THAT(Sections(lines), ElementsAre("a", "c"));
    lines.Remove(1);
    lines.Remove(1);
    EXPECT_THAT(Sections(lines), IsEmpty());
}

TEST_F(INIlinesTest, ClearsAllLinesAndReturnsZero) {
    AddSections({"a", "b"});
    EXPECT_EQ(lines.Clear(), 0);
    EXPECT_EQ(lines.Count(), 0);
    EXPECT_EQ(lines.Clear(), 0);
    AddSections({"c"});
    EXPECT_THAT(Sections(lines), ElementsAre("c"));
}

TEST_F(INIlinesTest, EnumeratesTheLinesFromTheFirstToTheLast) {
    AddSections({"a", "b", "c"});
    std::string seen;
    for (auto& line : lines.NewEnum()) {
        seen += line.Section();
        line.Value("seen");
    }
    EXPECT_EQ(seen, "abc");
    EXPECT_EQ(lines.Item(3).Value(), "seen");
}

class INIlinesOfAFile : public INIfileTest {};

TEST_F(INIlinesOfAFile, AreAnEmptyCollectionAtFirst) {
    EXPECT_EQ(file.INIlines()->Count(), 0);
    EXPECT_EQ(file.INIlines(), file.INIlines());
}

TEST_F(INIlinesOfAFile, CanBeAnotherFilesByReference) {
    INIfile other(world.files, world.codePage, trace);
    other.INIlines(file.INIlines());
    file.INIlines()->Add("", "a", "1");
    EXPECT_EQ(other.INIlines()->Count(), 1);
    Load("b=2\r\n");
    EXPECT_EQ(TextsOf(other.INIlines()->Item(1)), (Texts{"", "B", "2"}));
}

TEST_F(INIlinesOfAFile, AreMadeAnewWhenTheyAreSetToNone) {
    AddLines(1);
    file.INIlines(nullptr);
    EXPECT_EQ(file.INIlines()->Count(), 0);
    EXPECT_THAT(Load("b=2\r\n"), ElementsAre(Texts{"", "B", "2"}));
}

TEST_F(INIlinesOfAFile, OutliveTheFile) {
    std::shared_ptr<INIlines> lines;
    {
        INIfile other(world.files, world.codePage, trace);
        world.files.Put(kPath, "a=1\r\n");
        other.LoadFile(kPath);
        lines = other.INIlines();
    }
    EXPECT_EQ(TextsOf(lines->Item(1)), (Texts{"", "A", "1"}));
}

TEST_F(INIlinesOfAFile, CanBeAddedAmongLoadedOnesAndRemoved) {
    Load("[One]\r\na=1\r\nb=2\r\n");
    file.INIlines()->Add("[One]", "c", "3");
    file.INIlines()->Remove(1);
    file.INIlines()->Remove(1);
    EXPECT_THAT(Lines(), ElementsAre(Texts{"[ONE]", "B", "2"}, Texts{"[One]", "c", "3"}));
}

} // namespace
} // namespace zy::test
