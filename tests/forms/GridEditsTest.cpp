#include "GridModeForm.h"
#include "support/RawBool16.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A cell of the rules grid is edited, and the grid's texts are copied into the rules.
class GridEdits : public GridModeForm {
  protected:
    /// Chooses an item of the open cell's list, as the view does it.
    void Choose(int row, int column, const std::string& item) {
        grid().Pick(row, column);
        grid().OpenEditor();
        ASSERT_THAT(grid().editor.List().Items(), ::testing::Contains(item));
        grid().editor.ChooseItem(item);
    }
    /// Stores the grid and shows the first rule in list mode again.
    void StoreAndShowList() {
        ASSERT_TRUE(handlers().StoreBeforeTabSwitch());
        handlers().ShowListMode();
        handlers().listMode.LoadRulesListMode();
    }
};

TEST_F(GridEdits, SetTheMarkOfChangedCellsAndNothingElse) {
    ShowGridOver({"A"});
    Fill(1, kCodeColumn, "X");
    EXPECT_EQ(ValueOf(rules().gbGridChanged), -1);
    ExpectMarks(false, false);
    EXPECT_FALSE(rules().gbRulesChanged);
    EXPECT_EQ(Status(), "1 rule");
    EXPECT_THAT(HeldRules(), ElementsAre("A|1|2|>|UCL|text  "));
}

TEST_F(GridEdits, SetNoMarkWhenTheTextIsTheSame) {
    ShowGridOver({"A"});
    Fill(1, kCodeColumn, "A");
    EXPECT_FALSE(rules().gbGridChanged);
}

TEST_F(GridEdits, SetNoMarkWhenTheyAreCancelled) {
    ShowGridOver({"A"});
    grid().Pick(1, kCodeColumn);
    grid().TypeOver("X");
    grid().Press({.key = Key::Escape});
    EXPECT_FALSE(rules().gbGridChanged);
}

TEST_F(GridEdits, SetTheMarkAlsoWhenCellsAreClearedOrPasted) {
    ShowGridOver({"A"});
    grid().Pick(1, kCodeColumn);
    grid().Press({.key = Key::Delete});
    EXPECT_TRUE(rules().gbGridChanged);
    ShowGridOver({"A"});
    grid().Pick(1, kCodeColumn);
    grid().Paste("X");
    EXPECT_TRUE(rules().gbGridChanged);
}

TEST_F(GridEdits, LeaveTheMarkSetWhenTheGridIsStoredAndShownAnew) {
    ShowGridOver({"A"});
    Fill(1, kCodeColumn, "X");
    StoreAndShowList();
    handlers().ShowGridMode();
    EXPECT_TRUE(rules().gbGridChanged);
}

TEST_F(GridEdits, FitTheColumnsToTheirContents) {
    ShowGridOver({"A"});
    std::vector<int> fitted;
    grid().columns.fit.Connect([&](int first) { fitted.push_back(first); });
    grid().Pick(1, kDescriptionColumn);
    grid().TypeOver("a longer text");
    EXPECT_THAT(fitted, IsEmpty());
    grid().editor.Commit();
    EXPECT_THAT(fitted, ElementsAre(0));
}

TEST_F(GridEdits, AreTracedWhenTheyHaveEnded) {
    ShowGridOver({"A"});
    Traces();
    Fill(1, kCodeColumn, "X");
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings grdRules_AfterEdit Start"));
}

TEST_F(GridEdits, AreStoredCellByCellWithoutTrimming) {
    ShowGridOver({"A", "B"});
    grid().Pick(1, kCodeColumn);
    grid().Paste(" X\t 3\t4 \t<\tTARG \t  two words  ");
    mode().Save_RulesGrid();
    EXPECT_THAT(HeldRules(), ElementsAre(" X| 3|4 |<|TARG |  two words  ", "B|1|2|>|UCL|text  "));
}

TEST_F(GridEdits, ThatArePastedAreRefusedWhereTheListOfTheCellLacksThem) {
    ShowGridOver({"A"});
    grid().Pick(1, kCodeColumn);
    grid().Paste("X\t3\t4\t=>\tNo Zone\ttext\tmore\r\n");
    mode().Save_RulesGrid();
    EXPECT_THAT(HeldRules(), ElementsAre("X|3|4|>|UCL|text"));
    EXPECT_EQ(Status(),
              "1 rule   -   1 column left out; 2 cells refused, the first: row 1, Cond. cannot be \"=>\"");
}

