#pragma once

#include "WindowTest.h"

class wxButton;
class wxGrid;
class wxTextCtrl;

namespace zy::test {

/// An editor with a grid in its real window. Rows of the grid are counted as its model does: 1 is the first
/// one below the header.
class GridWindow : public WindowTest {
  protected:
    using WindowTest::WindowTest;

    /// The grid of the editor's page.
    virtual Grid& grid() = 0;

    // What the user does.
    void ClickCell(int row, int column);
    void DoubleClickCell(int row, int column);
    /// Drags so slowly that each step is seen.
    void DragOver(const wxPoint& from, const wxPoint& to);
    void DragOverCells(const Cell& from, const Cell& to);
    /// Opens the editor of a cell by F2.
    void OpenEditor(int row, int column);
    /// Clicks the button of the cell that is open.
    void ClickCellButton();
    /// Types over a cell and presses Enter.
    void Fill(int row, int column, const std::string& text);
    /// Clicks with the right button and waits for the menu.
    void OpenMenuAt(const wxPoint& place);
    /// Picks the entry of the open menu to which this key goes.
    void ChooseFromMenu(int key);
    /// From below, goes to the first entry that can be chosen, above a single one that cannot, and chooses
    /// it.
    void ChooseAboveDisabledEntry();

    // What the user sees.
    /// A cell as the grid draws it.
    std::string Shown(int row, int column);
    /// The middle of a cell on the screen.
    wxPoint PlaceOfCell(int row, int column);
    /// The whole cell on the screen.
    wxRect RectOfCell(int row, int column);
    /// The middle of the header.
    wxPoint PlaceOfHeader();
    bool IsOnScreen(int row);

    /// Waits until model and grid agree that this is the current cell.
    void WaitForCell(int row, int column);
    /// Waits until the editor is open, has the keyboard and shows this text.
    void WaitForEditor(const std::string& text);
    void WaitForNoEditor();
    void WaitForText(int row, int column, const std::string& text);

    // For the window's thread.
    wxGrid& RealGrid();
    wxTextCtrl& RealEditor();
    wxButton& RealCellButton();
};

} // namespace zy::test
