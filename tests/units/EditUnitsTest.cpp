#include "UnitsTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

class EditUnits : public UnitsTest {};

TEST_F(EditUnits, AddsAnEmptyRowAtTheEndAndOpensItsUnitForTyping) {
    OpenThreeUnits();
    Add();
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "c|C", "|"));
    ExpectCurrent(4, kUnit);
    EXPECT_TRUE(grid.editor.IsOpen());
    EXPECT_EQ(grid.editor.Text(), "");
    EXPECT_TRUE(grid.HasFocus());
}

TEST_F(EditUnits, MarksTheListAsChangedAndTurnsDeleteOnAfterAdding) {
    OpenThreeUnits();
    Add();
    ExpectChanged(true);
    EXPECT_TRUE(controls.cmdDeleteUnit.Enabled());
}

TEST_F(EditUnits, AddsTheFirstUnitOfAnEmptyList) {
    Open();
    AddUnit("kg", "Kilograms");
    EXPECT_THAT(Units(), ElementsAre("kg|Kilograms"));
    ExpectChanged(true);
    EXPECT_TRUE(controls.cmdDeleteUnit.Enabled());
}

TEST_F(EditUnits, TurnsDeleteOnByAddingWhateverWasMadeOfTheNewCurrentCell) {
    Open();
    grid.selection.currentCellChanged.Connect([this] { controls.cmdDeleteUnit.SetEnabled(false); });
    Add();
    EXPECT_TRUE(controls.cmdDeleteUnit.Enabled());
}

TEST_F(EditUnits, TakesAnEditOverOnEnterAndMarksTheList) {
    OpenThreeUnits();
    grid.Pick(1, kUnitDescription);
    grid.TypeOver("Amperes");
    ExpectChanged(false);
    grid.Press({Key::Enter});
    EXPECT_THAT(Units(), ElementsAre("a|Amperes", "b|B", "c|C"));
    ExpectChanged(true);
    ExpectCurrent(2, kUnitDescription);
}

TEST_F(EditUnits, MarksTheListAlsoWhenAnEditLeavesTheTextAsItWas) {
    OpenThreeUnits();
    Edit(1, kUnit, "a");
    ExpectChanged(true);
}

TEST_F(EditUnits, DropsAnEditOnEscapeWithoutAMark) {
    OpenThreeUnits();
    BeginEdit(1, kUnit, "x");
    grid.Press({Key::Escape});
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "c|C"));
    ExpectChanged(false);
}

TEST_F(EditUnits, EmptiesACellOnTheDeleteKeyAsAnEdit) {
    OpenThreeUnits();
    grid.Pick(2, kUnitDescription);
    grid.Press({Key::Delete});
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|", "c|C"));
    ExpectChanged(true);
}

TEST_F(EditUnits, LetsDeleteFollowTheCurrentRow) {
    OpenThreeUnits();
    EXPECT_FALSE(controls.cmdDeleteUnit.Enabled());
    grid.Pick(2, 0);
    EXPECT_TRUE(controls.cmdDeleteUnit.Enabled());
    grid.selection.Select(0, 0);
    EXPECT_FALSE(controls.cmdDeleteUnit.Enabled());
    grid.selection.Select(3, 1);
    EXPECT_TRUE(controls.cmdDeleteUnit.Enabled());
    ExpectChanged(false);
}

TEST_F(EditUnits, DeletesTheCurrentRowOnYesAndMakesTheFirstOneCurrent) {
    OpenThreeUnits();
    grid.Pick(3, kUnitDescription);
    Delete(Answer::Yes);
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B"));
    ExpectCurrent(1, kUnitDescription);
    ExpectChanged(true);
    EXPECT_TRUE(controls.cmdDeleteUnit.Enabled());
}

TEST_F(EditUnits, DeletesTheFirstRowToo) {
    OpenThreeUnits();
    grid.Pick(1, kUnit);
    Delete(Answer::Yes);
    EXPECT_THAT(Units(), ElementsAre("b|B", "c|C"));
    ExpectCurrent(1, kUnit);
    EXPECT_TRUE(controls.cmdDeleteUnit.Enabled());
}

TEST_F(EditUnits, LeavesTheHeaderAloneAndDeleteOffWhenTheLastRowIsDeleted) {
    OpenOver("A,a\r\n");
    grid.Pick(1, 0);
    Delete(Answer::Yes);
    EXPECT_EQ(grid.cells.Rows(), 1);
    EXPECT_EQ(grid.cells.Text(0, 0), "Unit");
    EXPECT_FALSE(controls.cmdDeleteUnit.Enabled());
    ExpectChanged(true);
    controls.cmdDeleteUnit.Click(); // asks nothing any more
}

TEST_F(EditUnits, KeepsTheRowOnNoButMarksTheListAllTheSame) {
    OpenThreeUnits();
    grid.Pick(2, 0);
    Delete(Answer::No);
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "c|C"));
    ExpectCurrent(2, 0);
    ExpectChanged(true);
    EXPECT_TRUE(controls.cmdDeleteUnit.Enabled());
}

TEST_F(EditUnits, CanAddAgainAfterTheLastRowWasDeleted) {
    OpenOver("A,a\r\n");
    grid.Pick(1, 0);
    Delete(Answer::Yes);
    AddUnit("b", "B");
    Save();
    EXPECT_EQ(File(), "B,b\r\n");
}

} // namespace
} // namespace zy::test
