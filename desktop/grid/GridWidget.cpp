#include "desktop/GridWidget.h"

#include <wx/control.h>
#include <wx/dc.h>
#include <wx/renderer.h>
#include <wx/settings.h>

#include <algorithm>

#include "desktop/Contrast.h"
#include "desktop/GridNative.h"

namespace zy {
namespace {

/// A trace of the selection's colour.
wxColour TintOf(const wxGrid& grid) {
    constexpr double kShare = 0.12;
    const wxColour strong = grid.GetSelectionBackground();
    const wxColour plain = grid.GetDefaultCellBackgroundColour();
    return {wxColour::AlphaBlend(strong.Red(), plain.Red(), kShare),
            wxColour::AlphaBlend(strong.Green(), plain.Green(), kShare),
            wxColour::AlphaBlend(strong.Blue(), plain.Blue(), kShare)};
}

/// Draws a cell's text on one line, cut by an ellipsis where it is too long.
class OneLine : public wxGridCellStringRenderer {
  public:
    void Draw(wxGrid& grid, wxGridCellAttr& attr, wxDC& dc, const wxRect& place, int row, int column,
              bool isSelected) override {
        if (static_cast<GridWidget&>(grid).IsCurrentRow(row) && !isSelected) {
            dc.SetPen(*wxTRANSPARENT_PEN);
            dc.SetBrush(TintOf(grid));
            dc.DrawRectangle(place);
        } else {
            // NOLINTNEXTLINE(bugprone-parent-virtual-call): the parent would draw the text, too
            wxGridCellRenderer::Draw(grid, attr, dc, place, row, column, isSelected);
        }
        // Without the keyboard a block is grey, on which the selection's own colour of text is hard to read.
        SetTextColoursAndFont(grid, attr, dc, isSelected && grid.HasFocus());
        if (isSelected && grid.GetGridCursorCoords() == wxGridCellCoords(row, column)) {
            DrawFrame(grid, dc, place);
        }
        DrawText(static_cast<GridWidget&>(grid), dc, place, grid.GetCellValue(row, column));
    }

  private:
    /// The current cell's frame has the colour of the selection. In a block, where it cannot be seen, this
    /// one has the colour of the text.
    static void DrawFrame(const wxGrid& grid, wxDC& dc, const wxRect& place) {
        constexpr int kInside = 2;
        dc.SetPen(wxPen(dc.GetTextForeground(), grid.FromDIP(1)));
        dc.SetBrush(*wxTRANSPARENT_BRUSH);
        dc.DrawRectangle(wxRect(place).Deflate(grid.FromDIP(kInside)));
    }
    static void DrawText(GridWidget& grid, wxDC& dc, wxRect place, const wxString& text) {
        place.Deflate(grid.CellMargin(), 0);
        const auto fitting =
            wxControl::Ellipsize(text, dc, wxELLIPSIZE_END, place.width, wxELLIPSIZE_FLAGS_NONE);
        grid.DrawTextRectangle(dc, fitting, place, wxALIGN_LEFT, wxALIGN_CENTRE);
    }
};

} // namespace

GridWidget::GridWidget(wxWindow* parent, wxGridTableBase* table)
    : wxGrid(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxWANTS_CHARS | wxBORDER_NONE) {
    SetDefaultRenderer(new OneLine);
    SetTable(table, true);
    EnableEditing(false);
    // The window of the cells alone takes the keyboard.
    SetCanFocus(false);
    HideRowLabels();
    DisableDragRowSize();
    // Between the cells the mouse selects. Columns get their widths between the headers.
    DisableDragGridSize();
    DisableDragColMove();
    KeepDragsOffHeader();
    DragToWhereMouseIsLetGo();
    SetMargins(0, 0);
    SetLabelTextColour(HeaderTextColour());
    SetSelectionBackground(SelectionGround());
    SetCellHighlightColour(NoticeableColour(wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT)));
}

void GridWidget::KeepDragsOffHeader() {
    auto* header = GetGridColLabelWindow();
    // It has the mouse while it draws a width. Of any other drag the toolkit would keep that there is one,
    // and take the mouse for itself the next time that it comes over the cells.
    const auto passOn = [header](wxMouseEvent& event) { event.Skip(event.Moving() || header->HasCapture()); };
    header->Bind(wxEVT_MOTION, passOn);
    header->Bind(wxEVT_LEFT_UP, passOn);
}

void GridWidget::DragToWhereMouseIsLetGo() {
    auto* cells = GetGridWindow();
    // The toolkit asks for the mouse's next step when it is done with the last one: on a busy machine a
    // button that is let go at once comes before it, and the block would end too early.
    cells->Bind(wxEVT_LEFT_UP, [cells](wxMouseEvent& event) {
        event.Skip();
        if (cells->HasCapture() && cells->GetClientRect().Contains(event.GetPosition())) {
            wxMouseEvent lastStep(event);
            lastStep.SetEventType(wxEVT_MOTION);
            lastStep.SetLeftDown(true);
            cells->ProcessWindowEvent(lastStep);
        }
    });
}

