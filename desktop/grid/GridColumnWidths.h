#pragma once

#include <string_view>

#include "controls/GridCells.h"
#include "controls/GridColumns.h"
#include "desktop/GridWidget.h"
#include "desktop/ViewContext.h"

namespace zy {

/// The widths of a grid's columns: the model's, but that the last column takes what room is left.
class GridColumnWidths {
  public:
    GridColumnWidths(const ViewContext& context, const GridCells& cells, GridColumns& columns,
                     GridWidget& grid);

    /// Shows the model's widths.
    void Show();
    /// Fits the columns when the model has asked for it since the last time.
    void ShowFit();

  private:
    /// Gives the model the widths that the columns' texts need, from this column to before that one. Of a
    /// long column a few of its longest texts are measured.
    void Fit(int first, int end);
    int NeededPixels(int column) const;
    int TextPixels(std::string_view text, const wxFont& font) const;
    void TakeWidth(int column);
    int PixelsOf(int column) const;

    const ViewContext& context_;
    const GridCells& cells_;
    GridColumns& columns_;
    GridWidget& grid_;
    int fitFrom_; ///< the first column that is to be fitted; none when there is no such column
    Subscription fit_;
    Subscription widthChanged_;
};

} // namespace zy
