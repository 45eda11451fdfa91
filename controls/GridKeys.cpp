#include <algorithm>

#include "controls/Grid.h"

namespace zy {

bool Grid::Press(const KeyPress& press) {
    if (!TakeFocus()) {
        return false;
    }
    return editing_ && press.key != Key::Tab ? PressInEditor(press) : PressOnCell(press);
}

bool Grid::PressInEditor(const KeyPress& press) {
    keyDownEdit.Raise(press);
    if (!press.IsPlain()) {
        return false;
    }
    if (press.key == Key::Escape) {
        CancelEdit();
        return true;
    }
    if (press.key == Key::Enter || press.key == Key::Up || press.key == Key::Down) {
        CommitEdit();
        MoveByKey({press.key == Key::Up ? Key::Up : Key::Down});
        return true;
    }
    return false;
}

bool Grid::PressOnCell(const KeyPress& press) {
    bool handled = false;
    keyDown.Raise(press, handled);
    if (handled) {
        return true;
    }
    if (press.key == Key::Tab) {
        return !press.ctrl && !press.alt && MoveByTab(press.shift);
    }
    if (press.IsPlain() && current_.row >= 1 && press.key == Key::F2) {
        EditCell();
        return true;
    }
    if (press.IsPlain() && current_.row >= 1 && press.key == Key::Delete) {
        ClearBlock();
        return true;
    }
    return MoveByKey(press);
}

/// One cell on, row by row. False at the ends, where the focus leaves the grid.
bool Grid::MoveByTab(bool backwards) {
    const int cell = current_.row * columns_ + current_.column + (backwards ? -1 : 1);
    if (current_.row < 1 || cell < columns_ || cell >= rows_ * columns_) {
        CommitEdit();
        return false;
    }
    Select(cell / columns_, cell % columns_);
    return true;
}

/// The cell that a key leads to from this one; nothing when it leads nowhere.
std::optional<Cell> Grid::Beside(Cell cell, Key key) const {
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
        return Cell{cell.row, columns_ - 1};
    default:
        return std::nullopt;
    }
}

bool Grid::MoveByKey(const KeyPress& press) {
    if (press.alt || press.ctrl || rows_ < 2) {
        return false;
    }
    const Key key = press.key == Key::Enter && !press.shift ? Key::Down : press.key;
    // With Shift the block's far end moves, without it the current cell.
    const auto beside = Beside(press.shift ? blockEnd_ : current_, key);
    if (!beside) {
        return false;
    }
    if (current_.row < 1) {
        Select(1, 0);
        return true;
    }
    const int row = std::clamp(beside->row, 1, rows_ - 1);
    const int column = std::clamp(beside->column, 0, columns_ - 1);
    if (press.shift) {
        SelectTo(row, column);
    } else {
        Select(row, column);
    }
    return true;
}

} // namespace zy
