#pragma once

#include <memory>
#include <string>
#include <string_view>

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
    std::string_view CurrentText() const;

    const Grid& model_;
    GridContent content_;
    std::unique_ptr<AccessibleTable> table_;
    // What was told last.
    Cell current_;
    Cell blockEnd_;
    std::string text_; ///< the current cell's
    int rows_;
};

} // namespace zy
