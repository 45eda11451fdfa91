#include "desktop/FocusBinding.h"

#include "desktop/ControlBinding.h"
#include "desktop/Native.h"

namespace zy {

FocusBinding::FocusBinding(const ViewContext& context, Form& form, wxWindow& window)
    : context_(context), form_(form), focusChanged_(form.focusChanged.Observe([this] { Show(); })) {
    ObserveFocus(window, [this] {
        // A dialog may be gone before the step is taken.
        context_.gate.ActLater([this, open = std::weak_ptr(open_)] { return open.expired() || TakeMove(); });
    });
}

bool FocusBinding::TakeMove() {
    auto* focused = context_.controls.FindFocused();
    return focused == nullptr || focused->Model().TakeFocus();
}

void FocusBinding::ShowFirst() {
    if (form_.Focused() == nullptr) {
        context_.controls.FocusNext(nullptr);
    } else {
        Show();
    }
}

void FocusBinding::Show() {
    auto* focused = context_.controls.Find(form_.Focused());
    if (focused != nullptr && focused->Model().IsUsable() && !HoldsFocus(focused->Window())) {
        focused->TakeFocus();
    }
}

} // namespace zy
