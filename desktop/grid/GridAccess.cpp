#include "desktop/GridAccess.h"

#include <utility>

namespace zy {
namespace {

/// Keeps what there is now; says whether that is something else.
template <typename Known, typename Present>
bool Note(Known& known, const Present& present) {
    const bool isOther = known != present;
    if (isOther) {
        known = present;
    }
    return isOther;
}

} // namespace

GridAccess::GridAccess(const ViewContext& context, Grid& model, GridWidget& grid, GridEditor& editor)
    : model_(model), content_(context, model, grid, editor),
      table_(MakeAccessibleTable(*grid.GetGridWindow(), content_)), current_(content_.Current()),
      blockEnd_(model.selection.BlockEnd()), text_(CurrentText()), rows_(content_.Rows()) {}

/// The model's own, for nobody may be there to read it.
std::string_view GridAccess::CurrentText() const {
    const Cell current = content_.Current();
    return current.row < 0 ? std::string_view() : model_.cells.Text(current.row, current.column);
}

void GridAccess::Tell(bool hasOtherRows) {
    if (hasOtherRows) {
        table_->TellRows(std::exchange(rows_, content_.Rows()));
    }
    const bool isOtherCell = Note(current_, content_.Current());
    const bool isOtherBlock = Note(blockEnd_, model_.selection.BlockEnd());
    const bool isOtherText = Note(text_, CurrentText());
    if (isOtherCell) {
        table_->TellCurrent();
    } else if (isOtherBlock) {
        table_->TellSelected();
    } else if (isOtherText) {
        table_->TellText();
    }
}

} // namespace zy
