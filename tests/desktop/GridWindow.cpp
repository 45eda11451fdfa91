#include "GridWindow.h"

#include <wx/button.h>
#include <wx/grid.h>
#include <wx/textctrl.h>

#include "NativeLook.h"

namespace zy::test {

void GridWindow::ClickCell(int row, int column) {
    hands->Click(PlaceOfCell(row, column));
    WaitForCell(row, column);
}

void GridWindow::DoubleClickCell(int row, int column) {
    hands->Click(PlaceOfCell(row, column));
    hands->Click(PlaceOfCell(row, column));
}

void GridWindow::DragOver(const wxPoint& from, const wxPoint& to) {
    constexpr std::chrono::milliseconds kSoThatEachStepIsSeen{20};
    hands->PointAt(from);
    hands->Drag(from, to, kSoThatEachStepIsSeen);
}

void GridWindow::DragOverCells(const Cell& from, const Cell& to) {
    DragOver(PlaceOfCell(from.row, from.column), PlaceOfCell(to.row, to.column));
}

void GridWindow::OpenEditor(int row, int column) {
    ClickCell(row, column);
    Press(WXK_F2);
    WaitForEditor(Shown(row, column));
}

void GridWindow::ClickCellButton() {
    hands->Click(InWindow([&] {
        const auto place = RealCellButton().GetScreenRect();
        return place.GetPosition() + place.GetSize() / 2;
    }));
}

void GridWindow::Fill(int row, int column, const std::string& text) {
    ClickCell(row, column);
    Type(text);
    WaitForEditor(text);
    Press(WXK_RETURN);
    WaitForText(row, column, text);
}

void GridWindow::OpenMenuAt(const wxPoint& place) {
    hands->RightClick(place);
    WaitForMenu();
}

void GridWindow::ChooseFromMenu(int key) {
    Press(key);
    Press(WXK_RETURN);
    WaitForNoMenu();
}

void GridWindow::ChooseAboveDisabledEntry() {
    if (InWindow([] { return KeysStopAtDisabledEntries(); })) {
        Press(WXK_UP);
    }
    ChooseFromMenu(WXK_UP);
}

std::string GridWindow::Shown(int row, int column) {
    return InWindow([&] { return RealGrid().GetCellValue(row - 1, column).utf8_string(); });
}

wxPoint GridWindow::PlaceOfCell(int row, int column) {
    const wxRect place = RectOfCell(row, column);
    return {place.x + place.width / 2, place.y + place.height / 2};
}

wxRect GridWindow::RectOfCell(int row, int column) {
    return InWindow([&] {
        wxRect place = RealGrid().CellToRect(row - 1, column);
        place.SetPosition(RealGrid().CalcScrolledPosition(place.GetPosition()));
        place.SetPosition(RealGrid().GetGridWindow()->ClientToScreen(place.GetPosition()));
        return place;
    });
}

wxPoint GridWindow::PlaceOfHeader() {
    return InWindow([&] {
        const auto place = RealGrid().GetGridColLabelWindow()->GetScreenRect();
        return place.GetPosition() + place.GetSize() / 2;
    });
}

bool GridWindow::IsOnScreen(int row) {
    return InWindow([&] { return RealGrid().IsVisible(row - 1, 0, true); });
}

void GridWindow::WaitForCell(int row, int column) {
    WaitUntil("the cell " + std::to_string(row) + "," + std::to_string(column) + " is current", [&] {
        return grid().selection.Row() == row && grid().selection.Column() == column &&
               RealGrid().GetGridCursorRow() == row - 1 && RealGrid().GetGridCursorCol() == column;
    });
}

void GridWindow::WaitForEditor(const std::string& text) {
    WaitUntil("the editor shows \"" + text + "\"", [&] {
        return RealEditor().IsShown() && RealEditor().HasFocus() &&
               RealEditor().GetValue().utf8_string() == text;
    });
}

void GridWindow::WaitForNoEditor() {
    WaitUntil("the editor is closed", [&] { return !RealEditor().IsShown() && !grid().editor.IsOpen(); });
}

void GridWindow::WaitForText(int row, int column, const std::string& text) {
    WaitUntil("the grid shows \"" + text + "\"",
              [&] { return RealGrid().GetCellValue(row - 1, column).utf8_string() == text; });
}

wxGrid& GridWindow::RealGrid() {
    return dynamic_cast<wxGrid&>(*Real(grid()).GetChildren()[0]);
}

wxTextCtrl& GridWindow::RealEditor() {
    for (auto* child : RealGrid().GetGridWindow()->GetChildren()) {
        if (auto* editor = dynamic_cast<wxTextCtrl*>(child)) {
            return *editor;
        }
    }
    throw GaveUp("The grid has no editor");
}

wxButton& GridWindow::RealCellButton() {
    for (auto* child : RealGrid().GetGridWindow()->GetChildren()) {
        auto* button = dynamic_cast<wxButton*>(child);
        if (button != nullptr && button->IsShown()) {
            return *button;
        }
    }
    throw GaveUp("The grid has no button");
}

} // namespace zy::test
