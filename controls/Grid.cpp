#include "controls/Grid.h"

#include <algorithm>
#include <utility>

#include "basics/RuntimeError.h"

namespace zy {

Grid::Grid(Container* parent, std::string name, int columns)
    : Control(parent, std::move(name)), columns_(columns), cells_(static_cast<std::size_t>(columns)),
      widths_(static_cast<std::size_t>(columns), kDesignedWidth),
      columnLists_(static_cast<std::size_t>(columns)) {
    validate = [this] {
        CommitEdit();
        return true;
    };
}

std::size_t Grid::Index(int row, int column) const {
    if (row < 0 || row >= Rows() || column < 0 || column >= columns_) {
        RaiseSubscriptOutOfRange();
    }
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(column);
}

void Grid::SetRows(int rows) {
    CloseEditor();
    cells_.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns_));
    KeepCurrentInside();
    TellRowsChanged();
}

void Grid::AddItem(std::string_view tabJoinedCells) {
    for (int column = 0; column < columns_; ++column) {
        const auto tab = tabJoinedCells.find('\t');
        cells_.emplace_back(tabJoinedCells.substr(0, tab));
        tabJoinedCells.remove_prefix(tab == std::string_view::npos ? tabJoinedCells.size() : tab + 1);
    }
    TellRowsChanged();
}

void Grid::RemoveItem(int row) {
    CloseEditor();
    const auto first = cells_.begin() + static_cast<std::ptrdiff_t>(Index(row, 0));
    cells_.erase(first, first + columns_);
    KeepCurrentInside();
    TellRowsChanged();
}

void Grid::TellRowsChanged() {
    if (redraw_) {
        rowsChanged.Raise();
    }
}

void Grid::SetRedraw(bool on) {
    redraw_ = on;
    TellRowsChanged();
}

void Grid::KeepCurrentInside() {
    current_.row = std::min(current_.row, Rows() - 1);
    blockEnd_ = current_;
}

void Grid::SetText(int row, int column, std::string_view text) {
    auto& cell = cells_[Index(row, column)];
    if (cell != text) {
        cell = text;
        cellChanged.Raise(row, column);
    }
}

void Grid::SetColumnWidth(int column, int width) {
    auto& held = widths_.at(static_cast<std::size_t>(column));
    if (held != width) {
        held = width;
        appearanceChanged.Raise();
    }
}

void Grid::SetColumnList(int column, std::string_view items) {
    columnLists_.at(static_cast<std::size_t>(column)) = items;
}

void Grid::SetCurrent(Cell cell) {
    CommitEdit();
    const bool moved = current_ != cell;
    current_ = cell;
    blockEnd_ = cell;
    blockChanged.Raise();
    if (moved) {
        currentCellChanged.Raise();
    }
}

void Grid::Select(int row, int column) {
    Index(row, column);
    SetCurrent({row, column});
}

void Grid::SelectTo(int row, int column) {
    Index(row, column);
    CommitEdit();
    blockEnd_ = {row, column};
    blockChanged.Raise();
}

} // namespace zy
