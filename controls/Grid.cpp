#include "controls/Grid.h"

#include <utility>

namespace zy {

Grid::Grid(Container* parent, std::string name, int columnCount)
    : Control(parent, std::move(name)), cells(columnCount), columns(columnCount), selection(cells),
      editor(cells, columns, selection), block(cells, columns, selection, editor) {
    validate = [this] {
        editor.Commit();
        return true;
    };
}

void Grid::Pick(int row, int column) {
    if (TakeFocus() && row >= 1) {
        selection.Select(row, column);
    }
}

void Grid::TypeOver(std::string_view text) {
    if (!TakeFocus() || !selection.IsInData()) {
        return;
    }
    if (editor.IsOpen()) {
        editor.ReplaceSelection(text);
    } else {
        editor.OpenWith(text);
    }
}

void Grid::OpenEditor() {
    if (TakeFocus() && selection.IsInData() && !editor.IsOpen()) {
        editor.Open();
    }
}

bool Grid::Press(const KeyPress& press) {
    if (!TakeFocus()) {
        return false;
    }
    return editor.IsOpen() && press.key != Key::Tab ? editor.Press(press) : PressOnCell(press);
}

bool Grid::PressOnCell(const KeyPress& press) {
    bool handled = false;
    keyDown.Raise(press, handled);
    if (handled) {
        return true;
    }
    if (press.key == Key::Tab) {
        return PressTab(press);
    }
    if (press.IsPlain() && selection.IsInData() && press.key == Key::F2) {
        editor.Open();
        return true;
    }
    if (press.IsPlain() && selection.IsInData() && press.key == Key::Delete) {
        block.Clear();
        return true;
    }
    return selection.MoveByKey(press);
}

/// Goes from cell to cell; at the ends of the data the focus leaves the grid.
bool Grid::PressTab(const KeyPress& press) {
    if (press.ctrl || press.alt) {
        return false;
    }
    const bool moved = selection.MoveByTab(press.shift);
    if (!moved) {
        editor.Commit();
    }
    return moved;
}

void Grid::PressMouse(MouseButton button, int row, int column) {
    if (TakeFocus()) {
        mouseDown.Raise(button, row, column);
    }
}

void Grid::SelectAll() {
    if (TakeFocus()) {
        selection.SelectAll();
    }
}

void Grid::Paste(std::string_view text) {
    if (TakeFocus() && !text.empty()) {
        block.Paste(text);
    }
}

} // namespace zy
