#include "RulesForm.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The page without any rule, because the file has none or the last one was deleted.
class EmptyList : public RulesForm {
  protected:
    void ExpectEmptyPage() {
        EXPECT_EQ(list().Count(), 0);
        EXPECT_EQ(list().Selected(), 0);
        EXPECT_EQ(rules().giCurRule, -1);
        EXPECT_EQ(Details(), "|||||");
        EXPECT_EQ(page().cboCondition.ListIndex(), -1);
        EXPECT_EQ(page().cboZone.ListIndex(), -1);
        EXPECT_FALSE(rules().gbLoadingRule);
        for (Control* control : std::initializer_list<Control*>{
                 &page().txtCode, &page().txtMin, &page().txtMax, &page().cboCondition, &page().cboZone,
                 &page().txtDescription, &page().cmdDeleteList, &page().cmdUpDown}) {
            EXPECT_FALSE(control->IsUsable()) << control->Name();
        }
        for (Control* control : std::initializer_list<Control*>{&page().lstRulesList, &page().cmdAddList,
                                                                &page().cmdSaveRules, &page().cmdHelpRules}) {
            EXPECT_TRUE(control->IsUsable()) << control->Name();
        }
    }
};

TEST_F(EmptyList, IsShownForAMissingFile) {
    EXPECT_EQ(Start("@RULES"), StartUp::WindowShown);
    ExpectEmptyPage();
    ExpectMarks(false, false);
    EXPECT_EQ(Status(), "0 rules");
}

TEST_F(EmptyList, IsShownForAnEmptyFile) {
    StartOver("");
    ExpectEmptyPage();
}

TEST_F(EmptyList, IsShownAfterTheLastRuleWasDeleted) {
    StartWithCodes({"A"});
    Delete(Answer::Yes);
    ExpectEmptyPage();
}

TEST_F(EmptyList, TracesThatTheFormWasCleared) {
    StartOver("");
    Traces();
    handlers().listMode.LoadRulesListMode();
    EXPECT_THAT(Traces(), ElementsAre("mRules LoadRulesListMode Start", "mRules ClearRule Start"));
}

TEST_F(EmptyList, ClearsTheFormWithoutCountingAsAnEdit) {
    StartWithCodes({"A"});
    handlers().details.ClearRule();
    ExpectMarks(false, false);
    EXPECT_EQ(rules().giCurRule, -1);
}

TEST_F(EmptyList, TakesNoActionThatNeedsARule) {
    StartOver("");
    Traces();
    page().cmdDeleteList.Click();
    page().cmdUpDown.PressUp();
    page().cmdUpDown.PressDown();
    page().txtCode.Type("A");
    page().txtMin.Enter("1");
    page().cboZone.Pick(1);
    EXPECT_THAT(Traces(), IsEmpty());
    ExpectEmptyPage();
    ExpectMarks(false, false);
}

TEST_F(EmptyList, IgnoresTheKeysOfTheList) {
    StartOver("");
    list().Press({.key = Key::Delete});
    list().Press({.key = Key::Up, .alt = true});
    list().Press({.key = Key::Down, .alt = true});
    ExpectEmptyPage();
    ExpectMarks(false, false);
}

TEST_F(EmptyList, ChecksNoField) {
    StartOver("");
    for (Control* control :
         std::initializer_list<Control*>{&page().txtCode, &page().txtMin, &page().txtMax,
                                         &page().cboCondition, &page().cboZone, &page().txtDescription}) {
        EXPECT_TRUE(control->validate()) << control->Name();
    }
}

TEST_F(EmptyList, LetsTheFocusLeaveAFieldThatWasEmptiedWithTheList) {
    StartWithCodes({"A"});
    page().txtCode.TakeFocus();
    page().txtCode.SetText("");
    ExpectDeleteQuestion(Answer::Yes);
    handlers().listMode.cmdDeleteList_Click();
    ExpectEmptyPage();
    EXPECT_TRUE(page().cmdAddList.TakeFocus());
}

TEST_F(EmptyList, IsSavedAsAnEmptyFile) {
    StartWithCodes({"A"});
    Delete(Answer::Yes);
    ExpectWishToSave(Answer::Yes);
    ChooseExit();
    EXPECT_EQ(File(), "");
}

TEST_F(EmptyList, IsReloadedAsAnEmptyList) {
    StartWithCodes({"A"});
    Delete(Answer::Yes);
    ChooseSave();
    Start("@RULES");
    ExpectEmptyPage();
}

TEST_F(EmptyList, HasNothingForItsHandlersToDo) {
    StartOver("");
    handlers().listMode.cmdDeleteList_Click(); // asks nothing either
    handlers().listMode.cmdUpDown_UpClick();
    handlers().listMode.cmdUpDown_DownClick();
    ExpectEmptyPage();
    ExpectMarks(false, false);
}

} // namespace
} // namespace zy::test
