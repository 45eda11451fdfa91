#include "desktop/FocusBinding.h"

#include <wx/window.h>

#include "desktop/ControlBinding.h"

namespace zy {

FocusBinding::FocusBinding(const ViewContext& context, Form& form, wxWindow& window)
    : context_(context), form_(form), focusChanged_(form.focusChanged.Observe([this] { Show(); })) {
    window.Bind(wxEVT_CHILD_FOCUS, [this](wxChildFocusEvent& event) {
        event.Skip();
        context_.gate.ActLater([this] { return TakeMove(); });
    });
}

bool FocusBinding::TakeMove() {
    // The focus may have gone on since, also to another program.
    auto* focused = context_.controls.Find(wxWindow::FindFocus());
    return focused == nullptr || focused->Model().TakeFocus();
}

void FocusBinding::Show() {
    auto* focused = context_.controls.Find(form_.Focused());
    if (focused != nullptr && focused->Model().IsUsable()) {
        focused->TakeFocus();
    }
}

} // namespace zy
