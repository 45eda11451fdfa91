#include "RulesForm.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The check of a single field when the focus leaves it for another control.
class ValidateEvents : public RulesForm {
  protected:
    ValidateEvents() {
        StartWithCodes({"A", "B"});
        Traces();
    }

    /// Leaving the control for the list fails once, and the focus stays.
    void ExpectKept(Control& control, const char* message, const char* title) {
        SCOPED_TRACE(control.Name());
        world.dialogs.ExpectMessage(message, title);
        EXPECT_FALSE(list().TakeFocus());
        ExpectScriptPlayed(world.dialogs);
        EXPECT_TRUE(control.HasFocus());
    }
};

TEST_F(ValidateEvents, KeepTheFocusInACodeThatFails) {
    page().txtCode.Enter("ABCD");
    ExpectKept(page().txtCode, "Rule Code must be 1 to 3 characters", "Invalid Rule Code");
    EXPECT_EQ(page().txtCode.SelLength(), 4U);
    page().txtCode.Type("b");
    EXPECT_EQ(page().txtCode.Text(), "b") << "typing replaces the refused text";
    ExpectKept(page().txtCode, "Rule Code must be unique", "Invalid Rule Code");
    page().txtCode.Type("C");
    EXPECT_TRUE(list().TakeFocus());
}

TEST_F(ValidateEvents, CompareACodeAtTheIndexOfTheRuleInHand) {
    page().txtCode.Enter("a");
    EXPECT_TRUE(list().TakeFocus());
    list().Pick(2);
    page().txtCode.Enter("a");
    ExpectKept(page().txtCode, "Rule Code must be unique", "Invalid Rule Code");
}

TEST_F(ValidateEvents, KeepTheFocusInAMinThatFails) {
    page().txtMin.Enter("");
    ExpectKept(page().txtMin, "Min Must be a Numeric Value", "Invalid Rule Min Value");
    page().txtMin.Enter("0");
    ExpectKept(page().txtMin, "Min Must be between 1 and 100", "Invalid Rule Min Value");
    page().txtMin.Enter("3");
    ExpectKept(page().txtMin, "Min Value must be less than Max Value", "Invalid Rule Max or Min Value");
    EXPECT_EQ(page().txtMin.SelLength(), 1U);
    page().txtMin.Enter("2");
    EXPECT_TRUE(list().TakeFocus());
}

TEST_F(ValidateEvents, KeepTheFocusInAMaxThatFails) {
    page().txtMax.Enter("x");
    ExpectKept(page().txtMax, "Max Must be a Numeric Value", "Invalid Rule Max Value");
    page().txtMax.Enter("101");
    ExpectKept(page().txtMax, "Max Must be between 1 and 100", "Invalid Rule Max Value");
    page().txtMin.SetText("50");
    page().txtMax.Enter("49");
    ExpectKept(page().txtMax, "Min Value must be less than Max Value", "Invalid Rule Max or Min Value");
    EXPECT_EQ(page().txtMax.SelLength(), 2U);
    page().txtMax.Enter("50");
    EXPECT_TRUE(list().TakeFocus());
}

TEST_F(ValidateEvents, CompareTheCountsOnlyAfterTheFieldsOwnCheckPassed) {
    page().txtMin.Enter("200");
    Traces();
    ExpectKept(page().txtMin, "Min Must be between 1 and 100", "Invalid Rule Min Value");
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings txtMin_Validate Start", "mRules Check_Min Start"));
    page().txtMin.Enter("2");
    Traces();
    EXPECT_TRUE(list().TakeFocus());
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings txtMin_Validate Start", "mRules Check_Min Start",
                                      "mRules Verify_MinMax Start"));
    page().txtMax.TakeFocus();
    EXPECT_TRUE(list().TakeFocus());
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings txtMax_Validate Start", "mRules Check_Max Start",
                                      "mRules Verify_MinMax Start"));
}

TEST_F(ValidateEvents, LeadOutOfACountWhoseNeighbourWasLoadedAsNoCount) {
    auto rule = RuleOf("A");
    rule.Max = "many";
    StartWith({rule});
    page().txtMin.SetFocus();
    EXPECT_TRUE(page().txtMax.TakeFocus());
    page().txtMax.Enter("9");
    EXPECT_TRUE(list().TakeFocus());

    rule.Min = "none";
    rule.Max = "0.5";
    StartWith({rule});
    page().txtMin.Enter("5");
    EXPECT_TRUE(page().txtMax.TakeFocus());
    ExpectKept(page().txtMax, "Max Must be between 1 and 100", "Invalid Rule Max Value");
    page().txtMax.Enter("4");
    ExpectKept(page().txtMax, "Min Value must be less than Max Value", "Invalid Rule Max or Min Value");
}

TEST_F(ValidateEvents, KeepTheFocusInADescriptionThatFails) {
    page().txtDescription.Enter("");
    ExpectKept(page().txtDescription, "Rule Description cannot be Blank", "Invalid Rule Description");
    page().txtDescription.Enter("\"");
    ExpectKept(page().txtDescription, "Rule Description cannot contain double quotes",
               "Invalid Rule Description");
    page().txtDescription.Enter(" ");
    EXPECT_TRUE(list().TakeFocus());
}

