#include "GridModeForm.h"
#include "support/RawBool16.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

/// What is stored before one view of the rules is left for the other.
class TabSwitch : public GridModeForm {
  protected:
    bool Store() { return handlers().StoreBeforeTabSwitch(); }
    void ExpectOpenCell(int row, int column) {
        EXPECT_EQ(grid().selection.Row(), row);
        EXPECT_EQ(grid().selection.Column(), column);
        EXPECT_TRUE(grid().editor.IsOpen());
    }
};

TEST_F(TabSwitch, FromTheListStoresTheRuleInHand) {
    StartWithCodes({"A", "B"});
    list().Pick(2);
    page().txtCode.Enter("X");
    EXPECT_TRUE(Store());
    EXPECT_THAT(HeldRules(), ElementsAre("A|1|2|>|UCL|text  ", "X|1|2|>|UCL|text  "));
    ExpectMarks(true, true);
}

TEST_F(TabSwitch, FromTheListShowsTheStoredRuleInTheGrid) {
    StartWithCodes({"A"});
    page().txtCode.Enter("X");
    ASSERT_TRUE(Store());
    handlers().ShowGridMode();
    EXPECT_THAT(GridCodes(), ElementsAre("X"));
}

TEST_F(TabSwitch, FromTheListIsCancelledWhenTheRuleInHandFails) {
    StartWithCodes({"A"});
    page().txtMin.Enter("101");
    world.dialogs.ExpectMessage("Min Must be between 1 and 100", "Invalid Rule Min Value");
    EXPECT_FALSE(Store());
    EXPECT_THAT(HeldRules(), ElementsAre("A|1|2|>|UCL|text  "));
    EXPECT_TRUE(page().txtMin.HasFocus());
}

TEST_F(TabSwitch, FromTheListChecksTheRuleInHandAlsoWhenNothingWasEdited) {
    StartOver("[RULE]\r\n   CODE         = A\r\n");
    world.dialogs.ExpectMessage("Min Must be a Numeric Value", "Invalid Rule Min Value");
    EXPECT_FALSE(Store());
    ExpectMarks(false, false);
}

TEST_F(TabSwitch, FromTheListPassesWithoutARuleInHand) {
    StartWithCodes({});
    EXPECT_TRUE(Store());
}

TEST_F(TabSwitch, FromTheListDoesNotLookAtTheGrid) {
    ShowGridOver({"A"});
    Fill(1, kCodeColumn, "");
    handlers().ShowListMode();
    EXPECT_TRUE(Store());
    EXPECT_THAT(HeldRules(), ElementsAre("A|1|2|>|UCL|text  "));
}

TEST_F(TabSwitch, FromTheGridStoresIt) {
    ShowGridOver({"A", "B"});
    Fill(2, kCodeColumn, "X");
    EXPECT_TRUE(Store());
    EXPECT_THAT(HeldRules(), ElementsAre("A|1|2|>|UCL|text  ", "X|1|2|>|UCL|text  "));
    ExpectMarks(true, true);
}

TEST_F(TabSwitch, FromTheGridTakesOverTheCellThatIsStillOpen) {
    ShowGridOver({"A"});
    grid().Pick(1, kCodeColumn);
    grid().TypeOver("X");
    EXPECT_TRUE(Store());
    EXPECT_THAT(HeldRules(), ElementsAre("X|1|2|>|UCL|text  "));
}

TEST_F(TabSwitch, FromTheGridIsCancelledAtTheFirstCellThatFails) {
    ShowGridOver({"A", "B"});
    Fill(2, kMinColumn, "9");
    Fill(2, kDescriptionColumn, "");
    world.dialogs.ExpectMessage("Min Value must be less than Max Value", "Invalid Rule Max or Min Value");
    EXPECT_FALSE(Store());
    ExpectOpenCell(2, kMaxColumn);
    EXPECT_THAT(HeldRules(), ElementsAre("A|1|2|>|UCL|text  ", "B|1|2|>|UCL|text  "));
    ExpectMarks(false, false);
    EXPECT_TRUE(rules().gbGridChanged);
}

