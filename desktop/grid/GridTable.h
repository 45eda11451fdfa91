#pragma once

#include <wx/grid.h>

#include "controls/GridCells.h"
#include "desktop/ViewContext.h"

namespace zy {

/// The cells of a grid, read from its model when the toolkit draws them.
///
/// The model's fixed header, its row 0, is the toolkit's column labels. So the toolkit's row 0 is the model's
/// row 1.
class GridTable : public wxGridTableBase {
  public:
    GridTable(const ViewContext& context, const GridCells& cells);

    /// Lets the toolkit know how many rows came or went at the end, whatever happened to those before.
    void MatchRows();

    int GetNumberRows() override { return rows_; }
    int GetNumberCols() override { return cells_.Columns(); }
    bool IsEmptyCell(int row, int column) override { return TextAt(row + 1, column).empty(); }
    /// What is drawn of a cell: the beginning of a long text.
    wxString GetValue(int row, int column) override { return Shown(row + 1, column); }
    /// Never called: the user edits through the model.
    void SetValue(int row, int column, const wxString& value) override;
    wxString GetColLabelValue(int column) override { return Shown(0, column); }
    bool CanHaveAttributes() override { return false; }

  private:
    /// The model's text, empty where it has no such row: rows may have gone since the toolkit learned of
    /// them.
    std::string_view TextAt(int modelRow, int column) const;
    wxString Shown(int modelRow, int column) const;

    const ViewContext& context_;
    const GridCells& cells_;
    int rows_ = 0;
};

} // namespace zy
