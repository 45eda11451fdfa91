#include "GridModeForm.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The context menu of the rules grid.
class GridMenu : public GridModeForm {
  protected:
    void CountPopUps() {
        menu().mnuGridPopMenu.popUp.Connect([this] { ++opened; });
    }
    void Delete(int row) {
        grid().Pick(row, kZoneColumn);
        menu().mnuDeleteRule.Click();
    }

    int opened = 0;
};

TEST_F(GridMenu, OffersToAddAndToDeleteARule) {
    StartWithCodes({});
    EXPECT_THAT(menu().mnuGridPopMenu.Entries(), ElementsAre(&menu().mnuAddRule, &menu().mnuDeleteRule));
    EXPECT_EQ(menu().mnuAddRule.Caption(), "&Add Rule");
    EXPECT_EQ(menu().mnuDeleteRule.Caption(), "&Delete Rule");
}

TEST_F(GridMenu, AddsARuleOfDefaultsToTheListAndTheGrid) {
    ShowGridOver({"A"});
    menu().mnuAddRule.Click();
    EXPECT_THAT(GridRows(), ElementsAre("Code|Min|Max|Cond.|Zone|Description", "A|1|2|>|UCL|text  ",
                                        "NEW|1|2|=|USL|New"));
    EXPECT_THAT(HeldRules(), ElementsAre("A|1|2|>|UCL|text  ", "NEW|1|2|=|USL|New"));
    EXPECT_TRUE(rules().gbNewRule);
}

TEST_F(GridMenu, SelectsTheAddedRow) {
    ShowGridOver({"A", "B"});
    grid().Pick(1, kZoneColumn);
    menu().mnuAddRule.Click();
    ExpectWholeRow(3);
}

TEST_F(GridMenu, AddsTheFirstRuleOfAnEmptyGrid) {
    ShowGridOver({});
    menu().mnuAddRule.Click();
    EXPECT_THAT(GridCodes(), ElementsAre("NEW"));
    ExpectWholeRow(1);
}

TEST_F(GridMenu, AddsTheNewestRuleToTheGridWithItsFieldsInTheOrderOfTheColumns) {
    ShowGridOver({"A"});
    rules().Add_New_Rule();
    rules().gaRules(2) = {.Code = "c",
                          .Min = "m",
                          .Max = "x",
                          .Cond = "",
                          .Zone = " z ",
                          .Description = "d",
                          .Desc2 = "2",
                          .Desc3 = "3"};
    mode().AddtoGrid();
    EXPECT_EQ(GridRows().back(), "c|m|x|| z |d");
    ExpectWholeRow(2);
}

TEST_F(GridMenu, LeavesTheMarkOfChangedCellsWhenItAddsOrDeletes) {
    ShowGridOver({"A"});
    menu().mnuAddRule.Click();
    Delete(1);
    EXPECT_FALSE(rules().gbGridChanged);
}

TEST_F(GridMenu, HasTheWindowAskToBeSaved) {
    ShowGridOver({"A"});
    menu().mnuAddRule.Click();
    ExpectMarks(true, false);
    ShowGridOver({"A"});
    Delete(1);
    ExpectMarks(true, false);
}

TEST_F(GridMenu, TellsTheNewNumberOfRules) {
    ShowGridOver({"A"});
    menu().mnuAddRule.Click();
    EXPECT_EQ(Status(), "2 rules");
    Delete(2);
    EXPECT_EQ(Status(), "1 rule");
}

TEST_F(GridMenu, DeletesTheCurrentRowsRuleWithoutAQuestion) {
    ShowGridOver({"A", "B", "C"});
    Delete(2);
    EXPECT_THAT(GridCodes(), ElementsAre("A", "C"));
    EXPECT_THAT(HeldRules(), ElementsAre("A|1|2|>|UCL|text  ", "C|1|2|>|UCL|text  "));
    EXPECT_THAT(world.dialogs.Shown(), IsEmpty());
}

TEST_F(GridMenu, DeletesUntilNoRuleIsLeft) {
    ShowGridOver({"A", "B"});
    Delete(2);
    menu().mnuDeleteRule.Click();
    EXPECT_EQ(grid().cells.Rows(), 1);
    EXPECT_THAT(HeldRules(), IsEmpty());
    menu().mnuDeleteRule.Click();
    EXPECT_EQ(grid().cells.Rows(), 1);
}

