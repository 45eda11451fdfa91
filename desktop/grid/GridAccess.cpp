#include "desktop/GridAccess.h"

#include <utility>

namespace zy {

GridAccess::GridAccess(const ViewContext& context, Grid& model, GridWidget& grid, GridEditor& editor)
    : content_(context, model, grid, editor), selection_(model.selection),
      table_(MakeAccessibleTable(*grid.GetGridWindow(), content_)), told_(Now()), rows_(content_.Rows()) {}

GridAccess::Told GridAccess::Now() const {
    const Cell current = content_.Current();
    return {.current = current, .blockEnd = selection_.BlockEnd(), .text = content_.Text(current)};
}

void GridAccess::Tell(bool hasOtherRows) {
    if (hasOtherRows) {
        table_->TellRows(std::exchange(rows_, content_.Rows()));
    }
    const Told before = std::exchange(told_, Now());
    if (before.current != told_.current) {
        table_->TellCurrent();
    } else if (before.blockEnd != told_.blockEnd) {
        table_->TellSelected();
    } else if (before.text != told_.text) {
        table_->TellText();
    }
}

} // namespace zy
