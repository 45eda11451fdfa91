#include "RulesTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The list as start-up fills it.
class BuildRulesArray : public RulesTest {
  protected:
    /// The description that a rule has after loading three pieces.
    std::string Folded(const std::string& first, const std::string& second, const std::string& third) {
        Load("[RULE]\r\nDESC1= " + first + "\r\nDESC2= " + second + "\r\nDESC3= " + third + "\r\n");
        return rules.gaRules(1).Description;
    }
    static std::string Sections(int count) {
        std::string text;
        for (int i = 0; i < count; ++i) {
            text += "[RULE]\r\n";
        }
        return text;
    }
};

TEST_F(BuildRulesArray, TakesTheRulesInTheOrderOfTheFile) {
    Load("[RULE]\r\nCODE= B\r\n[RULE]\r\nCODE= A\r\n[RULE]\r\nCODE= C\r\n");
    EXPECT_THAT(Codes(), ElementsAre("B", "A", "C"));
}

TEST_F(BuildRulesArray, GivesAOneWordDescriptionTwoBlanksBehindIt) {
    EXPECT_EQ(Folded("word", "", ""), "word  ");
}

TEST_F(BuildRulesArray, JoinsThreePiecesByOneBlankEach) {
    EXPECT_EQ(Folded("one", "two", "three"), "one two three");
}

TEST_F(BuildRulesArray, TrimsEachPieceBeforeJoining) {
    EXPECT_EQ(Folded("  one ", " two  ", " three "), "one two three");
}

TEST_F(BuildRulesArray, KeepsTheBlanksOfPiecesThatAreEmpty) {
    EXPECT_EQ(Folded("", "", ""), "  ");
    EXPECT_EQ(Folded("", "two", ""), " two ");
    EXPECT_EQ(Folded("", "", "three"), "  three");
    EXPECT_EQ(Folded("one", "", "three"), "one  three");
    EXPECT_EQ(Folded("one", "two", ""), "one two ");
    EXPECT_EQ(Folded("   ", "", ""), "  ");
}

TEST_F(BuildRulesArray, TrimsBlanksAlone) {
    EXPECT_EQ(Folded("\tone\t", "", ""), "\tone\t  ");
}

TEST_F(BuildRulesArray, FoldsADescriptionThatItFoldedBeforeToTheSameText) {
    EXPECT_EQ(Folded("word  ", "", ""), "word  ");
}

TEST_F(BuildRulesArray, ChecksNothing) {
    Load("[RULE]\r\nCODE= TOOLONG\r\nMIN= many\r\nMAX= -5\r\nCOND= <>\r\nZONE= NONE\r\nDESC1= a\"b\r\n"
         "[RULE]\r\nCODE= toolong\r\n");
    EXPECT_THAT(ShownRules(), ElementsAre("TOOLONG|many|-5|<>|NONE|a\"b  ||", "toolong|||||  ||"));
}

TEST_F(BuildRulesArray, GivesAnEmptyListForAMissingFile) {
    rules.Build_Rules_Array();
    EXPECT_EQ(rules.gaRules.UBound(), 0);
    EXPECT_FALSE(File()) << "loading creates no file";
}

TEST_F(BuildRulesArray, GivesAnEmptyListForAnEmptyFile) {
    Load("");
    EXPECT_EQ(rules.gaRules.UBound(), 0);
}

TEST_F(BuildRulesArray, DropsWhatTheListHeld) {
    Load("[RULE]\r\nCODE= A\r\n[RULE]\r\nCODE= B\r\n");
    Load("[RULE]\r\nCODE= C\r\n");
    EXPECT_THAT(Codes(), ElementsAre("C"));
}

TEST_F(BuildRulesArray, LeavesTheStateBesideTheListAlone) {
    rules.gbRulesChanged = true;
    Load(Sections(1));
    EXPECT_EQ(rules.giCurRule, -1);
    EXPECT_FALSE(rules.gbNewRule);
    EXPECT_TRUE(rules.gbRulesChanged);
    EXPECT_FALSE(rules.gbLoadingRule);
    EXPECT_THAT(reports, IsEmpty());
}

TEST_F(BuildRulesArray, TracesItsStartBeforeTheFileIsLookedFor) {
    PutFile("[RULE]\r\n");
    world.files.Plan({});
    rules.Build_Rules_Array();
    EXPECT_THAT(Log(), ElementsAre("Trace mRules Build_Rules_Array Start", R"(Exists C:\SYS\ZYRules.sys)",
                                   R"(OpenForReading C:\SYS\ZYRules.sys)", R"(Read C:\SYS\ZYRules.sys)",
                                   R"(Read C:\SYS\ZYRules.sys)"));
}

TEST_F(BuildRulesArray, TellsHowManyLinesAreNoPartOfARule) {
    Load("; a comment\r\n[RULE]\r\nCODE= A\r\nCOLOUR= red\r\n\r\n");
    EXPECT_EQ(rules.SkippedLines(), 2U);
    Load("[RULE]\r\nCODE= A\r\n");
    EXPECT_EQ(rules.SkippedLines(), 0U);
}

TEST_F(BuildRulesArray, Takes32767Rules) {
    Load(Sections(32767));
    EXPECT_EQ(rules.gaRules.UBound(), 32767);
}

TEST_F(BuildRulesArray, RaisesOverflowForOneRuleMoreAndTakesNone) {
    EXPECT_EQ(ErrorNumber([&] { Load(Sections(32768)); }), 6);
    EXPECT_EQ(rules.gaRules.UBound(), 0);
    EXPECT_EQ(File(), Sections(32768));
}

} // namespace
} // namespace zy::test
