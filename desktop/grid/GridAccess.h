#pragma once

#include <memory>

#include "desktop/AccessibleTable.h"
#include "desktop/GridContent.h"

namespace zy {

/// Tells assistive technology of a grid, and of what has changed there.
class GridAccess {
  public:
    GridAccess(const ViewContext& context, Grid& model, GridWidget& grid, GridEditor& editor);

    /// Tells what has become different since the last time. `hasOtherRows` says that rows came or went, or
    /// were put in anew.
    void Tell(bool hasOtherRows);

  private:
    /// What was told last of the current cell and the block around it.
    struct Told {
        Cell current;
        Cell blockEnd;
        wxString text;
    };
    Told Now() const;

    GridContent content_;
    const GridSelection& selection_;
    std::unique_ptr<AccessibleTable> table_;
    Told told_;
    int rows_;
};

} // namespace zy
