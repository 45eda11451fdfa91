#include "RulesForm.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DeleteRule : public RulesForm {};

TEST_F(DeleteRule, TakesTheRuleOutAndSelectsTheOneBeforeIt) {
    StartWithCodes({"A", "B", "C", "D", "E"});
    list().Pick(3);
    Delete(Answer::Yes);
    EXPECT_THAT(Codes(), ElementsAre("A", "B", "D", "E"));
    ExpectInHand(2);
    EXPECT_EQ(page().txtCode.Text(), "B");
    EXPECT_EQ(rules().gaRules.UBound(), 4);
}

TEST_F(DeleteRule, SelectsTheNewFirstRuleAfterTheFirst) {
    StartWithCodes({"A", "B", "C", "D", "E"});
    Delete(Answer::Yes);
    EXPECT_THAT(Codes(), ElementsAre("B", "C", "D", "E"));
    ExpectInHand(1);
    EXPECT_EQ(page().txtCode.Text(), "B");
}

TEST_F(DeleteRule, SelectsTheNewLastRuleAfterTheLast) {
    StartWithCodes({"A", "B", "C"});
    list().Pick(3);
    Delete(Answer::Yes);
    EXPECT_THAT(Codes(), ElementsAre("A", "B"));
    ExpectInHand(2);
}

TEST_F(DeleteRule, OfTheOnlyRuleEmptiesTheListAndTheForm) {
    StartWithCodes({"A"});
    Delete(Answer::Yes);
    EXPECT_THAT(Codes(), IsEmpty());
    EXPECT_EQ(list().Selected(), 0);
    EXPECT_EQ(rules().giCurRule, -1);
    EXPECT_EQ(Details(), "|||||");
    EXPECT_EQ(page().cboCondition.ListIndex(), -1);
    EXPECT_EQ(page().cboZone.ListIndex(), -1);
    ExpectMarks(true, false);
}

TEST_F(DeleteRule, LeavesEverythingAsItWasOnNo) {
    StartWithCodes({"A", "B"});
    list().Pick(2);
    page().txtMin.Enter("2");
    form().ChangeFlag = false;
    Delete(Answer::No);
    EXPECT_THAT(Codes(), ElementsAre("A", "B"));
    ExpectInHand(2);
    EXPECT_EQ(page().txtMin.Text(), "2");
    ExpectMarks(false, false);
}

TEST_F(DeleteRule, SetsTheWindowsMarkAlone) {
    StartWithCodes({"A", "B"});
    Delete(Answer::Yes);
    ExpectMarks(true, false);
    EXPECT_FALSE(rules().gbRulesChanged);
}

TEST_F(DeleteRule, TracesEveryStep) {
    StartWithCodes({"A", "B"});
    list().Pick(2);
    Traces();
    Delete(Answer::Yes);
    EXPECT_THAT(Traces(),
                ElementsAre("frmGlobalSettings cmdDeleteList_Click Start", "mRules Delete_Rule Start item: 2",
                            "mRules EditRule Start", "frmGlobalSettings txtCode_Change Start",
                            "frmGlobalSettings cmdDeleteList_Click Rule Deleted"));
}

TEST_F(DeleteRule, TracesTheDeletionAlsoOnNo) {
    StartWithCodes({"A", "B"});
    Traces();
    Delete(Answer::No);
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings cmdDeleteList_Click Start",
                                      "frmGlobalSettings cmdDeleteList_Click Rule Deleted"));
}

TEST_F(DeleteRule, TellsTheListToTakeOutOneRowAndNotToRefill) {
    StartWithCodes({"A", "B", "C"});
    list().Pick(2);
    std::vector<std::string> told;
    const auto removed = list().itemRemoved.Observe([&](int item) { told.push_back(std::to_string(item)); });
    const auto refilled = list().refilled.Observe([&] { told.emplace_back("refilled"); });
    Delete(Answer::Yes);
    EXPECT_THAT(told, ElementsAre("2"));
}

TEST_F(DeleteRule, DropsAnEditOfTheDeletedRule) {
    StartWithCodes({"A", "B"});
    list().Pick(2);
    page().txtDescription.Enter("edited");
    Delete(Answer::Yes);
    ChooseSave();
    EXPECT_EQ(File(), Text({Loaded("A")}));
}

TEST_F(DeleteRule, ReachesTheFileBySaving) {
    StartWithCodes({"A", "B", "C"});
    const auto before = File();
    list().Pick(2);
    Delete(Answer::Yes);
    EXPECT_EQ(File(), before) << "not before";
    ChooseSave();
    EXPECT_EQ(File(), Text({Loaded("A"), Loaded("C")}));
}

TEST_F(DeleteRule, OfAllRulesOneByOneEndsInAnEmptyFile) {
    StartWithCodes({"A", "B", "C"});
    list().Pick(3);
    for (int i = 0; i < 3; ++i) {
        Delete(Answer::Yes);
    }
    page().cmdSaveRules.Click();
    EXPECT_EQ(File(), "");
}

} // namespace
} // namespace zy::test
