#include "NativeLook.h"
#include "UnitsWindow.h"

namespace zy::test {
namespace {

constexpr auto kSure = "Are you sure you wish to delete this Unit of Measure?";
constexpr auto kConfirm = "Confirm Delete";

class UnitsSession : public UnitsWindow {
  protected:
    UnitsSession() { PutUnits(ThreeUnits()); }

    /// Leaves an edit open that would make the second description "Ells".
    void BeginEdit() {
        OpenEditor(2, 1);
        Type("Ells");
        WaitForEditor("Ells");
    }
    static constexpr auto kWithElls = "Kilograms,kg\r\nElls,m\r\nSeconds,s\r\n";
};

TEST_F(UnitsSession, UnitsAreAddedEditedMovedDeletedAndSaved) {
    EXPECT_EQ(Play([&] {
                  Click(page().cmdAddUNit);
                  WaitForEditor("");
                  Type("m");
                  Press('2', wxMOD_CONTROL);
                  WaitForEditor("m²");
                  Press(WXK_TAB);
                  WaitForCell(4, 1);
                  Type("Square metres");
                  Press(WXK_RETURN);
                  WaitForText(4, 1, "Square metres");
                  ClickUp();
                  WaitForCell(3, 1);
                  EXPECT_EQ(Shown(3, 0), "m²");
                  ClickCell(1, 0);
                  Click(page().cmdDeleteUnit);
                  ExpectBox(kSure, kConfirm);
                  PressInBox(WXK_RETURN);
                  WaitForText(1, 0, "m");
                  Click(page().cmdSaveUnits);
                  WaitForStatus("Saved");
                  EXPECT_FALSE(IsEnabled(page().cmdSaveUnits));
                  CloseWindow();
              }),
              0);
    EXPECT_EQ(boxes.Seen().size(), 1U);
    EXPECT_EQ(File(), "Metres,m\r\nSquare metres,m\xB2\r\nSeconds,s\r\n");
}

TEST_F(UnitsSession, TheKeyboardStartsInTheGridWithoutACurrentCell) {
    Play([&] {
        WaitForFocus(page().grdUnits);
        Press(WXK_SPACE);
        Press(WXK_DELETE);
        Press(WXK_TAB);
        WaitForFocus(page().cmdAddUNit);
        EXPECT_EQ(InWindow([&] { return grid().selection.Row(); }), -1);
        EXPECT_FALSE(IsEnabled(page().cmdDeleteUnit));
        EXPECT_FALSE(IsEnabled(page().cmdSaveUnits));
        Press(WXK_TAB, wxMOD_SHIFT);
        WaitForCell(1, 0);
        EXPECT_TRUE(IsEnabled(page().cmdDeleteUnit));
    });
}

TEST_F(UnitsSession, TheFirstArrowKeyChoosesTheFirstCell) {
    Play([&] {
        WaitForFocus(page().grdUnits);
        Press(WXK_DOWN);
        WaitForCell(1, 0);
    });
}

TEST_F(UnitsSession, ARefusedUnitIsToldAndNothingIsWritten) {
    const auto before = File();
    Play([&] {
        ClickCell(1, 0);
        Press(WXK_DELETE);
        WaitForText(1, 0, "");
        Press('S', wxMOD_CONTROL);
        ExpectBox("Unit cannot be blank", "Invalid Unit");
        PressInBox(WXK_RETURN);
    });
    EXPECT_EQ(File(), before);
}

TEST_F(UnitsSession, AnOpenEditIsCommittedByTheSaveButton) {
    Play([&] {
        Click(page().cmdAddUNit); // lets the button be pressed
        WaitForEditor("");
        Type("d");
        WaitForEditor("d");
        Click(page().cmdSaveUnits);
        WaitForStatus("Saved");
    });
    EXPECT_EQ(File(), "Kilograms,kg\r\nMetres,m\r\nSeconds,s\r\n,d\r\n");
}

TEST_F(UnitsSession, AnOpenEditIsCommittedByControlS) {
    Play([&] {
        BeginEdit();
        Press('S', wxMOD_CONTROL);
        WaitForStatus("Saved");
    });
    EXPECT_EQ(File(), kWithElls);
}

TEST_F(UnitsSession, AnOpenEditIsCommittedByFileSave) {
    Play([&] {
        BeginEdit();
        ChooseSave();
        WaitForStatus("Saved");
    });
    EXPECT_EQ(File(), kWithElls);
}

TEST_F(UnitsSession, AnOpenEditIsCommittedByClosing) {
    Play([&] {
        BeginEdit();
        CloseWindow();
        ExpectBox("Do you Wish to Save your Changes?", "Save Changes?");
        Press(WXK_RETURN);
    });
    EXPECT_EQ(File(), kWithElls);
}

TEST_F(UnitsSession, ClosingKeepsTheWindowOpenWhileAUnitIsWrong) {
    const auto before = File();
    Play([&] {
        ClickCell(3, 0);
        Press(WXK_DELETE);
        WaitForText(3, 0, "");
        CloseWindow();
        ExpectBox("Do you Wish to Save your Changes?", "Save Changes?");
        PressInBox(WXK_RETURN);
        ExpectBox("Unit cannot be blank", "Invalid Unit");
        PressInBox(WXK_RETURN);
        EXPECT_TRUE(InWindow([&] { return program->form.Visible(); }));
    });
    EXPECT_EQ(File(), before);
}

TEST_F(UnitsSession, ControlWithADigitTypesASpecialCharacterIntoAUnit) {
    Play([&] {
        OpenEditor(3, 0);
        Press(WXK_END);
        Press('0', wxMOD_CONTROL);
        Press('2', wxMOD_CONTROL);
        Press('3', wxMOD_CONTROL);
        WaitForEditor("s°²³");
        Type("x"); // the caret stands behind them
        WaitForEditor("s°²³x");
        Press(WXK_RETURN);
        WaitForText(3, 0, "s°²³x");
    });
}

TEST_F(UnitsSession, TheKeypadsDigitsDoTheSame) {
    Play([&] {
        OpenEditor(3, 0);
        Press(WXK_NUMLOCK);
        Press(WXK_NUMPAD0, wxMOD_CONTROL); // takes the place of what is selected
        WaitForEditor("°");
        Press(WXK_NUMPAD2, wxMOD_CONTROL);
        Press(WXK_NUMPAD3, wxMOD_CONTROL);
        WaitForEditor("°²³");
        Press(WXK_NUMLOCK);
    });
}

TEST_F(UnitsSession, ControlWithADigitTypesNothingIntoADescription) {
    Play([&] {
        OpenEditor(2, 1);
        Press(WXK_END);
        Press('2', wxMOD_CONTROL);
        Type("!");
        WaitForEditor("Metres!");
    });
}

TEST_F(UnitsSession, AltWithUpAndDownMovesTheUnit) {
    Play([&] {
        ClickCell(2, 1);
        Press(WXK_UP, wxMOD_ALT);
        WaitForCell(1, 1);
        WaitForText(1, 0, "m");
        Press(WXK_DOWN, wxMOD_ALT);
        Press(WXK_DOWN, wxMOD_ALT);
        WaitForCell(3, 1);
        WaitForText(3, 1, "Metres");
        WaitForFocus(grid());
    });
}

TEST_F(UnitsSession, DeletingTheLastUnitMakesTheFirstCurrentAndLeavesTheKeyboardOnTheButton) {
    Play([&] {
        ClickCell(3, 1);
        Click(page().cmdDeleteUnit);
        ExpectBox(kSure, kConfirm);
        PressInBox(WXK_RETURN);
        WaitUntil("the unit is gone", [&] { return grid().cells.Rows() == 3; });
        Press(WXK_SPACE); // presses the button once more
        ExpectBox(kSure, kConfirm);
        PressInBox(WXK_RETURN);
        WaitForText(1, 1, "Metres");
        WaitForCell(1, 1);
        WaitForFocus(page().cmdDeleteUnit);
    });
}

TEST_F(UnitsSession, AClickOnTheGreySaveButtonCommitsAnOpenEditWhichTurnsTheButtonOn) {
    Play([&] {
        BeginEdit();
        ASSERT_FALSE(IsEnabled(page().cmdSaveUnits));
        Click(page().cmdSaveUnits);
        WaitForNoEditor();
        WaitForText(2, 1, "Ells");
        EXPECT_TRUE(IsEnabled(page().cmdSaveUnits));
        Click(page().cmdSaveUnits);
        WaitForStatus("Saved");
    });
    EXPECT_EQ(File(), kWithElls);
}

TEST_F(UnitsSession, AltSSavesAnOpenEditAlsoWhereTheSaveButtonIsGrey) {
    Play([&] {
        BeginEdit();
        ASSERT_FALSE(IsEnabled(page().cmdSaveUnits));
        Press('S', wxMOD_ALT);
        WaitForStatus("Saved");
    });
    EXPECT_EQ(File(), kWithElls);
}

TEST_F(UnitsSession, AnOpenCellHasRoomForALongUnit) {
    Play([&] {
        ClickCell(1, 0);
        Type("cubic metres an hour");
        WaitForEditor("cubic metres an hour");
        EXPECT_TRUE(InWindow([&] { return ShowsWholeText(RealEditor()); }));
    });
}

} // namespace
} // namespace zy::test
