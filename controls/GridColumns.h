#pragma once

#include <vector>

#include "controls/CellList.h"
#include "controls/Event.h"

namespace zy {

/// The columns of a grid: how wide they are and how their cells are edited. Columns count from 0; one that
/// the grid does not have is an error of the program. Widths are in twips.
class GridColumns {
  public:
    static constexpr int kDesignedWidth = 960;

    /// Columns of the designed width, whose cells are edited as lines of text.
    explicit GridColumns(int count);
    GridColumns(const GridColumns&) = delete;
    GridColumns& operator=(const GridColumns&) = delete;

    int Width(int column) const { return widths_.at(static_cast<std::size_t>(column)); }
    void SetWidth(int column, int width);
    /// Asks the view to fit the columns to their contents, from this one on. A view that comes later asks by
    /// FittedFrom.
    void Fit(int firstColumn);
    /// The first column of the last Fit; as many as there are columns when there was none.
    int FittedFrom() const { return fittedFrom_; }

    const CellList& List(int column) const { return lists_.at(static_cast<std::size_t>(column)); }
    void SetList(int column, CellList list);

    Event<> widthChanged;
    Event<int> fit; ///< with the first column that is to be fitted

  private:
    std::vector<int> widths_;
    std::vector<CellList> lists_;
    int fittedFrom_;
};

} // namespace zy
