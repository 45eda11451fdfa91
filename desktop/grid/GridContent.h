#pragma once

#include "controls/Grid.h"
#include "desktop/AccessibleTable.h"
#include "desktop/GridEditor.h"
#include "desktop/GridWidget.h"
#include "desktop/ViewContext.h"

namespace zy {

/// A grid as assistive technology reads it: the model's cells where the toolkit draws them.
class GridContent : public TableContent {
  public:
    GridContent(const ViewContext& context, Grid& model, GridWidget& grid, GridEditor& editor)
        : context_(context), model_(model), grid_(grid), editor_(editor) {}

    wxString Name() const override;
    int Rows() const override { return grid_.GetNumberRows() + 1; }
    int Columns() const override { return grid_.GetNumberCols(); }
    wxString Text(const Cell& cell) const override;
    wxString Description(const Cell& cell) const override;
    bool HasChoices(const Cell& cell) const override;
    Cell Current() const override;
    CellRange Selected() const override;
    wxRect PlaceOf(const Cell& cell) const override { return grid_.ScreenPlaceOf(cell); }
    bool IsSeen(const Cell& cell) const override { return grid_.IsSeen(cell); }
    Cell CellAt(const wxPoint& onScreen) const override { return grid_.CellAt(onScreen); }
    void Pick(const Cell& cell) override;
    void Open(const Cell& cell) override;

  private:
    bool Has(const Cell& cell) const;
    /// Such as "list of A, I"; empty for a cell without a list.
    std::string DescribeChoices(const Cell& cell) const;
    /// Such as "3 rows selected"; empty for a single cell.
    std::string DescribeBlock() const;

    const ViewContext& context_;
    Grid& model_;
    GridWidget& grid_;
    GridEditor& editor_;
};

} // namespace zy