TEST_F(TabSwitch, FromTheGridPassesOnceTheFailingCellIsMended) {
    ShowGridOver({"A"});
    Fill(1, kDescriptionColumn, "say \"no\"");
    world.dialogs.ExpectMessage("Rule Description cannot contain double quotes", "Invalid Rule Description");
    EXPECT_FALSE(Store());
    ExpectOpenCell(1, kDescriptionColumn);
    grid().editor.Enter("say no", 6, 0);
    EXPECT_TRUE(Store());
    EXPECT_EQ(rules().gaRules(1).Description, "say no");
}

TEST_F(TabSwitch, FromTheGridPassesUncheckedWhenNoCellWasChanged) {
    StartOver("[RULE]\r\n");
    handlers().ShowGridMode();
    EXPECT_TRUE(Store());
    ExpectMarks(false, false);
}

TEST_F(TabSwitch, FromTheGridTestsTheMarkForTrueAlone) {
    ShowGridOver({"A"});
    Fill(1, kCodeColumn, "X");
    rules().gbGridChanged = FromValue(1);
    EXPECT_TRUE(Store());
    EXPECT_THAT(HeldRules(), ElementsAre("A|1|2|>|UCL|text  "));
}

TEST_F(TabSwitch, FromTheGridComparesACodeWithTheRulesAsHeldAndNotWithTheOtherRows) {
    ShowGridOver({"A", "B"});
    Fill(1, kCodeColumn, "X");
    Fill(2, kCodeColumn, "x");
    EXPECT_TRUE(Store()) << "no held rule has that code yet";
    Fill(1, kCodeColumn, "Y");
    world.dialogs.ExpectMessage("Rule Code must be unique", "Invalid Rule Code");
    EXPECT_FALSE(Store()) << "rule 1 is held with the code of row 2, although its row has another one";
    ExpectOpenCell(2, kCodeColumn);
}

TEST_F(TabSwitch, FromTheGridDoesNotLookAtTheDetailForm) {
    StartWithCodes({"A"});
    page().txtCode.Enter("");
    handlers().ShowGridMode();
    EXPECT_TRUE(Store());
    EXPECT_THAT(HeldRules(), ElementsAre("A|1|2|>|UCL|text  "));
}

TEST_F(TabSwitch, WritesNoFileAndSwitchesNothingItself) {
    StartWithCodes({"A"});
    const auto before = File();
    page().txtCode.Enter("X");
    ASSERT_TRUE(Store());
    EXPECT_TRUE(page().fraRulesList.Visible());
    handlers().ShowGridMode();
    Fill(1, kCodeColumn, "Y");
    ASSERT_TRUE(Store());
    EXPECT_TRUE(page().fraGridMode.Visible());
    EXPECT_EQ(File(), before);
}

TEST_F(TabSwitch, TracesTheChecksAndTheStoring) {
    StartWithCodes({"A"});
    Traces();
    EXPECT_TRUE(Store());
    EXPECT_THAT(Traces(),
                ElementsAre("frmGlobalSettings StoreBeforeTabSwitch Start", "mRules Validate_Rule Start",
                            "mRules CheckCode Start", "mRules Check_Min Start", "mRules Check_Max Start",
                            "mRules Verify_MinMax Start", "mRules Save_Rules_Edit Start item: A"));
    handlers().ShowGridMode();
    Fill(1, kCodeColumn, "X");
    Traces();
    EXPECT_TRUE(Store());
    EXPECT_THAT(Traces(),
                ElementsAre("frmGlobalSettings StoreBeforeTabSwitch Start", "mRules Validate_RulesGRid Start",
                            "mRules CheckCode Start", "mRules Check_Min Start", "mRules Check_Max Start",
                            "mRules Verify_MinMax Start", "mRules Save_RulesGrid Start"));
}

} // namespace
} // namespace zy::test
