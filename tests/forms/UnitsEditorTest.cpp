#include "support/EditorsTest.h"
#include "units/UnitsFileText.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

constexpr auto kUnitsFile = R"(C:\SYS\ZYUNITS.SYS)";
constexpr auto kBefore = "A,a\r\n";
constexpr auto kAfter = "A,aa\r\n";

constexpr auto kSaving = "trace frmGlobalSettings ,mnuSave_Click Units";
constexpr auto kUnloading = "trace frmGlobalSettings Form_Unload Units";
constexpr auto kChecked = "trace mUnits ValidateUnits Start";
constexpr auto kUnitChecked = "trace mUnits Validate_Unit Start";
constexpr auto kDescriptionChecked = "trace mUnits Validate_Desc Start";
constexpr auto kWriting = "trace mUnits Write_Units Start";
constexpr auto kUnloaded = "trace frmGlobalSettings Form_Unload Unloaded";

/// Saving and closing while the units editor is in charge, with a cell that is still open.
class UnitsEditorInCharge : public EditorsTest {
  protected:
    UnitsEditorInCharge() {
        world.files.Put(kUnitsFile, kBefore);
        Start("@UNITS");
        Type("aa");
    }

    void Type(std::string_view unit) {
        auto& grid = program().unitsPage.controls.grdUnits;
        grid.Pick(1, kUnit);
        grid.TypeOver(unit);
        calls.clear();
    }
    void ExpectInvalid() { world.dialogs.ExpectMessage("Unit cannot contain double quotes", "Invalid Unit"); }
    std::string File() const { return world.files.Get(kUnitsFile).value_or("none"); }
};

TEST_F(UnitsEditorInCharge, IsSavedInThisOrder) {
    ChooseSave();
    EXPECT_THAT(calls, ElementsAre(kSaving, kChecked, kUnitChecked, kDescriptionChecked, kWriting));
    EXPECT_EQ(File(), kAfter);
    ExpectMarks(false, false);
    EXPECT_FALSE(program().unitsPage.controls.cmdSaveUnits.Enabled());
}

TEST_F(UnitsEditorInCharge, TakesOverTheOpenCellBeforeItTracesThatItSaves) {
    Type("aa");
    program().unitsPage.controls.grdUnits.editor.afterEdit.Connect(
        [this](int, int) { calls.emplace_back("committed"); });
    ChooseSave();
    EXPECT_THAT(calls,
                ElementsAre("committed", kSaving, kChecked, kUnitChecked, kDescriptionChecked, kWriting));
}

TEST_F(UnitsEditorInCharge, IsSavedAlsoWithoutAChange) {
    StartUnchanged("@UNITS");
    world.files.Take(kUnitsFile);
    ChooseSave();
    EXPECT_EQ(File(), kBefore);
}

TEST_F(UnitsEditorInCharge, IsNotWrittenWhenAUnitFails) {
    Type("\"");
    ExpectInvalid();
    ChooseSave();
    EXPECT_THAT(calls, ElementsAre(kSaving, kChecked, kUnitChecked));
    EXPECT_EQ(File(), kBefore);
    ExpectMarks(true, false);
}

TEST_F(UnitsEditorInCharge, KeepsItsMarksWhenTheSaveIsRefused) {
    LetSomebodyElseSave();
    ChooseSave();
    EXPECT_THAT(calls, ElementsAre(kSaving, kChecked, kUnitChecked, kDescriptionChecked));
    ExpectMarks(true, false);
}

TEST_F(UnitsEditorInCharge, StaysOpenWhenTheSaveIsRefused) {
    LetSomebodyElseSave();
    ExpectWishToSave(Answer::Yes);
    EXPECT_FALSE(window().Unload());
    EXPECT_THAT(calls, ElementsAre(kUnloading, kChecked, kUnitChecked, kDescriptionChecked));
    EXPECT_EQ(unloaded, 0);
}

TEST_F(UnitsEditorInCharge, ClosesWithoutAQuestionWhenNothingChanged) {
    StartUnchanged("@UNITS");
    state().gbChanged = true;
    EXPECT_TRUE(window().Unload());
    EXPECT_THAT(calls, ElementsAre(kUnloading, "SetProcedure", "Open key", "Create key", kUnloaded));
}

TEST_F(UnitsEditorInCharge, ClosesUnsavedOnNo) {
    Type("\"");
    ExpectWishToSave(Answer::No);
    EXPECT_TRUE(window().Unload());
    EXPECT_THAT(calls, ElementsAre(kUnloading, "SetProcedure", "Open key", "Create key", kUnloaded));
    EXPECT_EQ(File(), kBefore);
    EXPECT_EQ(unloaded, 1);
}

TEST_F(UnitsEditorInCharge, IsCheckedAndWrittenBeforeItClosesOnYes) {
    ExpectWishToSave(Answer::Yes);
    EXPECT_TRUE(window().Unload());
    EXPECT_THAT(calls, ElementsAre(kUnloading, kChecked, kUnitChecked, kDescriptionChecked, kWriting,
                                   "SetProcedure", "Open key", "Create key", kUnloaded));
    EXPECT_EQ(File(), kAfter);
    ExpectMarks(true, false);
}

TEST_F(UnitsEditorInCharge, StaysOpenWhenAUnitFails) {
    Type("\"");
    ExpectWishToSave(Answer::Yes);
    ExpectInvalid();
    EXPECT_FALSE(window().Unload());
    EXPECT_THAT(calls, ElementsAre(kUnloading, kChecked, kUnitChecked));
    EXPECT_EQ(unloaded, 0);
    EXPECT_TRUE(form().Visible());
}

} // namespace
} // namespace zy::test