void GridWidget::SetHasCurrent(bool has) {
    constexpr int kFrameWidth = 2;
    hasCurrent_ = has;
    SetCellHighlightPenWidth(has ? FromDIP(kFrameWidth) : 0);
    SetCellHighlightROPenWidth(GetCellHighlightPenWidth());
}

wxRect GridWidget::PlaceOf(const Cell& cell) const {
    wxRect place = CellToRect(cell.row - 1, cell.column);
    place.SetPosition(CalcScrolledPosition(place.GetPosition()));
    return place;
}

wxRect GridWidget::ScreenPlaceOf(const Cell& cell) const {
    if (!HasCell(cell)) {
        return {};
    }
    wxRect place = PlaceOf(cell);
    if (cell.row == 0) {
        place = {CalcScrolledPosition(wxPoint(GetColLeft(cell.column), 0)).x, 0, GetColWidth(cell.column),
                 GetColLabelSize()};
    }
    place.SetPosition(WindowOf(cell)->ClientToScreen(place.GetPosition()));
    return place;
}

Cell GridWidget::CellAt(const wxPoint& onScreen) const {
    if (GetGridColLabelWindow()->GetScreenRect().Contains(onScreen)) {
        const int column =
            XToCol(CalcUnscrolledPosition(GetGridColLabelWindow()->ScreenToClient(onScreen)).x);
        return {.row = column == wxNOT_FOUND ? -1 : 0, .column = std::max(column, 0)};
    }
    const auto cell = XYToCell(CalcUnscrolledPosition(GetGridWindow()->ScreenToClient(onScreen)));
    const bool isInside = GetGridWindow()->GetScreenRect().Contains(onScreen) && cell != wxGridNoCellCoords;
    return isInside ? Cell{.row = cell.GetRow() + 1, .column = cell.GetCol()} : Cell();
}

bool GridWidget::HasCell(const Cell& cell) const {
    return cell.row >= 0 && cell.row <= GetNumberRows() && cell.column >= 0 && cell.column < GetNumberCols();
}

wxWindow* GridWidget::WindowOf(const Cell& cell) const {
    return cell.row == 0 ? GetGridColLabelWindow() : GetGridWindow();
}

bool GridWidget::IsSeen(const Cell& cell) const {
    return HasCell(cell) && WindowOf(cell)->GetScreenRect().Intersects(ScreenPlaceOf(cell));
}

void GridWidget::RefreshRow(int row) {
    if (row >= 0 && row < GetNumberRows()) {
        GetGridWindow()->RefreshRect(BlockToDeviceRect({row, 0}, {row, GetNumberCols() - 1}));
    }
}

void GridWidget::FitRows(int editorHeight) {
    const int room = GetCharHeight() / 4;
    SetDefaultRowSize(editorHeight + room, true);
    SetColLabelSize(editorHeight + 2 * room);
}

wxString GridWidget::CutCellAt(const wxPoint& onScreen) const {
    const auto cell = XYToCell(CalcUnscrolledPosition(GetGridWindow()->ScreenToClient(onScreen)));
    return cell == wxGridNoCellCoords ? wxString()
                                      : IfCut(GetCellValue(cell), GetDefaultCellFont(), cell.GetCol());
}

wxString GridWidget::CutHeaderAt(const wxPoint& onScreen) const {
    const int column = XToCol(CalcUnscrolledPosition(GetGridWindow()->ScreenToClient(onScreen)).x);
    return column == wxNOT_FOUND ? wxString() : IfCut(GetColLabelValue(column), GetLabelFont(), column);
}

wxString GridWidget::IfCut(const wxString& text, const wxFont& font, int column) const {
    const int left = CalcScrolledPosition(wxPoint(GetColLeft(column), 0)).x;
    const int right = std::min(left + GetColWidth(column), GetGridWindow()->GetClientSize().x);
    int width = 0;
    int height = 0;
    GetTextExtent(text, &width, &height, nullptr, nullptr, &font);
    return width + 2 * CellMargin() > right - std::max(left, 0) ? text : wxString();
}

void GridWidget::DrawColLabel(wxDC& dc, int column) {
    const wxRect place(GetColLeft(column), 0, GetColWidth(column), GetColLabelSize());
    wxRendererNative::Get().DrawHeaderButton(GetGridColLabelWindow(), dc, place);
    dc.SetFont(GetLabelFont());
    dc.SetTextForeground(GetLabelTextColour());
    DrawTextRectangle(dc, GetColLabelValue(column), wxRect(place).Deflate(CellMargin(), 0), wxALIGN_LEFT,
                      wxALIGN_CENTRE);
}

} // namespace zy
