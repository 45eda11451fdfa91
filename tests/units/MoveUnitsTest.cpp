#include "UnitsTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

class MoveUnits : public UnitsTest {
  protected:
    MoveUnits() { OpenThreeUnits(); }

    void Up() { controls.UpDownUnits.PressUp(); }
    void Down() { controls.UpDownUnits.PressDown(); }
    void ExpectNothingMoved() { EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "c|C")); }
};

TEST_F(MoveUnits, DownSwapsTheRowWithTheNextOneAndGoesWithIt) {
    grid.Pick(1, kUnitDescription);
    Down();
    EXPECT_THAT(Units(), ElementsAre("b|B", "a|A", "c|C"));
    ExpectCurrent(2, kUnitDescription);
    ExpectChanged(true);
    Down();
    EXPECT_THAT(Units(), ElementsAre("b|B", "c|C", "a|A"));
    ExpectCurrent(3, kUnitDescription);
}

TEST_F(MoveUnits, UpSwapsTheRowWithTheOneBeforeAndGoesWithIt) {
    grid.Pick(3, kUnit);
    Up();
    EXPECT_THAT(Units(), ElementsAre("a|A", "c|C", "b|B"));
    ExpectCurrent(2, kUnit);
    ExpectChanged(true);
    Up();
    EXPECT_THAT(Units(), ElementsAre("c|C", "a|A", "b|B"));
    ExpectCurrent(1, kUnit);
}

TEST_F(MoveUnits, CopiesTheWholeNeighbourBeforeItWritesTheRowThere) {
    std::vector<std::string> changes;
    grid.cells.cellChanged.Connect([&](int row, int column) {
        changes.push_back(std::to_string(row) + "," + std::to_string(column) + "=" +
                          std::string(grid.cells.Text(row, column)));
    });
    grid.Pick(2, kUnit);
    Down();
    EXPECT_THAT(changes, ElementsAre("2,1=C", "2,0=c", "3,1=B", "3,0=b"));
    changes.clear();
    grid.Pick(2, kUnit);
    Up();
    EXPECT_THAT(changes, ElementsAre("2,1=A", "2,0=a", "1,1=C", "1,0=c"));
}

TEST_F(MoveUnits, DownOnTheLastRowMovesNothingButTurnsSaveOn) {
    grid.Pick(3, 0);
    Down();
    ExpectNothingMoved();
    ExpectCurrent(3, 0);
    ExpectChanged(true);
}

TEST_F(MoveUnits, UpOnTheFirstRowMovesNothingButTurnsSaveOn) {
    grid.Pick(1, 0);
    Up();
    ExpectNothingMoved();
    ExpectCurrent(1, 0);
    ExpectChanged(true);
}

TEST_F(MoveUnits, MovesNothingWithoutACurrentRowButTurnsSaveOn) {
    Down();
    ExpectNothingMoved();
    ExpectChanged(true);
    form.ChangeFlag = false;
    controls.cmdSaveUnits.SetEnabled(false);
    Up();
    ExpectNothingMoved();
    ExpectChanged(true);
    EXPECT_EQ(grid.selection.Row(), -1);
}

TEST_F(MoveUnits, MovesNothingOnTheHeaderButTurnsSaveOn) {
    grid.selection.Select(0, 0);
    Down();
    Up();
    ExpectNothingMoved();
    EXPECT_EQ(grid.cells.Text(0, 0), "Unit");
    ExpectCurrent(0, 0);
    ExpectChanged(true);
}

TEST_F(MoveUnits, KeepsTheNewOrderInTheFile) {
    grid.Pick(3, 0);
    Up();
    Save();
    EXPECT_EQ(File(), "A,a\r\nC,c\r\nB,b\r\n");
}

TEST_F(MoveUnits, GoesByTheKeyboardWithAlt) {
    grid.Pick(1, 0);
    EXPECT_TRUE(grid.Press({Key::Down, false, true}));
    EXPECT_THAT(Units(), ElementsAre("b|B", "a|A", "c|C"));
    ExpectChanged(true);
    EXPECT_TRUE(grid.HasFocus());
    EXPECT_TRUE(grid.Press({Key::Up, false, true}));
    ExpectNothingMoved();
    EXPECT_FALSE(grid.Press({Key::Down, true, true}));
    EXPECT_FALSE(grid.Press({Key::Up, false, true, true}));
    ExpectNothingMoved();
}

} // namespace
} // namespace zy::test
