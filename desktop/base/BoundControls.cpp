#include "desktop/BoundControls.h"

#include <algorithm>

#include "desktop/ControlBinding.h"
#include "desktop/Native.h"

namespace zy {
namespace {

template <typename Matches>
ControlBinding* FindWhere(const std::vector<ControlBinding*>& bindings, const Matches& matches) {
    const auto found = std::find_if(bindings.begin(), bindings.end(), matches);
    return found == bindings.end() ? nullptr : *found;
}

} // namespace

ControlBinding* BoundControls::Find(const Control* control) const {
    return FindWhere(bindings_, [&](const auto* each) { return &each->Model() == control; });
}

ControlBinding* BoundControls::FindFocused() const {
    return FindWhere(bindings_, [](const auto* each) { return HoldsFocus(each->Window()); });
}

void BoundControls::FocusNext(const ControlBinding* behind) const {
    auto inOrder = bindings_;
    const auto before = std::find(inOrder.begin(), inOrder.end(), behind);
    std::rotate(inOrder.begin(), before == inOrder.end() ? inOrder.begin() : before + 1, inOrder.end());
    auto* next = FindWhere(inOrder, [](const auto* each) {
        return each->Model().IsUsable() && each->Window().AcceptsFocusFromKeyboard();
    });
    if (next != nullptr) {
        next->TakeFocus();
    }
}

} // namespace zy
