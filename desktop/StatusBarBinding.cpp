#include "desktop/StatusBarBinding.h"

#include <wx/frame.h>
#include <wx/panel.h>

#include <algorithm>
#include <array>
#include <vector>

#include "controls/LinkLabel.h"
#include "desktop/Native.h"
#include "desktop/Panels.h"

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
    auto* panel = MakeOuterPanel(*bar_);
    panel->Hide();
    panel->Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_TAB && !event.ControlDown() && !event.AltDown()) {
            GoOn(event.ShiftDown());
        } else {
            event.Skip();
        }
    });
    content_.window = panel;
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
    const auto* shown = ShownChild();
    content_.window->Show(shown != nullptr);
    if (shown == nullptr) {
        bar_->SetFieldsCount(1);
        return;
    }
    const wxRect place = Context().scale.ToPixels(shown->Bounds());
    content_.window->SetSize(place);
    content_.origin = place.GetPosition();
    for (const auto& child : children_) {
        child->ShowAppearance();
    }
    const std::array<int, 2> widths{-1, place.width};
    bar_->SetFieldsCount(static_cast<int>(widths.size()), widths.data());
    notice_.Say(Shown(shown->Children().front()->Caption()));
}

/// The toolkit's Tab would leave for the page.
void StatusBarBinding::GoOn(bool backwards) {
    const auto shown = ShownChild();
    auto parts = shown == nullptr ? std::vector<Control*>() : shown->Children();
    if (backwards) {
        std::reverse(parts.begin(), parts.end());
    }
    const auto focused =
        std::find_if(parts.begin(), parts.end(), [](Control* part) { return part->HasFocus(); });
    std::rotate(parts.begin(), focused, parts.end());
    const auto next = std::find_if(parts.begin() + (focused == parts.end() ? 0 : 1), parts.end(),
                                   [](Control* part) { return dynamic_cast<LinkLabel*>(part) != nullptr; });
    if (next != parts.end()) {
        Gate().Act([&] { (*next)->TakeFocus(); });
    }
}

const Container* StatusBarBinding::ShownChild() const {
    const auto& children = model_.Children();
    const auto shown =
        std::find_if(children.begin(), children.end(), [](const Control* child) { return child->Visible(); });
    return shown == children.end() ? nullptr : static_cast<const Container*>(*shown);
}

void StatusBarBinding::ShowText() {
    const wxString text = Shown(model_.Text());
    bar_->SetStatusText(text);
    // The bar is drawn, so a screen reader gets its text apart.
    notice_.Say(text);
}

} // namespace zy
