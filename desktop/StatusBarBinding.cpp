#include "desktop/StatusBarBinding.h"

#include <wx/frame.h>

#include <algorithm>
#include <array>

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
    content_.window = bar_;
    children_ = BindChildren(Context(), content_, model_);
    for (auto* child : model_.Children()) {
        Keep(child->appearanceChanged.Observe([this] { ShowContent(); }));
    }
}

void StatusBarBinding::ShowAppearance() {
    bar_->Show(model_.Visible());
}

void StatusBarBinding::Rescale() {
    ControlBinding::Rescale();
    for (const auto& child : children_) {
        child->Rescale();
    }
}

void StatusBarBinding::ShowContent() {
    const auto& children = model_.Children();
    const auto shown = std::find_if(children.begin(), children.end(),
                                    [](const Control* child) { return child->Visible(); });
    if (shown == children.end()) {
        bar_->SetFieldsCount(1);
        return;
    }
    const int room = Context().scale.ToPixels((*shown)->Bounds().width);
    const std::array<int, 2> widths{-1, room};
    bar_->SetFieldsCount(static_cast<int>(widths.size()), widths.data());
    const auto& parts = static_cast<const Container*>(*shown)->Children();
    notice_.Say(Shown(parts.front()->Caption()));
}

void StatusBarBinding::ShowText() {
    const wxString text = Shown(model_.Text());
    bar_->SetStatusText(text);
    // The bar is drawn, so a screen reader gets its text apart.
    notice_.Say(text);
}

} // namespace zy