TEST_F(GridMenu, DeletesNothingWithoutACurrentRowOrWithTheHeaders) {
    ShowGridOver({"A"});
    menu().mnuDeleteRule.Click();
    EXPECT_THAT(GridCodes(), ElementsAre("A"));
    grid().selection.Select(0, 0);
    menu().mnuDeleteRule.Click();
    EXPECT_THAT(GridCodes(), ElementsAre("A"));
    EXPECT_EQ(rules().gaRules.UBound(), 1);
    ExpectMarks(false, false);
}

TEST_F(GridMenu, KeepsTheDetailFormAtItsRuleWhileThatOneIsThere) {
    ShowGridOver({"A", "B", "C"});
    handlers().details.EditRule("2");
    Delete(3);
    EXPECT_EQ(rules().giCurRule, 2);
    Delete(1);
    EXPECT_EQ(rules().giCurRule, 1);
    Delete(1);
    EXPECT_EQ(rules().giCurRule, -1);
    ChooseSave();
    EXPECT_EQ(File(), "");
}

TEST_F(GridMenu, ToAFullListAddsNoRowAndTellsSo) {
    std::string text;
    for (int i = 0; i < kMaxItems; ++i) {
        text += "[RULE]\r\n";
    }
    StartOver(text);
    handlers().ShowGridMode();
    menu().mnuAddRule.Click();
    EXPECT_THAT(Status(), ::testing::StartsWith("32767 rules"));
    EXPECT_THAT(Status(), ::testing::EndsWith("   -   Not added: the list is as long as it can be"));
    EXPECT_EQ(grid().cells.Rows(), kMaxItems + 1);
    ExpectMarks(false, false);
}

TEST_F(GridMenu, OpensByTheRightButtonOverTheWholeCurrentRow) {
    ShowGridOver({"A", "B"});
    CountPopUps();
    grid().Pick(2, kZoneColumn);
    RightClick(1);
    EXPECT_EQ(opened, 1);
    ExpectWholeRow(2);
    EXPECT_TRUE(menu().mnuDeleteRule.Enabled());
}

TEST_F(GridMenu, OpensByNoOtherButton) {
    ShowGridOver({"A", "B"});
    CountPopUps();
    grid().Pick(2, kZoneColumn);
    for (const int button : {1, 3, 4}) {
        grid().PressMouse(MouseButton{button}, 1, 0);
    }
    EXPECT_EQ(opened, 0);
    EXPECT_EQ(grid().selection.Row(), 2);
    EXPECT_EQ(grid().selection.BlockEnd(), (Cell{2, kZoneColumn}));
}

TEST_F(GridMenu, CannotDeleteWhileThereIsNoCurrentRow) {
    ShowGridOver({"A"});
    CountPopUps();
    RightClick(1);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(grid().selection.Row(), -1);
    EXPECT_FALSE(menu().mnuDeleteRule.Enabled());
    EXPECT_TRUE(menu().mnuAddRule.Enabled());
    grid().Pick(1, 0);
    RightClick(1);
    EXPECT_TRUE(menu().mnuDeleteRule.Enabled());
}

TEST_F(GridMenu, CanBeAskedToDeleteTheHeadersInVain) {
    ShowGridOver({"A"});
    Delete(1);
    EXPECT_EQ(grid().selection.Row(), 0);
    RightClick(0);
    EXPECT_TRUE(menu().mnuDeleteRule.Enabled());
    menu().mnuDeleteRule.Click();
    EXPECT_THAT(GridRows(), ElementsAre("Code|Min|Max|Cond.|Zone|Description"));
}

TEST_F(GridMenu, CommitsTheOpenCellBeforeItOpens) {
    ShowGridOver({"A"});
    grid().Pick(1, kCodeColumn);
    grid().TypeOver("X");
    RightClick(1);
    EXPECT_THAT(GridCodes(), ElementsAre("X"));
    EXPECT_FALSE(grid().editor.IsOpen());
}

TEST_F(GridMenu, TracesWhatIsDone) {
    ShowGridOver({"A"});
    Traces();
    grid().Pick(1, 0);
    grid().PressMouse(MouseButton::Left, 1, 0);
    RightClick(1);
    menu().mnuAddRule.Click();
    menu().mnuDeleteRule.Click();
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings grdRules_MouseDown Start",
                                      "frmGlobalSettings grdRules_MouseDown Start",
                                      "frmGlobalSettings mnuAddRule_Click Start", "mRules Add_New_Rule Start",
                                      "mRules AddtoGrid Start", "frmGlobalSettings mnuDeleteRule_Click Start",
                                      "mRules Delete_Rule Start item: 2"));
}

} // namespace
} // namespace zy::test
