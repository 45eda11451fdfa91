#include "RulesForm.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

class AddRule : public RulesForm {};

TEST_F(AddRule, PutsTheNewRuleAtTheEndAndIntoTheDetailForm) {
    StartWithCodes({"A", "B"});
    page().cmdAddList.Click();
    EXPECT_THAT(Rows(), ElementsAre("A|1|2|>|UCL|text  ", "B|1|2|>|UCL|text  ", "NEW|1|2|=|USL|New"));
    ExpectInHand(3);
    EXPECT_EQ(Details(), "NEW|1|2|= - Equal to|USL - Upper Spec. Limit (White)|New");
    EXPECT_TRUE(rules().gbNewRule);
}

TEST_F(AddRule, SetsTheWindowsMarkAlone) {
    StartWithCodes({"A"});
    page().cmdAddList.Click();
    ExpectMarks(true, false);
    EXPECT_FALSE(rules().gbRulesChanged);
}

TEST_F(AddRule, TracesEveryStep) {
    StartWithCodes({"A"});
    Traces();
    page().cmdAddList.Click();
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings cmdAddList_Click Start", "mRules Add_New_Rule Start",
                                      "mRules LoadRulesListMode Start", "mRules EditRule Start",
                                      "mRules EditRule Start", "frmGlobalSettings txtCode_Change Start",
                                      "frmGlobalSettings txtDescription_Change Start",
                                      "frmGlobalSettings cboCondition_Click Start",
                                      "frmGlobalSettings cboZone_Click Start"));
}

TEST_F(AddRule, ToAnEmptyListEnablesTheForm) {
    StartWithCodes({});
    page().cmdAddList.Click();
    EXPECT_THAT(Codes(), ElementsAre("NEW"));
    ExpectInHand(1);
    EXPECT_TRUE(page().txtCode.IsUsable());
    EXPECT_TRUE(page().cmdDeleteList.IsUsable());
    EXPECT_TRUE(page().cmdUpDown.IsUsable());
}

TEST_F(AddRule, IsSavedByThePageWithoutACheck) {
    StartWithCodes({"A"});
    page().cmdAddList.Click();
    page().cmdSaveRules.Click();
    EXPECT_EQ(File(), Text({Loaded("A"),
                            {.Code = "NEW",
                             .Min = "1",
                             .Max = "2",
                             .Cond = "=",
                             .Zone = "USL",
                             .Description = "New",
                             .Desc2 = {},
                             .Desc3 = {}}}));
}

TEST_F(AddRule, IsRefusedByTheMenuWhileAnotherNewRuleHasItsCode) {
    StartWithCodes({"A"});
    const auto before = File();
    page().cmdAddList.Click();
    page().cmdAddList.Click();
    world.dialogs.ExpectMessage("Rule Code must be unique", "Invalid Rule Code");
    ChooseSave();
    EXPECT_EQ(File(), before);
    EXPECT_TRUE(rules().gbNewRule);
    page().txtCode.Enter("N2");
    ChooseSave();
    EXPECT_THAT(Codes(), ElementsAre("A", "NEW", "N2"));
    EXPECT_NE(File(), before);
    EXPECT_FALSE(rules().gbNewRule);
}

TEST_F(AddRule, IsAWholeTurnFromButtonToBytes) {
    StartWithCodes({});
    page().cmdAddList.Click();
    page().txtCode.Enter("R1");
    page().txtMax.Enter("9");
    page().txtMin.Enter("9");
    page().cboCondition.Pick(0);
    page().cboZone.Pick(11);
    page().txtDescription.Enter("9 points in a row above the average");
    ChooseSave();
    EXPECT_EQ(File(), "[RULE]\r\n"
                      "   CODE         = R1\r\n"
                      "   MIN          = 9\r\n"
                      "   MAX          = 9\r\n"
                      "   COND         = >\r\n"
                      "   ZONE         = AVG\r\n"
                      "   DESC1        = 9 points in a row above the average\r\n"
                      "   DESC2        = \r\n"
                      "   DESC3        = \r\n");
}

TEST_F(AddRule, ToAFullListIsRefusedAndChangesNothing) {
    std::string text;
    for (int i = 0; i < kMaxItems; ++i) {
        text += "[RULE]\r\n";
    }
    StartOver(text);
    page().cmdAddList.Click();
    EXPECT_THAT(Status(), ::testing::StartsWith("32767 rules"));
    EXPECT_THAT(Status(), ::testing::EndsWith("   -   Not added: the list is as long as it can be"));
    EXPECT_EQ(rules().gaRules.UBound(), kMaxItems);
    EXPECT_EQ(list().Count(), kMaxItems);
    ExpectInHand(1);
    ExpectMarks(false, false);
    EXPECT_EQ(File(), text);
}

} // namespace
} // namespace zy::test
