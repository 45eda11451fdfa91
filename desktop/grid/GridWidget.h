#pragma once

#include <wx/grid.h>

#include "controls/GridCells.h"

namespace zy {

/// The toolkit's grid with the looks of the program's other lists, and without what the model does itself:
/// its cells are edited, and its rows and columns sized and ordered, by the model alone.
class GridWidget : public wxGrid {
  public:
    /// Takes the table over.
    GridWidget(wxWindow* parent, wxGridTableBase* table);

    /// Whether there is a current cell to show. Its row is tinted, also while another control has the
    /// keyboard.
    void SetHasCurrent(bool has);
    bool IsCurrentRow(int row) const { return hasCurrent_ && row == GetGridCursorRow(); }
    /// Where a cell of the model is drawn, in the window of the cells; the model's row 1 is the toolkit's row
    /// 0.
    wxRect PlaceOf(const Cell& cell) const;
    /// Where a cell or a header is drawn, on the screen; nowhere for one that the grid does not have.
    wxRect ScreenPlaceOf(const Cell& cell) const;
    /// What lies at a place on the screen: a cell, or a header in row 0. Its row is -1 where there is none.
    Cell CellAt(const wxPoint& onScreen) const;
    bool HasCell(const Cell& cell) const;
    /// Whether some of a cell or of a header is in sight.
    bool IsSeen(const Cell& cell) const;
    /// Scrolls a cell of the model into view.
    void Reveal(const Cell& cell) { MakeCellVisible(cell.row - 1, cell.column); }
    /// Draws anew the row that is or was current.
    void RefreshRow(int row);

    /// Makes the rows high enough for an editor of this height.
    void FitRows(int editorHeight);
    /// The text of the cell, or of the header, at a place on the screen if not all of it is seen.
    wxString CutCellAt(const wxPoint& onScreen) const;
    wxString CutHeaderAt(const wxPoint& onScreen) const;
    /// The room left and right of a cell's text.
    int CellMargin() const { return GetCharWidth() / 2; }

  private:
    void KeepDragsOffHeader();
    void DragToWhereMouseIsLetGo();
    void DrawColLabel(wxDC& dc, int column) override;
    /// The text if it is wider than what is seen of its column.
    wxString IfCut(const wxString& text, const wxFont& font, int column) const;

    wxWindow* WindowOf(const Cell& cell) const;

    bool hasCurrent_ = false;
};

} // namespace zy
