#include "UnitsTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

class TabKey : public UnitsTest {
  protected:
    bool Tab() { return grid.Press({Key::Tab}); }
    bool ShiftTab() { return grid.Press({Key::Tab, false, false, true}); }
    void ExpectFocus(const Control& control) {
        ASSERT_NE(form.Focused(), nullptr);
        EXPECT_EQ(form.Focused()->Name(), control.Name());
    }
};

TEST_F(TabKey, GoesFromCellToCellRowByRow) {
    OpenThreeUnits();
    grid.Pick(1, 0);
    EXPECT_TRUE(Tab());
    ExpectCurrent(1, 1);
    EXPECT_TRUE(Tab());
    ExpectCurrent(2, 0);
    EXPECT_TRUE(ShiftTab());
    ExpectCurrent(1, 1);
    ExpectFocus(grid);
}

TEST_F(TabKey, AtTheLastCellGoesToTheFirstOneAndTheFocusToAdd) {
    OpenThreeUnits();
    grid.Pick(3, 1);
    EXPECT_TRUE(Tab());
    ExpectCurrent(1, 0);
    ExpectFocus(controls.cmdAddUNit);
    ExpectChanged(false);
}

TEST_F(TabKey, WithShiftAtTheFirstCellGoesToTheLastOneAndTheFocusToHelp) {
    OpenThreeUnits();
    grid.Pick(1, 0);
    EXPECT_TRUE(ShiftTab());
    ExpectCurrent(3, 1);
    ExpectFocus(controls.cmdHelpUnits);
    ExpectChanged(false);
}

TEST_F(TabKey, HasBothEndsInAListOfOneUnit) {
    OpenOver("A,a\r\n");
    grid.Pick(1, 1);
    EXPECT_TRUE(Tab());
    ExpectCurrent(1, 0);
    ExpectFocus(controls.cmdAddUNit);
    grid.Pick(1, 0);
    EXPECT_TRUE(ShiftTab());
    ExpectCurrent(1, 1);
    ExpectFocus(controls.cmdHelpUnits);
}

TEST_F(TabKey, IsNotTakenAtItsEndsTogetherWithCtrlOrAlt) {
    OpenThreeUnits();
    grid.Pick(3, 1);
    EXPECT_FALSE(grid.Press({Key::Tab, true}));
    EXPECT_FALSE(grid.Press({Key::Tab, false, true}));
    ExpectCurrent(3, 1);
    grid.Pick(1, 0);
    EXPECT_FALSE(grid.Press({Key::Tab, true, false, true}));
    ExpectCurrent(1, 0);
    ExpectFocus(grid);
}

TEST_F(TabKey, GoesNowhereSpecialElsewhere) {
    OpenThreeUnits();
    grid.Pick(3, 0);
    EXPECT_TRUE(Tab());
    ExpectCurrent(3, 1);
    grid.Pick(2, 1);
    EXPECT_TRUE(Tab());
    ExpectCurrent(3, 0);
    grid.Pick(1, 1);
    EXPECT_TRUE(ShiftTab());
    ExpectCurrent(1, 0);
    grid.Pick(2, 0);
    EXPECT_TRUE(ShiftTab());
    ExpectCurrent(1, 1);
    ExpectFocus(grid);
}

TEST_F(TabKey, IsLeftToTheWindowInAnEmptyList) {
    Open();
    EXPECT_FALSE(Tab());
    EXPECT_FALSE(ShiftTab());
    grid.selection.Select(0, 1);
    EXPECT_FALSE(Tab());
    ExpectCurrent(0, 1);
}

TEST_F(TabKey, TakesTheOpenEditOver) {
    OpenThreeUnits();
    BeginEdit(3, 1, "Coulombs");
    EXPECT_TRUE(Tab());
    EXPECT_THAT(Units(), ElementsAre("a|A", "b|B", "c|Coulombs"));
    ExpectCurrent(1, 0);
    ExpectChanged(true);
    BeginEdit(1, 0, "A");
    EXPECT_TRUE(ShiftTab());
    EXPECT_THAT(Units(), ElementsAre("A|A", "b|B", "c|Coulombs"));
}

} // namespace
} // namespace zy::test
