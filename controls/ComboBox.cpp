#include "controls/ComboBox.h"

#include <utility>

#include "basics/RuntimeError.h"

namespace zy {

ComboBox::ComboBox(Container* parent, std::string name, std::vector<std::string> items)
    : Control(parent, std::move(name)), items_(std::move(items)) {}

const std::string& ComboBox::Text() const {
    static const std::string none;
    return listIndex_ < 0 ? none : items_[static_cast<std::size_t>(listIndex_)];
}

void ComboBox::SetListIndex(int index) {
    if (index < -1 || index >= static_cast<int>(items_.size())) {
        RaiseSubscriptOutOfRange();
    }
    if (listIndex_ != index) {
        listIndex_ = index;
        click.Raise();
    }
}

void ComboBox::Pick(int index) {
    if (TakeFocus()) {
        SetListIndex(index);
    }
}

} // namespace zy
