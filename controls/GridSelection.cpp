#include "controls/GridSelection.h"

#include <algorithm>

namespace zy {

bool CellRange::Contains(const Cell& cell) const {
    return cell.row >= first.row && cell.row <= last.row && cell.column >= first.column &&
           cell.column <= last.column;
}

GridSelection::GridSelection(GridCells& cells) : cells_(cells) {
    cells_.resized.Connect([this] { KeepInside(); });
}

CellRange GridSelection::Block() const {
    const auto [top, bottom] = std::minmax({current_.row, blockEnd_.row});
    const auto [left, right] = std::minmax({current_.column, blockEnd_.column});
    return {.first = {std::max(top, 1), left}, .last = {bottom, right}};
}

void GridSelection::SetCurrent(Cell cell) {
    changing.Raise();
    const bool moved = current_ != cell;
    current_ = cell;
    blockEnd_ = cell;
    blockChanged.Raise();
    if (moved) {
        currentCellChanged.Raise();
    }
}

void GridSelection::KeepInside() {
    SetCurrent({std::min(current_.row, cells_.Rows() - 1), current_.column});
}

void GridSelection::Select(int row, int column) {
    cells_.Require(row, column);
    SetCurrent({row, column});
}

void GridSelection::SelectTo(int row, int column) {
    cells_.Require(row, column);
    changing.Raise();
    blockEnd_ = {row, column};
    blockChanged.Raise();
}

void GridSelection::SelectAll() {
    if (cells_.Rows() > 1) {
        Select(1, 0);
        SelectTo(cells_.Rows() - 1, cells_.Columns() - 1);
    }
}

bool GridSelection::MoveByTab(bool backwards) {
    const int columns = cells_.Columns();
    const int cell = current_.row * columns + current_.column + (backwards ? -1 : 1);
    if (!IsInData() || cell < columns || cell >= cells_.Rows() * columns) {
        return false;
    }
    Select(cell / columns, cell % columns);
    return true;
}

/// The cell that a key leads to from this one; nothing when it leads nowhere.
std::optional<Cell> GridSelection::Beside(Cell cell, Key key) const {
    switch (key) {
    case Key::Up:
        return Cell{cell.row - 1, cell.column};
    case Key::Down:
        return Cell{cell.row + 1, cell.column};
    case Key::Left:
        return Cell{cell.row, cell.column - 1};
    case Key::Right:
        return Cell{cell.row, cell.column + 1};
    case Key::Home:
        return Cell{cell.row, 0};
    case Key::End:
        return Cell{cell.row, cells_.Columns() - 1};
    default:
        return std::nullopt;
    }
}

bool GridSelection::MoveByKey(const KeyPress& press) {
    if (press.alt || press.ctrl || cells_.Rows() < 2) {
        return false;
    }
    const Key key = press.key == Key::Enter && !press.shift ? Key::Down : press.key;
    // With Shift the block's far end moves, without it the current cell.
    const auto beside = Beside(press.shift ? blockEnd_ : current_, key);
    if (!beside) {
        return false;
    }
    if (!IsInData()) {
        Select(1, 0);
        return true;
    }
    const int row = std::clamp(beside->row, 1, cells_.Rows() - 1);
    const int column = std::clamp(beside->column, 0, cells_.Columns() - 1);
    if (press.shift) {
        SelectTo(row, column);
    } else {
        Select(row, column);
    }
    return true;
}

} // namespace zy
