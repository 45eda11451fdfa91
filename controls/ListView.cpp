#include "controls/ListView.h"

#include <utility>

#include "basics/RuntimeError.h"

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

void ListView::Pick(int item) {
    if (!TakeFocus() || item == selected_) {
        selectionChanged.Raise();
        return;
    }
    Select(item);
    itemClick.Raise(item);
}

void ListView::Press(const KeyPress& press) {
    if (TakeFocus()) {
        keyDown.Raise(press);
    }
}

} // namespace zy
