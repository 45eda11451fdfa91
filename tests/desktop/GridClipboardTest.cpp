#include "UnitsWindow.h"

namespace zy::test {
namespace {

class GridOnTheClipboard : public UnitsWindow {
  protected:
    void SelectAllCells() {
        ClickCell(1, 0);
        for (int row = 2; row < grid().cells.Rows(); ++row) {
            Press(WXK_DOWN, wxMOD_SHIFT);
        }
        Press(WXK_RIGHT, wxMOD_SHIFT);
        WaitUntil("all is selected", [&] {
            return grid().selection.BlockEnd() == Cell{grid().cells.Rows() - 1, 1};
        });
    }
};

TEST_F(GridOnTheClipboard, CtrlCCopiesTheBlockAsASpreadsheetDoes) {
    PutUnits({"Square metres,m\xB2", "Seconds,s"});
    Play([&] {
        SelectAllCells();
        Press('C', wxMOD_CONTROL);
        const auto copied = wxString::FromUTF8("m²\tSquare metres\r\ns\tSeconds\r\n");
        WaitUntil("it is copied", [&] { return TextOnClipboard() == copied; });
    });
}

TEST_F(GridOnTheClipboard, CtrlXEmptiesTheCellsThatItCopies) {
    PutUnits(ThreeUnits());
    Play([&] {
        ClickCell(2, 1);
        Press('X', wxMOD_CONTROL);
        WaitForText(2, 1, "");
        EXPECT_EQ(OnClipboard(), "Metres\r\n");
        EXPECT_TRUE(program->form.ChangeFlag);
    });
}

TEST_F(GridOnTheClipboard, CtrlVPastesABlockAndAddsRowsForIt) {
    PutUnits(ThreeUnits());
    Play([&] {
        ClickCell(3, 0);
        PutOnClipboard(wxString::FromUTF8("°C\tCelsius\n°F\tFahrenheit\nK\tKelvin\n"));
        Press('V', wxMOD_CONTROL);
        WaitForText(5, 1, "Kelvin");
        EXPECT_EQ(Shown(3, 0), "°C");
        EXPECT_EQ(Shown(4, 0), "°F");
        Press('S', wxMOD_CONTROL);
        WaitForStatus("Saved");
    });
    EXPECT_EQ(File(), "Kilograms,kg\r\nMetres,m\r\nCelsius,\xB0"
                      "C\r\nFahrenheit,\xB0"
                      "F\r\nKelvin,K\r\n");
}

TEST_F(GridOnTheClipboard, ACharacterThatTheCodePageLacksIsNamedWithItsCellAndNothingIsPasted) {
    PutUnits(ThreeUnits());
    Play([&] {
        ClickCell(2, 0);
        PutOnClipboard(wxString::FromUTF8("A\tAmpere\nΩ\tOhm\n"));
        Press('V', wxMOD_CONTROL);
        WaitForStatus("row 3, Unit: the character U+03A9 was not taken: the settings files cannot hold it");
        EXPECT_EQ(Shown(2, 0), "m");
        EXPECT_EQ(Shown(2, 1), "Metres");
        EXPECT_FALSE(program->form.ChangeFlag);
    });
}

TEST_F(GridOnTheClipboard, ACharacterIsNamedByTheColumnItWouldHaveCome) {
    PutUnits(ThreeUnits());
    Play([&] {
        ClickCell(2, 1);
        PutOnClipboard(wxString::FromUTF8("Ampere\t→\nOhm\n"));
        Press('V', wxMOD_CONTROL);
        WaitForStatus(
            "row 2, column 3: the character U+2192 was not taken: the settings files cannot hold it");
    });
}

TEST_F(GridOnTheClipboard, ACharacterIsNamedFromTheBlocksFirstCellOn) {
    PutUnits(ThreeUnits());
    Play([&] {
        SelectAllCells();
        PutOnClipboard(wxString::FromUTF8("A\tAmpere\nO\tΩ\n"));
        Press('V', wxMOD_CONTROL);
        WaitForStatus(
            "row 2, Unit Description: the character U+03A9 was not taken: the settings files cannot hold it");
    });
}

TEST_F(GridOnTheClipboard, WhatIsCopiedCanBePastedElsewhere) {
    PutUnits(ThreeUnits());
    Play([&] {
        SelectAllCells();
        Press(WXK_INSERT, wxMOD_CONTROL);
        ClickCell(3, 0);
        Press(WXK_INSERT, wxMOD_SHIFT);
        WaitForText(5, 1, "Seconds");
        EXPECT_EQ(Shown(3, 1), "Kilograms");
    });
}

TEST_F(GridOnTheClipboard, AsManyRowsAsThereMayBeCanBePasted) {
    Play([&] {
        Click(page().cmdAddUNit);
        WaitForEditor("");
        Press(WXK_ESCAPE);
        WaitForNoEditor();
        wxString rows;
        for (int i = 1; i <= 32767; ++i) {
            rows << "u" << i << "\tUnit " << i << "\n";
        }
        PutOnClipboard(rows);
        Press('V', wxMOD_CONTROL);
        WaitForText(32767, 1, "Unit 32767");
        Press(WXK_END, wxMOD_CONTROL);
        WaitForCell(32767, 1);
        EXPECT_TRUE(IsOnScreen(32767));
    });
}

TEST_F(GridOnTheClipboard, CtrlASelectsAllRows) {
    PutUnits(ThreeUnits());
    Play([&] {
        ClickCell(2, 1);
        Press('A', wxMOD_CONTROL);
        WaitUntil("all is selected", [&] {
            return grid().selection.Row() == 1 && grid().selection.BlockEnd() == Cell{3, 1};
        });
        Press('C', wxMOD_CONTROL);
        const wxString all = "kg\tKilograms\r\nm\tMetres\r\ns\tSeconds\r\n";
        WaitUntil("all is copied", [&] { return TextOnClipboard() == all; });
    });
}

} // namespace
} // namespace zy::test
