#include "controls/ListView.h"

#include <utility>

#include "basics/RuntimeError.h"
#include "basics/Text.h"
#include "controls/CopiedCells.h"

namespace zy {

ListView::ListView(Container* parent, std::string name, std::vector<Column> columns, Source source)
    : Control(parent, std::move(name)), columns_(std::move(columns)), source_(std::move(source)) {}

void ListView::SetColumnWidth(std::size_t column, int width) {
    if (columns_.at(column).width != width) {
        columns_[column].width = width;
        appearanceChanged.Raise();
    }
}

void ListView::Refill(int count) {
    count_ = count;
    selected_ = 0;
    refilled.Raise();
}

void ListView::RemoveSelected() {
    if (selected_ == 0) {
        RaiseSubscriptOutOfRange();
    }
    const int removed = std::exchange(selected_, 0);
    --count_;
    itemRemoved.Raise(removed);
}

void ListView::Select(int item) {
    if (item < 0 || item > count_) {
        RaiseSubscriptOutOfRange();
    }
    selected_ = item;
    selectionChanged.Raise();
}

std::string ListView::Copy() const {
    std::string text;
    const int columns = selected_ == 0 ? 0 : static_cast<int>(columns_.size());
    for (int column = 0; column < columns; ++column) {
        AppendCopied(text, CellText(selected_, column));
        text += column + 1 < columns ? "\t" : kLineEnd;
    }
    return text;
}

void ListView::Pick(int item) {
    if (!TakeFocus() || item == selected_) {
        selectionChanged.Raise();
        return;
    }
    Select(item);
    itemClick.Raise(item);
}

void ListView::AskForMenu() {
    if (TakeFocus()) {
        menuAsked.Raise();
    }
}

void ListView::Press(const KeyPress& press) {
    if (TakeFocus()) {
        keyDown.Raise(press);
    }
}

} // namespace zy
