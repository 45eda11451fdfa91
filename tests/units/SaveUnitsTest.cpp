#include "UnitsTest.h"

namespace zy::test {
namespace {

class SaveUnits : public UnitsTest {};

TEST_F(SaveUnits, ByTheButtonClearsTheMarkAndTurnsItselfOff) {
    OpenThreeUnits();
    Edit(1, kUnit, "aa");
    ExpectChanged(true);
    Save();
    EXPECT_EQ(File(), "A,aa\r\nB,b\r\nC,c\r\n");
    ExpectChanged(false);
}

TEST_F(SaveUnits, ByTheMenuClearsTheMarkAndTurnsTheButtonOff) {
    OpenThreeUnits();
    Edit(1, kUnit, "aa");
    ChooseSave();
    EXPECT_EQ(File(), "A,aa\r\nB,b\r\nC,c\r\n");
    ExpectChanged(false);
}

TEST_F(SaveUnits, ByTheMenuWritesTheFileAlsoWhenNothingChanged) {
    OpenThreeUnits();
    world.files.Take(kUnitsFile);
    ChooseSave();
    EXPECT_EQ(File(), "A,a\r\nB,b\r\nC,c\r\n");
}

TEST_F(SaveUnits, ByTheButtonDoesNothingWhileItIsOff) {
    OpenThreeUnits();
    world.files.Take(kUnitsFile);
    Save();
    EXPECT_EQ(File(), std::nullopt);
}

TEST_F(SaveUnits, WithoutAFileMakesOneAtOnce) {
    Open();
    Save();
    EXPECT_EQ(File(), "");
    ExpectChanged(false);
}

TEST_F(SaveUnits, CanBeDoneAgainAndAgain) {
    OpenThreeUnits();
    Edit(1, kUnit, "1");
    Save();
    Edit(1, kUnit, "2");
    ExpectChanged(true);
    Save();
    EXPECT_EQ(File(), "A,2\r\nB,b\r\nC,c\r\n");
    ExpectChanged(false);
}

TEST_F(SaveUnits, AWholeSessionLeavesExactlyItsBytes) {
    Open();
    AddUnit("kg", "Kilograms");
    AddUnit("m", "Metres");
    AddUnit("x", "To be deleted");
    Delete(Answer::Yes);
    grid.Pick(2, kUnit);
    controls.UpDownUnits.PressUp();
    BeginEdit(2, kUnitDescription, "Kilogrammes");
    Save();
    EXPECT_EQ(File(), "Metres,m\r\nKilogrammes,kg\r\n");
}

} // namespace
} // namespace zy::test
