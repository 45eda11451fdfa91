#include "UnitsTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UnitsTraces : public UnitsTest {
  protected:
    UnitsTraces() {
        OpenOver("A,a\r\nB,b\r\n");
        opening = Traces();
    }

    std::vector<std::string> opening;
};

TEST_F(UnitsTraces, OfOpening) {
    EXPECT_THAT(opening, ElementsAre("frmGlobalSettings Form_Load Start", "frmGlobalSettings ShowUnits Rules",
                                     "mUnits LoadUnitsData Start"));
}

TEST_F(UnitsTraces, OfAdding) {
    Add();
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings cmdAddUnit_Click Start"));
}

TEST_F(UnitsTraces, OfDeleting) {
    grid.Pick(1, 0);
    Delete(Answer::Yes);
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings cmdDeleteUnit_Click Start",
                                      "frmGlobalSettings cmdDeleteUnit_Click Unit Deleted"));
}

TEST_F(UnitsTraces, OfARefusedDeletionAreTheSame) {
    grid.Pick(1, 0);
    Delete(Answer::No);
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings cmdDeleteUnit_Click Start",
                                      "frmGlobalSettings cmdDeleteUnit_Click Unit Deleted"));
}

TEST_F(UnitsTraces, OfSavingByTheButton) {
    page.MarkUnitsChanged();
    Save();
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings cmdSaveUnits_Click Start",
                                      "mUnits ValidateUnits Start", "mUnits Validate_Unit Start",
                                      "mUnits Validate_Desc Start", "mUnits Validate_Unit Start",
                                      "mUnits Validate_Desc Start", "mUnits Write_Units Start"));
}

TEST_F(UnitsTraces, OfSavingByTheMenu) {
    ChooseSave();
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings ,mnuSave_Click Units", "mUnits ValidateUnits Start",
                                      "mUnits Validate_Unit Start", "mUnits Validate_Desc Start",
                                      "mUnits Validate_Unit Start", "mUnits Validate_Desc Start",
                                      "mUnits Write_Units Start"));
}

TEST_F(UnitsTraces, OfARefusedSaveEndWithTheCheckThatFailed) {
    Edit(1, kUnitDescription, "\"");
    ExpectInvalid("Unit cannot contain double quotes");
    Save();
    EXPECT_THAT(Traces(),
                ElementsAre("frmGlobalSettings cmdSaveUnits_Click Start", "mUnits ValidateUnits Start",
                            "mUnits Validate_Unit Start", "mUnits Validate_Desc Start"));
    Edit(1, kUnit, "");
    ExpectInvalid("Unit cannot be blank");
    Save();
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings cmdSaveUnits_Click Start",
                                      "mUnits ValidateUnits Start", "mUnits Validate_Unit Start"));
}

TEST_F(UnitsTraces, OfSavingAnEmptyList) {
    grid.cells.SetRows(1);
    ChooseSave();
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings ,mnuSave_Click Units", "mUnits ValidateUnits Start",
                                      "mUnits Write_Units Start"));
}

TEST_F(UnitsTraces, OfASaveThatFailsAreThoseOfOneThatWorks) {
    world.files.Plan({.operation = 1, .lasting = true});
    ChooseSave();
    EXPECT_EQ(Traces().back(), "mUnits Write_Units Start");
}

TEST_F(UnitsTraces, OfClosingWithoutChanges) {
    EXPECT_TRUE(window.Unload());
    EXPECT_THAT(Traces(),
                ElementsAre("frmGlobalSettings Form_Unload Units", "frmGlobalSettings Form_Unload Unloaded"));
}

TEST_F(UnitsTraces, OfClosingWithASave) {
    grid.cells.SetRows(2);
    page.MarkUnitsChanged();
    ExpectWishToSave(Answer::Yes);
    EXPECT_TRUE(window.Unload());
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings Form_Unload Units", "mUnits ValidateUnits Start",
                                      "mUnits Validate_Unit Start", "mUnits Validate_Desc Start",
                                      "mUnits Write_Units Start", "frmGlobalSettings Form_Unload Unloaded"));
}

TEST_F(UnitsTraces, OfAClosingThatIsStopped) {
    Edit(1, kUnit, "");
    ExpectWishToSave(Answer::Yes);
    ExpectInvalid("Unit cannot be blank");
    EXPECT_FALSE(window.Unload());
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings Form_Unload Units", "mUnits ValidateUnits Start",
                                      "mUnits Validate_Unit Start"));
}

TEST_F(UnitsTraces, OfResizing) {
    form.SetInnerSize({9000, 8000});
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings Form_Resize Start"));
}

TEST_F(UnitsTraces, AreSentNeitherByTheGridNorByTheArrows) {
    Edit(1, kUnit, "x");
    BeginEdit(1, kUnit, "y");
    grid.Press({Key::Digit2, true});
    grid.Press({Key::Tab});
    grid.Pick(2, 1);
    grid.Press({Key::Tab});
    grid.Pick(1, 0);
    grid.Press({Key::Tab, false, false, true});
    grid.Pick(1, 0);
    grid.Paste("z\tZ");
    grid.Press({Key::Delete});
    controls.UpDownUnits.PressDown();
    controls.UpDownUnits.PressUp();
    grid.Press({Key::Down, false, true});
    EXPECT_THAT(Traces(), IsEmpty());
}

TEST_F(UnitsTraces, CarryTheProgramsName) {
    Add();
    EXPECT_EQ(world.traceServers.Records().back().executable, "zyGlobal");
}

} // namespace
} // namespace zy::test
