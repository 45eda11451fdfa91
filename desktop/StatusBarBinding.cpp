#include "desktop/StatusBarBinding.h"

#include <wx/frame.h>

#include "desktop/Native.h"

namespace zy {
namespace {

wxStatusBar* MakeStatusBar(wxWindow* parent) {
    auto* frame = static_cast<wxFrame*>(wxGetTopLevelParent(parent));
    // Menus would write their help texts over the status.
    frame->SetStatusBarPane(-1);
    return frame->CreateStatusBar();
}

} // namespace

StatusBarBinding::StatusBarBinding(const ViewContext& context, const Inside& inside, StatusBar& model)
    : ControlBinding(context, inside, model), model_(model), bar_(MakeStatusBar(Parent())), notice_(*bar_) {
    Keep(model_.change.Observe([this] { ShowText(); }));
    ShowText();
    Attach(bar_);
    SetAccessibleRole(*bar_, AccessibleRole::StatusBar);
    SetAccessibleName(*bar_, "Status");
}

void StatusBarBinding::ShowAppearance() {
    bar_->Show(model_.Visible());
}

void StatusBarBinding::ShowText() {
    const wxString text = Shown(model_.Text());
    bar_->SetStatusText(text);
    // The bar is drawn, so a screen reader gets its text apart.
    notice_.Say(text);
}

} // namespace zy
