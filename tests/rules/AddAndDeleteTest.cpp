#include "RulesTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

class AddNewRule : public RulesTest {};

TEST_F(AddNewRule, AppendsARuleWithTheValuesOfANewOne) {
    AddCode("R1");
    rules.Add_New_Rule();
    EXPECT_THAT(ShownRules(), ElementsAre("R1|1|2|>|UCL|text||", "NEW|1|2|=|USL|New||"));
}

TEST_F(AddNewRule, MarksTheRuleAsNew) {
    EXPECT_FALSE(rules.gbNewRule);
    rules.Add_New_Rule();
    EXPECT_TRUE(rules.gbNewRule);
}

TEST_F(AddNewRule, TracesItsStart) {
    world.files.Plan({});
    rules.Add_New_Rule();
    EXPECT_THAT(Log(), ElementsAre("Trace mRules Add_New_Rule Start"));
}

TEST_F(AddNewRule, WorksBeforeAnyFileWasLoaded) {
    rules.Add_New_Rule();
    rules.Add_New_Rule();
    EXPECT_THAT(Codes(), ElementsAre("NEW", "NEW"));
    rules.gaRules(1).Code = "A";
    EXPECT_THAT(Codes(), ElementsAre("A", "NEW")) << "two rules, not one twice";
}

TEST_F(AddNewRule, KeepsTheRulesThatWereLoaded) {
    Load("[RULE]\r\nCODE= A\r\n");
    for (int i = 0; i < 1000; ++i) {
        rules.Add_New_Rule();
    }
    EXPECT_EQ(rules.gaRules(1).Code, "A");
    EXPECT_EQ(rules.gaRules.UBound(), 1001);
}

TEST_F(AddNewRule, RaisesOverflowForAFullListAndMarksNothing) {
    AddMany(32767);
    EXPECT_EQ(ErrorNumber([&] { rules.Add_New_Rule(); }), 6);
    EXPECT_EQ(rules.gaRules.UBound(), 32767);
    EXPECT_FALSE(rules.gbNewRule);
}

class DeleteRule : public RulesTest {
  protected:
    DeleteRule() {
        for (const auto* code : {"A", "B", "C", "D"}) {
            AddCode(code);
        }
    }
};

TEST_F(DeleteRule, MovesTheRulesBehindItDown) {
    rules.Delete_Rule(2);
    EXPECT_THAT(Codes(), ElementsAre("A", "C", "D"));
}

TEST_F(DeleteRule, TakesTheFirstAndTheLastOut) {
    rules.Delete_Rule(1);
    rules.Delete_Rule(3);
    EXPECT_THAT(Codes(), ElementsAre("B", "C"));
}

TEST_F(DeleteRule, TracesTheIndex) {
    world.files.Plan({});
    rules.Delete_Rule(3);
    EXPECT_THAT(Log(), ElementsAre("Trace mRules Delete_Rule Start item: 3"));
}

TEST_F(DeleteRule, RaisesSubscriptOutOfRangeForARuleThatIsNotThere) {
    EXPECT_EQ(ErrorNumber([&] { rules.Delete_Rule(5); }), 9);
    EXPECT_EQ(ErrorNumber([&] { rules.Delete_Rule(0); }), 9);
    EXPECT_EQ(ErrorNumber([&] { rules.Delete_Rule(-1); }), 9);
    EXPECT_THAT(Codes(), ElementsAre("A", "B", "C", "D"));
}

class SettingsLibraryTest : public RulesTest {
  protected:
    SettingsLibrary settings{world.files, world.system};
};

TEST_F(SettingsLibraryTest, FindsTheRulesFileInTheSystemDirectory) {
    EXPECT_EQ(settings.RulesFile(), R"(C:\SYS\ZYRules.sys)");
    world.system.SetSystemDirectory(R"(D:\X)");
    EXPECT_EQ(settings.RulesFile(), R"(D:\X\ZYRules.sys)");
}

TEST_F(SettingsLibraryTest, CountsItsRulesFromOne) {
    PutFile("[RULE]\r\nCODE= A\r\n[RULE]\r\nCODE= B\r\n");
    const auto collection = settings.Rules();
    EXPECT_EQ(collection.Count(), 2);
    EXPECT_EQ(collection.Item(1).Code, "A");
    EXPECT_EQ(collection.Item(2).Code, "B");
    for (const int index : {-1, 0, 3, 32767}) {
        EXPECT_EQ(ErrorNumber([&] { collection.Item(index); }), 9) << index;
    }
}

TEST_F(SettingsLibraryTest, HandsOutTheRulesThemselves) {
    PutFile("[RULE]\r\nCODE= A\r\n");
    const auto collection = settings.Rules();
    collection.Item(1).Code = "X";
    EXPECT_EQ(collection.Item(1).Code, "X");
}

TEST_F(SettingsLibraryTest, MakesRulesWithoutValues) {
    EXPECT_EQ(Shown(settings.NewRule()), "|||||||");
}

} // namespace
} // namespace zy::test
