#include "UnitsWindow.h"

#include <wx/grid.h>
#include <wx/textctrl.h>

namespace zy::test {

void UnitsWindow::PutUnits(const std::vector<std::string>& lines) {
    std::string text;
    for (const auto& line : lines) {
        text += line + "\r\n";
    }
    world.files.Put(R"(C:\SYS\ZYUNITS.SYS)", text);
}

std::vector<std::string> UnitsWindow::ManyUnits(int count) {
    std::vector<std::string> lines;
    for (int i = 1; i <= count; ++i) {
        lines.push_back("Unit number " + std::to_string(i) + ",u" + std::to_string(i));
    }
    return lines;
}

void UnitsWindow::ClickCell(int row, int column) {
    hands->Click(PlaceOfCell(row, column));
    WaitForCell(row, column);
}

void UnitsWindow::DoubleClickCell(int row, int column) {
    hands->Click(PlaceOfCell(row, column));
    hands->Click(PlaceOfCell(row, column));
}

void UnitsWindow::DragOverCells(const Cell& from, const Cell& to) {
    hands->Drag(PlaceOfCell(from.row, from.column), PlaceOfCell(to.row, to.column));
}

void UnitsWindow::OpenEditor(int row, int column) {
    ClickCell(row, column);
    Press(WXK_F2);
    WaitForEditor(Shown(row, column));
}

std::string UnitsWindow::Shown(int row, int column) {
    return InWindow([&] { return RealGrid().GetCellValue(row - 1, column).utf8_string(); });
}

wxPoint UnitsWindow::PlaceOfCell(int row, int column) {
    return InWindow([&] {
        wxRect place = RealGrid().CellToRect(row - 1, column);
        place.SetPosition(RealGrid().CalcScrolledPosition(place.GetPosition()));
        const wxPoint middle(place.x + place.width / 2, place.y + place.height / 2);
        return RealGrid().GetGridWindow()->ClientToScreen(middle);
    });
}

bool UnitsWindow::IsOnScreen(int row) {
    return InWindow([&] { return RealGrid().IsVisible(row - 1, 0, true); });
}

void UnitsWindow::WaitForCell(int row, int column) {
    WaitUntil("the cell " + std::to_string(row) + "," + std::to_string(column) + " is current", [&] {
        return grid().Row() == row && grid().Column() == column && RealGrid().GetGridCursorRow() == row - 1 &&
               RealGrid().GetGridCursorCol() == column;
    });
}

void UnitsWindow::WaitForEditor(const std::string& text) {
    WaitUntil("the editor shows \"" + text + "\"", [&] {
        return RealEditor().IsShown() && RealEditor().HasFocus() &&
               RealEditor().GetValue().utf8_string() == text;
    });
}

void UnitsWindow::WaitForNoEditor() {
    WaitUntil("the editor is closed", [&] { return !RealEditor().IsShown() && !grid().IsEditing(); });
}

void UnitsWindow::WaitForText(int row, int column, const std::string& text) {
    WaitUntil("the grid shows \"" + text + "\"",
              [&] { return RealGrid().GetCellValue(row - 1, column).utf8_string() == text; });
}

wxGrid& UnitsWindow::RealGrid() {
    return dynamic_cast<wxGrid&>(*Real(grid()).GetChildren()[0]);
}

wxTextCtrl& UnitsWindow::RealEditor() {
    for (auto* child : RealGrid().GetGridWindow()->GetChildren()) {
        if (auto* editor = dynamic_cast<wxTextCtrl*>(child)) {
            return *editor;
        }
    }
    throw GaveUp("The grid has no editor");
}

} // namespace zy::test
