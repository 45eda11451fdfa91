#include "UnitsWindow.h"
#include "shell/mMain.h"
#include "units/UnitsFileText.h"

namespace zy::test {
namespace {

using ::testing::IsEmpty;

constexpr auto kDialog = "frmRecovery";
constexpr int kRow = 2; ///< of the unit that was changed

/// The question after what an earlier session of the units editor could not save.
class RecoveryWindow : public UnitsWindow {
  protected:
    RecoveryWindow() {
        PutUnits({"Metres,m", "Kilograms,kg"});
        Program broken(world.Get());
        mMain(broken);
        auto& grid = broken.unitsPage.controls.grdUnits;
        grid.Pick(kRow, kUnit);
        grid.TypeOver("t");
        grid.editor.Commit();
    }
    std::string Unit() {
        return InWindow([&] { return std::string(grid().cells.Text(kRow, kUnit)); });
    }
};

TEST_F(RecoveryWindow, HasRoomForEveryPart) {
    PlayFromTheStart([&] {
        WaitForDialog(kDialog);
        ExpectRoomForEveryPart(kDialog);
        Press(WXK_ESCAPE);
        WaitForWindow();
    });
}

TEST_F(RecoveryWindow, EnterRestoresAndCtrlZTakesItBack) {
    PlayFromTheStart([&] {
        WaitForDialog(kDialog);
        Press(WXK_RETURN);
        WaitForWindow();
        WaitUntil("the change is there again", [&] { return grid().cells.Text(kRow, kUnit) == "t"; });
        WaitForFocus(grid());
        Press('Z', wxMOD_CONTROL);
        WaitUntil("the unit is as it was", [&] { return grid().cells.Text(kRow, kUnit) == "kg"; });
    });
}

TEST_F(RecoveryWindow, WhatIsRestoredIsShownAtOnce) {
    PlayFromTheStart([&] {
        WaitForDialog(kDialog);
        Press(WXK_RETURN);
        WaitForWindow();
        WaitForCell(kRow, kUnit);
    });
}

TEST_F(RecoveryWindow, EscapeLeavesTheQuestionForTheNextTime) {
    PlayFromTheStart([&] {
        WaitForDialog(kDialog);
        Press(WXK_ESCAPE);
        WaitForWindow();
        EXPECT_EQ(Unit(), "kg");
    });
    EXPECT_EQ(world.journals.Entries().size(), 1U);
}

TEST_F(RecoveryWindow, TheAccessKeyDiscards) {
    PlayFromTheStart([&] {
        WaitForDialog(kDialog);
        Press('D', wxMOD_ALT);
        WaitForWindow();
        EXPECT_EQ(Unit(), "kg");
    });
    EXPECT_THAT(world.journals.Entries(), IsEmpty());
}

TEST_F(RecoveryWindow, ANoteReachesTheDiskWhenTheKeyboardRests) {
    PlayFromTheStart([&] {
        WaitForDialog(kDialog);
        Press(WXK_RETURN);
        WaitForWindow();
        WaitUntil("the notes are on the disk", [&] {
            const auto& notes = world.journals.Entries().front();
            return notes.synced == notes.bytes.size();
        });
        Press(WXK_DELETE);
        WaitUntil("the new one is, too", [&] {
            const auto& notes = world.journals.Entries().front();
            return grid().cells.Text(kRow, kUnit).empty() && notes.synced == notes.bytes.size();
        });
    });
}

} // namespace
} // namespace zy::test