TEST_F(ValidateEvents, KeepTheFocusInAListWithoutASelection) {
    page().cboCondition.TakeFocus();
    page().cboCondition.SetListIndex(-1);
    ExpectKept(page().cboCondition, "You Must select a Rule Condtion", "Rule Condition Invalid");
    page().cboCondition.Pick(0);
    page().cboZone.TakeFocus();
    page().cboZone.SetListIndex(-1);
    ExpectKept(page().cboZone, "You Must select a Rule Condtion", "Rule Condition Invalid");
    page().cboZone.Pick(0);
    EXPECT_TRUE(list().TakeFocus());
}

TEST_F(ValidateEvents, TraceTheFieldThatIsLeft) {
    page().txtCode.TakeFocus();
    page().cboCondition.TakeFocus();
    page().cboZone.TakeFocus();
    page().txtDescription.TakeFocus();
    list().TakeFocus();
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings txtCode_Validate Start", "mRules CheckCode Start",
                                      "frmGlobalSettings cboCondition_Validate Start",
                                      "frmGlobalSettings cboZone_Validate Start",
                                      "frmGlobalSettings txtDescription_Validate Start"));
}

TEST_F(ValidateEvents, CheckNothingWhenTheFocusStays) {
    page().txtCode.Enter("");
    Traces();
    page().txtCode.TakeFocus();
    page().txtCode.Type("X");
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings txtCode_Change Start"));
}

TEST_F(ValidateEvents, CheckNothingWhenAButtonOrTheListIsLeft) {
    page().cmdSaveRules.TakeFocus();
    list().TakeFocus();
    page().txtCode.TakeFocus();
    EXPECT_THAT(Traces(), IsEmpty());
}

// What a click would have done is not done when the field that is left keeps the focus.

TEST_F(ValidateEvents, StopTheButtonsThatAreClicked) {
    page().txtCode.Enter("");
    form().ChangeFlag = true;
    const auto click = [&](const auto& action) {
        world.dialogs.ExpectMessage("Rule Code cannot be Blank", "Invalid Rule Code");
        action();
        ExpectScriptPlayed(world.dialogs);
        EXPECT_TRUE(page().txtCode.HasFocus());
    };
    const auto before = File();
    click([&] { page().cmdAddList.Click(); });
    click([&] { page().cmdDeleteList.Click(); });
    click([&] { page().cmdSaveRules.Click(); });
    click([&] { page().cmdUpDown.PressUp(); });
    click([&] { page().cmdUpDown.PressDown(); });
    EXPECT_THAT(Codes(), ElementsAre("A", "B"));
    EXPECT_EQ(File(), before);
    EXPECT_TRUE(form().ChangeFlag);
}

TEST_F(ValidateEvents, KeepTheSelectionOfTheListThatIsClicked) {
    page().txtCode.Enter("");
    world.dialogs.ExpectMessage("Rule Code cannot be Blank", "Invalid Rule Code");
    list().Pick(2);
    ExpectInHand(1);
}

TEST_F(ValidateEvents, StopTheKeysOfTheList) {
    page().txtCode.Enter("");
    world.dialogs.ExpectMessage("Rule Code cannot be Blank", "Invalid Rule Code");
    list().Press({.key = Key::Down, .alt = true});
    EXPECT_THAT(Codes(), ElementsAre("A", "B"));
}

TEST_F(ValidateEvents, KeepTheOtherFieldsAsTheyWere) {
    page().txtCode.Enter("");
    world.dialogs.ExpectMessage("Rule Code cannot be Blank", "Invalid Rule Code");
    page().txtMin.Enter("7");
    EXPECT_EQ(page().txtMin.Text(), "1");
    world.dialogs.ExpectMessage("Rule Code cannot be Blank", "Invalid Rule Code");
    page().cboZone.Pick(5);
    EXPECT_EQ(page().cboZone.ListIndex(), 1);
}

TEST_F(ValidateEvents, AskNothingWhenAMenuIsOpened) {
    page().txtCode.Enter("");
    Traces();
    window().menu.mnuHelp.Click();
    window().menu.mnuContents.Click();
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings mnuContents_Click Start"));
    EXPECT_TRUE(page().txtCode.HasFocus());
}

TEST_F(ValidateEvents, AskNothingOfTheirOwnBesideTheCheckOfAMenuSave) {
    page().txtCode.Enter("");
    Traces();
    world.dialogs.ExpectMessage("Rule Code cannot be Blank", "Invalid Rule Code");
    ChooseSave();
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings ,mnuSave_Click Rules", "mRules Validate_Rule Start",
                                      "mRules CheckCode Start"));
}

TEST_F(ValidateEvents, AskNothingWhenTheWindowCloses) {
    page().txtCode.Enter("");
    Traces();
    ExpectWishToSave(Answer::No);
    window().Unload();
    EXPECT_THAT(Traces(),
                ElementsAre("frmGlobalSettings Form_Unload Rules", "frmGlobalSettings Form_Unload Unloaded"));
}

} // namespace
} // namespace zy::test
