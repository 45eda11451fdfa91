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
    if (current_.row >= 1 && press.IsPlain() && press.key == Key::F2) {
        EditCell();
        return true;
    }
    if (current_.row >= 1 && press.IsPlain() && press.key == Key::Delete) {
        ClearBlock();
        return true;
    }
    return MoveByKey(press);
}

/// One cell on, row by row. False at the ends, where the focus leaves the grid.
bool Grid::MoveByTab(bool backwards) {
    const int cell = current_.row * columns_ + current_.column + (backwards ? -1 : 1);
    if (current_.row < 1 || cell < columns_ || cell >= Rows() * columns_) {
        CommitEdit();
        return false;
    }
    Select(cell / columns_, cell % columns_);
    return true;
}

bool Grid::MoveByKey(const KeyPress& press) {
    if (press.alt || press.ctrl || Rows() < 2) {
        return false;
    }
    // With Shift the block's far end moves, without it the current cell.
    Cell cell = press.shift ? blockEnd_ : current_;
    switch (press.key) {
    case Key::Up:
        --cell.row;
        break;
    case Key::Down:
    case Key::Enter:
        ++cell.row;
        break;
    case Key::Left:
        --cell.column;
        break;
    case Key::Right:
        ++cell.column;
        break;
    case Key::Home:
        cell.column = 0;
        break;
    case Key::End:
        cell.column = columns_ - 1;
        break;
    default:
        return false;
    }
    cell.row = std::clamp(cell.row, 1, Rows() - 1);
    cell.column = std::clamp(cell.column, 0, columns_ - 1);
    if (press.shift) {
        SelectTo(cell.row, cell.column);
    } else {
        Select(cell.row, cell.column);
    }
    return true;
}

} // namespace zy
