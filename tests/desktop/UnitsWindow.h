#pragma once

#include <optional>

#include "WindowTest.h"

class wxGrid;
class wxTextCtrl;

namespace zy::test {

/// The units editor in its real window. Rows of the grid are counted as its model does: 1 is the first unit.
class UnitsWindow : public WindowTest {
  protected:
    UnitsWindow() : WindowTest("@UNITS") {}

    /// Puts a units file on the disk, given as its lines.
    void PutUnits(const std::vector<std::string>& lines);
    static std::vector<std::string> ThreeUnits() { return {"Kilograms,kg", "Metres,m", "Seconds,s"}; }
    static std::vector<std::string> ManyUnits(int count);
    std::optional<std::string> File() const { return world.files.Get(R"(C:\SYS\ZYUNITS.SYS)"); }

    // What the person does.
    void ClickCell(int row, int column);
    void DoubleClickCell(int row, int column);
    void DragOverCells(const Cell& from, const Cell& to);
    /// Opens the editor of a cell by F2.
    void OpenEditor(int row, int column);
    void ClickUp() { WindowTest::ClickUp(page().UpDownUnits); }
    void ClickDown() { WindowTest::ClickDown(page().UpDownUnits); }

    // What the person sees.
    /// A cell as the grid draws it.
    std::string Shown(int row, int column);
    wxPoint PlaceOfCell(int row, int column);
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

    UnitsControls& page() { return program->unitsPage.controls; }
    Grid& grid() { return page().grdUnits; }
};

} // namespace zy::test
