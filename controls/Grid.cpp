#include "controls/Grid.h"

#include <algorithm>
#include <utility>

#include "basics/RuntimeError.h"

namespace zy {

Grid::Grid(Container* parent, std::string name, int columns)
    : Control(parent, std::move(name)), columns_(columns),
      widths_(static_cast<std::size_t>(columns), kDesignedWidth),
      columnLists_(static_cast<std::size_t>(columns)), fittedFrom_(columns) {
    validate = [this] {
        CommitEdit();
        return true;
    };
    SetRows(1);
}

void Grid::SetRows(int rows) {
    CommitEdit();
    cells_.Resize(FirstCellOf(rows));
    rows_ = rows;
    TellRowsChanged();
    KeepCurrentInside();
}

void Grid::AddItem(std::string_view tabJoinedCells) {
    for (int column = 0; column < columns_; ++column) {
        const auto tab = tabJoinedCells.find('\t');
        cells_.Append(tabJoinedCells.substr(0, tab));
        tabJoinedCells.remove_prefix(tab == std::string_view::npos ? tabJoinedCells.size() : tab + 1);
    }
    ++rows_;
    TellRowsChanged();
}

void Grid::AddRowsOf(std::string text, const CellTexts::Split& split) {
    cells_.AppendPartsOf(std::move(text), split);
    rows_ = static_cast<int>(cells_.Count()) / columns_;
    TellRowsChanged();
}

void Grid::RemoveItem(int row) {
    CommitEdit();
    cells_.Erase(Index(row, 0), FirstCellOf(1));
    --rows_;
    TellRowsChanged();
    KeepCurrentInside();
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
    SetCurrent({std::min(current_.row, rows_ - 1), current_.column});
}

void Grid::SetText(int row, int column, std::string_view text) {
    const auto cell = Index(row, column);
    if (cells_[cell] != text) {
        cells_.Set(cell, text);
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

void Grid::SetColumnList(int column, CellList list) {
    columnLists_.at(static_cast<std::size_t>(column)) = std::move(list);
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

void Grid::SelectAll() {
    if (TakeFocus() && rows_ > 1) {
        Select(1, 0);
        SelectTo(rows_ - 1, columns_ - 1);
    }
}

void Grid::SelectTo(int row, int column) {
    Index(row, column);
    CommitEdit();
    blockEnd_ = {row, column};
    blockChanged.Raise();
}

} // namespace zy
