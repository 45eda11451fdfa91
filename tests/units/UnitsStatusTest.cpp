#include "UnitsTest.h"

namespace zy::test {
namespace {

class UnitsStatus : public UnitsTest {};

TEST_F(UnitsStatus, TellsHowManyUnitsThereAre) {
    OpenThreeUnits();
    EXPECT_EQ(Status(), "3 units");
}

TEST_F(UnitsStatus, TellsOneUnitAndNone) {
    OpenOver("A,a\r\n");
    EXPECT_EQ(Status(), "1 unit");
    grid.Pick(1, 0);
    Delete(Answer::Yes);
    EXPECT_EQ(Status(), "0 units");
}

TEST_F(UnitsStatus, CountsNoneWithoutAFile) {
    Open();
    EXPECT_EQ(Status(), "0 units");
}

TEST_F(UnitsStatus, FollowsAddedDeletedAndPastedUnits) {
    OpenThreeUnits();
    Add();
    EXPECT_EQ(Status(), "4 units");
    Delete(Answer::Yes);
    EXPECT_EQ(Status(), "3 units");
    grid.Pick(3, 0);
    grid.Paste("x\ny\nz\n");
    EXPECT_EQ(Status(), "5 units");
}

TEST_F(UnitsStatus, TellsASaveUntilTheNextChange) {
    OpenThreeUnits();
    ChooseSave();
    EXPECT_EQ(Status(), "Saved");
    grid.Pick(1, 0);
    EXPECT_EQ(Status(), "Saved");
    Edit(1, kUnit, "x");
    EXPECT_EQ(Status(), "3 units");
}

TEST_F(UnitsStatus, TellsWhatWasNotWrittenAndWhy) {
    OpenThreeUnits();
    world.files.SetHeldOpen(kUnitsFile);
    ChooseSave();
    EXPECT_EQ(Status(), "Not saved, ZYUNITS.SYS could not be created: another program is using it");
}

TEST_F(UnitsStatus, StaysAsItIsWhenASaveIsRefused) {
    OpenThreeUnits();
    Edit(1, kUnit, "");
    ExpectInvalid("Unit cannot be blank");
    Save();
    EXPECT_EQ(Status(), "3 units");
}

} // namespace
} // namespace zy::test
