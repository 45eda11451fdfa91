#include "GridModeForm.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto kHeaders = "Code|Min|Max|Cond.|Zone|Description";

/// What the second view of the rules shows.
class GridMode : public GridModeForm {
  protected:
    /// The list from which a cell of this column is chosen.
    CellList ListOf(int column) {
        grid().Pick(1, column);
        grid().OpenEditor();
        return grid().editor.List();
    }
};

TEST_F(GridMode, ShowsOneRowForEveryRuleBelowTheHeaders) {
    ShowGridOver({"A", "B"});
    EXPECT_THAT(GridRows(), ElementsAre(kHeaders, "A|1|2|>|UCL|text  ", "B|1|2|>|UCL|text  "));
}

TEST_F(GridMode, HidesTheListAndTheDetailForm) {
    ShowGridOver({"A"});
    EXPECT_FALSE(page().fraRulesList.Visible());
    EXPECT_FALSE(page().FraRuleDetails.Visible());
    EXPECT_TRUE(page().fraGridMode.Visible());
    handlers().ShowListMode();
    EXPECT_TRUE(page().fraRulesList.Visible());
    EXPECT_TRUE(page().FraRuleDetails.Visible());
    EXPECT_FALSE(page().fraGridMode.Visible());
}

TEST_F(GridMode, ShowsTheRulesOfTheMomentEveryTime) {
    ShowGridOver({"A", "B", "C"});
    rules().Delete_Rule(1);
    rules().gaRules(1).Code = "X";
    handlers().ShowGridMode();
    EXPECT_THAT(GridRows(), ElementsAre(kHeaders, "X|1|2|>|UCL|text  ", "C|1|2|>|UCL|text  "));
}

TEST_F(GridMode, ShowsTheHeadersAloneWithoutRules) {
    ShowGridOver({});
    EXPECT_THAT(GridRows(), ElementsAre(kHeaders));
}

TEST_F(GridMode, ShowsEmptyFieldsAsEmptyCells) {
    StartOver("[RULE]\r\n[RULE]\r\n   CODE         = B\r\n");
    handlers().ShowGridMode();
    EXPECT_THAT(GridRows(), ElementsAre(kHeaders, "|||||  ", "B|||||  "));
}

TEST_F(GridMode, KeepsATabWithinAFieldInItsCell) {
    RunRule rule = RuleOf("A\tB");
    rule.Description = "one\ttwo";
    StartWith({rule, RuleOf("C")});
    handlers().ShowGridMode();
    EXPECT_THAT(GridRows(), ElementsAre(kHeaders, "A\tB|1|2|>|UCL|one\ttwo  ", "C|1|2|>|UCL|text  "));
}

TEST_F(GridMode, ChangesNoRuleAndSetsNoMark) {
    ShowGridOver({"A"});
    handlers().ShowListMode();
    ExpectInHand(1);
    ExpectMarks(false, false);
    EXPECT_FALSE(rules().gbGridChanged);
}

TEST_F(GridMode, HasNoCurrentRowAtFirstNorWhenItIsShownAnew) {
    ShowGridOver({"A", "B"});
    EXPECT_EQ(grid().selection.Row(), -1);
    grid().Pick(2, 3);
    handlers().ShowGridMode();
    EXPECT_EQ(grid().selection.Row(), -1);
}

TEST_F(GridMode, DropsWhatIsBeingTypedWhenItIsShownAnew) {
    ShowGridOver({"A"});
    grid().Pick(1, kCodeColumn);
    grid().TypeOver("X");
    handlers().ShowGridMode();
    EXPECT_FALSE(grid().editor.IsOpen());
    EXPECT_THAT(GridCodes(), ElementsAre("A"));
    EXPECT_FALSE(rules().gbGridChanged);
}

TEST_F(GridMode, HasSixColumnsOf960TwipsAndFitsNoneByItself) {
    ShowGridOver({"A"});
    ASSERT_EQ(grid().cells.Columns(), 6);
    for (int column = 0; column < 6; ++column) {
        EXPECT_EQ(grid().columns.Width(column), 960) << column;
    }
    EXPECT_EQ(grid().columns.FittedFrom(), 6);
}

TEST_F(GridMode, OffersFiveConditionsAndAnEmptyOne) {
    ShowGridOver({"A"});
    EXPECT_EQ(ListOf(3), CellList(">|>=|<|<=|=|"));
}

TEST_F(GridMode, OffersTheZonesInItsOwnSpelling) {
    ShowGridOver({"A"});
    EXPECT_EQ(ListOf(4), CellList("USL|UCL|UWL|TARG |LWL|LCL|LSL|PREV|+4S|+3S|+15S|Avg |-15S|-3S|-4S"));
}

TEST_F(GridMode, LetsTheOtherColumnsBeTyped) {
    ShowGridOver({"A"});
    for (const int column : {0, 1, 2, 5}) {
        EXPECT_EQ(ListOf(column), CellList()) << column;
        EXPECT_TRUE(grid().editor.IsOpen()) << column;
    }
}

TEST_F(GridMode, StandsInThePageAsSoonAsItIsShown) {
    StartWithCodes({"A"});
    form().SetInnerSize({9000, 8000});
    // A view measures the frame's caption only when it is shown first.
    page().fraGridMode.appearanceChanged.Connect([this] { page().fraGridMode.SetPreferred({0, 300}); });
    handlers().ShowGridMode();
    EXPECT_GE(grid().Bounds().top, 300);
    EXPECT_LE(grid().Bounds().Bottom(), page().fraGridMode.Bounds().height);
}

TEST_F(GridMode, GivesTheGridTheAdditionalWidthAndHeight) {
    ShowGridOver({"A"});
    form().SetInnerSize({9000, 8000});
    const Rect before = grid().Bounds();
    form().SetInnerSize({12000, 10000});
    EXPECT_EQ(grid().Bounds().width, before.width + 3000);
    EXPECT_EQ(grid().Bounds().height, before.height + 2000);
}

TEST_F(GridMode, TracesNothingWhenItIsShown) {
    StartWithCodes({"A"});
    Traces();
    handlers().ShowGridMode();
    handlers().ShowListMode();
    EXPECT_THAT(Traces(), IsEmpty());
}

TEST_F(GridMode, IsFilledInOneGoWithAFullListOfRules) {
    std::string text;
    for (int i = 0; i < kMaxItems; ++i) {
        text += Section(RuleOf(std::to_string(i)));
    }
    StartOver(text);
    int shown = 0;
    grid().cells.rowsChanged.Connect([&] { ++shown; });
    handlers().ShowGridMode();
    EXPECT_EQ(shown, 1);
    ASSERT_EQ(grid().cells.Rows(), kMaxItems + 1);
    EXPECT_EQ(grid().cells.Text(1, kCodeColumn), "0");
    EXPECT_EQ(grid().cells.Text(kMaxItems, kCodeColumn), "32766");
    EXPECT_EQ(grid().cells.Text(kMaxItems, kDescriptionColumn), "text  ");
}

} // namespace
} // namespace zy::test
