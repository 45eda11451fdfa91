#include <wx/button.h>

#include "UnitsWindow.h"

namespace zy::test {
namespace {

/// The unit's column has a list, its description a dialog.
class GridListCells : public UnitsWindow {
  protected:
    GridListCells() {
        PutUnits(ThreeUnits());
        prepare = [this] {
            grid().columns.SetList(0, CellList("kg|km|s|"));
            grid().editor.beforeEdit.Connect([this](int, int column) {
                if (column == 1) {
                    grid().editor.SetList(CellList("..."));
                }
            });
            grid().editor.buttonClick.Connect([this](int row, int column) {
                grid().editor.Cancel();
                grid().cells.SetText(row, column, "picked");
            });
        };
    }
};

TEST_F(GridListCells, ALetterPicksTheNextItemThatBeginsWithIt) {
    Play([&] {
        ClickCell(3, 0);
        Press(WXK_F2);
        WaitForEditor("s");
        Type("k");
        WaitForEditor("kg");
        Type("k");
        WaitForEditor("km");
        Type("x");
        WaitForEditor("km");
        Press(WXK_RETURN);
        WaitForText(3, 0, "km");
    });
}

TEST_F(GridListCells, TypingOverTheCellPicksAnItemOfTheList) {
    Play([&] {
        ClickCell(1, 0);
        Type("S");
        WaitForEditor("s");
        Press(WXK_RETURN);
        WaitForText(1, 0, "s");
    });
}

TEST_F(GridListCells, TypingALetterOfNoItemLeavesTheText) {
    Play([&] {
        ClickCell(2, 0);
        Type("q");
        WaitForEditor("m");
        Press(WXK_RETURN);
        WaitForText(2, 0, "m");
    });
}

TEST_F(GridListCells, TheButtonDropsTheListDownAndAChoiceIsCommitted) {
    Play([&] {
        ClickCell(1, 0);
        Press(WXK_F2);
        WaitForEditor("kg");
        ClickCellButton();
        Press(WXK_DOWN);
        Press(WXK_DOWN);
        Press(WXK_RETURN);
        WaitForText(1, 0, "km");
        WaitForNoEditor();
        WaitForFocus(grid());
        EXPECT_TRUE(program->form.ChangeFlag);
    });
}

TEST_F(GridListCells, AltAndDownDropsTheListDownAndEscapeLeavesTheTextInTheEditor) {
    Play([&] {
        ClickCell(1, 0);
        Press(WXK_F2);
        WaitForEditor("kg");
        Press(WXK_DOWN, wxMOD_ALT);
        Press(WXK_DOWN);
        Press(WXK_ESCAPE);
        WaitForEditor("kg");
        EXPECT_FALSE(program->form.ChangeFlag);
    });
}

TEST_F(GridListCells, TheEmptyItemCanBeChosen) {
    Play([&] {
        ClickCell(1, 0);
        Press(WXK_F2);
        WaitForEditor("kg");
        Press(WXK_F4);
        Press(WXK_UP);
        Press(WXK_RETURN);
        WaitForText(1, 0, "");
    });
}

TEST_F(GridListCells, TheEllipsisButtonIsTold) {
    Play([&] {
        ClickCell(1, 1);
        Press(WXK_F2);
        WaitForEditor("Kilograms");
        EXPECT_FALSE(InWindow([&] { return RealCellButton().GetLabel().empty(); }));
        ClickCellButton();
        WaitForText(1, 1, "picked");
        WaitForNoEditor();
    });
}

TEST_F(GridListCells, TheEllipsisButtonIsPressedByKeysToo) {
    Play([&] {
        ClickCell(1, 1);
        Press(WXK_F2);
        WaitForEditor("Kilograms");
        Press(WXK_DOWN, wxMOD_ALT);
        WaitForText(1, 1, "picked");
    });
}

TEST_F(GridListCells, TextBesideAnEllipsisButtonIsTyped) {
    Play([&] {
        ClickCell(1, 1);
        Type("typed");
        WaitForEditor("typed");
        Press(WXK_RETURN);
        WaitForText(1, 1, "typed");
    });
}

} // namespace
} // namespace zy::test
