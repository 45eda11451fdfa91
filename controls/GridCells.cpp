#include "controls/GridCells.h"

#include <utility>

namespace zy {

GridCells::GridCells(int columns) : columns_(columns) {
    cells_.Resize(FirstCellOf(rows_));
}

void GridCells::SetRows(int rows) {
    resizing.Raise();
    cells_.Resize(FirstCellOf(rows));
    rows_ = rows;
    AnnounceRows();
    resized.Raise();
}

void GridCells::AddItem(std::string_view tabJoinedCells) {
    for (int column = 0; column < columns_; ++column) {
        const auto tab = tabJoinedCells.find('\t');
        cells_.Append(tabJoinedCells.substr(0, tab));
        tabJoinedCells.remove_prefix(tab == std::string_view::npos ? tabJoinedCells.size() : tab + 1);
    }
    ++rows_;
    AnnounceRows();
}

void GridCells::AddRowsOf(std::string text, const CellTexts::Split& split) {
    cells_.AppendPartsOf(std::move(text), split);
    rows_ = static_cast<int>(cells_.Count()) / columns_;
    AnnounceRows();
}

void GridCells::RemoveItem(int row) {
    resizing.Raise();
    cells_.Erase(Index(row, 0), FirstCellOf(1));
    --rows_;
    AnnounceRows();
    resized.Raise();
}

void GridCells::AnnounceRows() {
    if (redraw_) {
        rowsChanged.Raise();
    }
}

void GridCells::SetRedraw(bool on) {
    redraw_ = on;
    AnnounceRows();
}

void GridCells::SetText(int row, int column, std::string_view text) {
    const auto cell = Index(row, column);
    if (cells_[cell] != text) {
        cells_.Set(cell, text);
        cellChanged.Raise(row, column);
    }
}

} // namespace zy
