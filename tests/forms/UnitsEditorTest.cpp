#include "support/EditorsTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

constexpr auto kUnloadTrace = "trace frmGlobalSettings Form_Unload Units";
constexpr auto kSaveTrace = "trace frmGlobalSettings ,mnuSave_Click Units";
constexpr auto kUnloaded = "trace frmGlobalSettings Form_Unload Unloaded";

/// Saving and closing while the units editor is in charge.
class UnitsEditorInCharge : public EditorsTest {
  protected:
    UnitsEditorInCharge() {
        StartAndForget("@UNITS");
        form().ChangeFlag = true;
    }

    void ChooseSave() { window().menu.mnuSave.Click(); }
};

TEST_F(UnitsEditorInCharge, IsSavedInThisOrder) {
    ChooseSave();
    EXPECT_THAT(calls, ElementsAre("CommitCellEdit", kSaveTrace, "ValidateUnits", "Write_Units",
                                   "DisableSaveButton"));
    ExpectMarks(false, false);
}

TEST_F(UnitsEditorInCharge, IsSavedAlsoWithoutAChange) {
    form().ChangeFlag = false;
    ChooseSave();
    EXPECT_THAT(calls, ::testing::Contains("Write_Units"));
}

TEST_F(UnitsEditorInCharge, IsNotWrittenWhenAUnitFails) {
    units.valid = false;
    ChooseSave();
    EXPECT_THAT(calls, ElementsAre("CommitCellEdit", kSaveTrace, "ValidateUnits"));
    ExpectMarks(true, false);
}

TEST_F(UnitsEditorInCharge, KeepsItsMarksWhenTheSaveIsRefused) {
    units.mayWrite = false;
    ChooseSave();
    EXPECT_THAT(calls, ElementsAre("CommitCellEdit", kSaveTrace, "ValidateUnits", "Write_Units"));
    ExpectMarks(true, false);
}

TEST_F(UnitsEditorInCharge, StaysOpenWhenTheSaveIsRefused) {
    units.mayWrite = false;
    ExpectWishToSave(Answer::Yes);
    EXPECT_FALSE(window().Unload());
    EXPECT_THAT(calls, ElementsAre("CommitCellEdit", kUnloadTrace, "ValidateUnits", "Write_Units"));
    EXPECT_EQ(unloaded, 0);
}

TEST_F(UnitsEditorInCharge, ClosesWithoutAQuestionWhenNothingChanged) {
    form().ChangeFlag = false;
    state().gbChanged = true;
    EXPECT_TRUE(window().Unload());
    EXPECT_THAT(calls, ElementsAre("CommitCellEdit", kUnloadTrace, "RemoveMinSizeHook", "SaveWindowPlacement",
                                   kUnloaded));
}

TEST_F(UnitsEditorInCharge, ClosesUnsavedOnNo) {
    units.valid = false;
    ExpectWishToSave(Answer::No);
    EXPECT_TRUE(window().Unload());
    EXPECT_THAT(calls, ElementsAre("CommitCellEdit", kUnloadTrace, "RemoveMinSizeHook", "SaveWindowPlacement",
                                   kUnloaded));
    EXPECT_EQ(unloaded, 1);
}

TEST_F(UnitsEditorInCharge, IsCheckedAndWrittenBeforeItClosesOnYes) {
    ExpectWishToSave(Answer::Yes);
    EXPECT_TRUE(window().Unload());
    EXPECT_THAT(calls, ElementsAre("CommitCellEdit", kUnloadTrace, "ValidateUnits", "Write_Units",
                                   "RemoveMinSizeHook", "SaveWindowPlacement", kUnloaded));
    ExpectMarks(true, false);
}

TEST_F(UnitsEditorInCharge, StaysOpenWhenAUnitFails) {
    units.valid = false;
    ExpectWishToSave(Answer::Yes);
    EXPECT_FALSE(window().Unload());
    EXPECT_THAT(calls, ElementsAre("CommitCellEdit", kUnloadTrace, "ValidateUnits"));
    EXPECT_EQ(unloaded, 0);
    EXPECT_TRUE(form().Visible());
}

} // namespace
} // namespace zy::test
