#include "controls/GridColumns.h"

#include <utility>

namespace zy {

GridColumns::GridColumns(int count)
    : widths_(static_cast<std::size_t>(count), kDesignedWidth), lists_(static_cast<std::size_t>(count)),
      fittedFrom_(count) {}

void GridColumns::SetWidth(int column, int width) {
    auto& held = widths_.at(static_cast<std::size_t>(column));
    if (held != width) {
        held = width;
        widthChanged.Raise();
    }
}

void GridColumns::Fit(int firstColumn) {
    fittedFrom_ = firstColumn;
    fit.Raise(firstColumn);
}

void GridColumns::SetList(int column, CellList list) {
    lists_.at(static_cast<std::size_t>(column)) = std::move(list);
}

} // namespace zy