TEST_F(GridEdits, ReachTheFileOnTheOrdinaryWaysOfSaving) {
    ShowGridOver({"A"});
    Fill(1, kCodeColumn, "X");
    StoreAndShowList();
    ChooseSave();
    EXPECT_EQ(File(), Text({Loaded("X")}));
    ExpectMarks(false, true);
}

TEST_F(GridEdits, AreLeftAsideByTheSaveMenuAndTheClosing) {
    ShowGridOver({"A"});
    const auto before = File();
    Fill(1, kCodeColumn, "X");
    ChooseSave();
    ChooseExit();
    EXPECT_EQ(unloaded, 1);
    EXPECT_EQ(File(), before);
}

TEST_F(GridEdits, SetTheMarksOfUnsavedChangesWhenAStoredTextIsAnotherOne) {
    ShowGridOver({"A", "B"});
    mode().Save_RulesGrid();
    ExpectMarks(false, false);
    Fill(1, kCodeColumn, "X");
    Fill(1, kCodeColumn, "A");
    mode().Save_RulesGrid();
    ExpectMarks(false, false);
    Fill(2, kDescriptionColumn, "another");
    mode().Save_RulesGrid();
    ExpectMarks(true, true);
}

TEST_F(GridEdits, LeaveAloneWhatTheGridDoesNotShow) {
    RunRule rule = RuleOf("A");
    rule.Desc2 = "second";
    StartWith({rule});
    handlers().ShowGridMode();
    const std::string second = rules().gaRules(1).Desc2;
    Fill(1, kCodeColumn, "X");
    mode().Save_RulesGrid();
    EXPECT_EQ(rules().gaRules(1).Desc2, second);
}

TEST_F(GridEdits, KeepAnAddedAndADeletedRuleApartFromTheEditedOnes) {
    ShowGridOver({"A", "B", "C"});
    Fill(3, kMaxColumn, "9");
    grid().Pick(1, kCodeColumn);
    menu().mnuDeleteRule.Click();
    menu().mnuAddRule.Click();
    Fill(3, kDescriptionColumn, "third");
    StoreAndShowList();
    EXPECT_THAT(Rows(), ElementsAre("B|1|2|>|UCL|text  ", "C|1|9|>|UCL|text  ", "NEW|1|2|=|USL|third"));
}

TEST_F(GridEdits, StoreAZoneWithItsBlankAndListModeFindsItAgain) {
    const std::pair<const char*, const char*> zones[] = {{"TARG ", "TARG - Target for Variable (Green)"},
                                                         {"Avg ", "AVG - Average"},
                                                         {"PREV", "PREV - Value of Previous Data Point"},
                                                         {"-3S", "-3S  - Average - 3 SD"}};
    for (const auto& [zone, item] : zones) {
        ShowGridOver({"A"});
        Choose(1, kZoneColumn, zone);
        StoreAndShowList();
        EXPECT_EQ(rules().gaRules(1).Zone, zone);
        EXPECT_EQ(page().cboZone.Text(), item) << zone;
    }
}

TEST_F(GridEdits, StoreEveryConditionOfTheListAndListModeFindsItAgain) {
    for (const auto* condition : {">", ">=", "<", "<=", "="}) {
        ShowGridOver({"A"});
        Choose(1, kCondColumn, condition);
        StoreAndShowList();
        EXPECT_EQ(rules().gaRules(1).Cond, condition);
        EXPECT_EQ(ConditionOfItem(page().cboCondition.Text()), condition);
    }
}

TEST_F(GridEdits, StoreAnEmptyConditionThatNoCheckOfTheGridRefuses) {
    ShowGridOver({"A"});
    Choose(1, kCondColumn, "");
    StoreAndShowList();
    EXPECT_EQ(rules().gaRules(1).Cond, "");
}

TEST_F(GridEdits, AreStoredForAFullListOfRules) {
    StartOver([] {
        std::string text;
        for (int i = 1; i <= kMaxItems; ++i) {
            text += Section(RuleOf(std::to_string(i % 1000)));
        }
        return text;
    }());
    handlers().ShowGridMode();
    Fill(kMaxItems, kDescriptionColumn, "the last one");
    mode().Save_RulesGrid();
    EXPECT_EQ(rules().gaRules(kMaxItems).Description, "the last one");
    EXPECT_EQ(rules().gaRules(1).Description, "text  ");
}

} // namespace
} // namespace zy::test
