#include "RulesForm.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

class MoveRule : public RulesForm {
  protected:
    MoveRule() { StartWithCodes({"A", "B", "C"}); }
};

TEST_F(MoveRule, UpSwapsItWithTheOneBeforeAndKeepsItInHand) {
    list().Pick(3);
    page().cmdUpDown.PressUp();
    EXPECT_THAT(Codes(), ElementsAre("A", "C", "B"));
    ExpectInHand(2);
    EXPECT_EQ(page().txtCode.Text(), "C");
    page().cmdUpDown.PressUp();
    EXPECT_THAT(Codes(), ElementsAre("C", "A", "B"));
    ExpectInHand(1);
}

TEST_F(MoveRule, DownSwapsItWithTheOneBehindAndKeepsItInHand) {
    page().cmdUpDown.PressDown();
    EXPECT_THAT(Codes(), ElementsAre("B", "A", "C"));
    ExpectInHand(2);
    EXPECT_EQ(page().txtCode.Text(), "A");
    page().cmdUpDown.PressDown();
    EXPECT_THAT(Codes(), ElementsAre("B", "C", "A"));
    ExpectInHand(3);
}

TEST_F(MoveRule, UpOfTheFirstChangesNothing) {
    const auto before = Rows();
    Traces();
    page().cmdUpDown.PressUp();
    EXPECT_EQ(Rows(), before);
    ExpectInHand(1);
    ExpectMarks(false, false);
    EXPECT_THAT(Traces(),
                ElementsAre("frmGlobalSettings cmdUpDown_UpClick Start", "mRules Move_Rule_Up Start"));
}

TEST_F(MoveRule, DownOfTheLastChangesNothing) {
    list().Pick(3);
    const auto before = Rows();
    Traces();
    page().cmdUpDown.PressDown();
    EXPECT_EQ(Rows(), before);
    ExpectInHand(3);
    ExpectMarks(false, false);
    EXPECT_THAT(Traces(),
                ElementsAre("frmGlobalSettings cmdUpDown_DownClick Start", "mRules Move_Rule_Down Start"));
}

TEST_F(MoveRule, OfTheOnlyRuleChangesNothing) {
    StartWithCodes({"A"});
    page().cmdUpDown.PressUp();
    page().cmdUpDown.PressDown();
    ExpectInHand(1);
    ExpectMarks(false, false);
}

TEST_F(MoveRule, SetsBothMarks) {
    page().cmdUpDown.PressDown();
    ExpectMarks(true, true);
    EXPECT_FALSE(rules().gbRulesChanged);
    form().ChangeFlag = false;
    state().gbChanged = false;
    page().cmdUpDown.PressUp();
    ExpectMarks(true, true);
}

TEST_F(MoveRule, TracesEveryStep) {
    Traces();
    page().cmdUpDown.PressDown();
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings cmdUpDown_DownClick Start",
                                      "mRules Move_Rule_Down Start", "mRules LoadRulesListMode Start",
                                      "mRules EditRule Start", "frmGlobalSettings txtCode_Change Start",
                                      "mRules EditRule Start", "frmGlobalSettings txtCode_Change Start"));
}

TEST_F(MoveRule, ReachesTheFileBySaving) {
    page().cmdUpDown.PressDown();
    ChooseSave();
    EXPECT_EQ(File(), Text({Loaded("B"), Loaded("A"), Loaded("C")}));
    ExpectInHand(2);
}

TEST_F(MoveRule, DropsAnEditOfTheForm) {
    page().txtDescription.Enter("edited");
    page().cmdUpDown.PressDown();
    EXPECT_EQ(page().txtDescription.Text(), "text  ");
    ChooseSave();
    EXPECT_EQ(File(), Text({Loaded("B"), Loaded("A"), Loaded("C")}));
}

TEST_F(MoveRule, ThereAndBackGivesTheSameFile) {
    const auto held = Text({Loaded("A"), Loaded("B"), Loaded("C")});
    page().cmdUpDown.PressDown();
    page().cmdUpDown.PressUp();
    ChooseSave();
    EXPECT_EQ(File(), held);
}

TEST_F(MoveRule, ChecksWhatTheRuleIsAfterItMoved) {
    page().cmdUpDown.PressDown();
    page().txtCode.Enter("B");
    world.dialogs.ExpectMessage("Rule Code must be unique", "Invalid Rule Code");
    ChooseSave();
    page().txtCode.Enter("A");
    ChooseSave();
    EXPECT_THAT(Codes(), ElementsAre("B", "A", "C"));
}

} // namespace
} // namespace zy::test
