#include "desktop/ControlBinding.h"

#include "desktop/Native.h"
#include "desktop/ShownText.h"

namespace zy {

wxString ControlBinding::Shown(std::string_view text) const {
    return ToShown(context_.codePage, text);
}

void ControlBinding::Attach(wxWindow* window) {
    window_ = window;
    window_->SetName(Shown(model_.Name()));
    if (dynamic_cast<Container*>(&model_) == nullptr) {
        context_.controls.Add(*this);
    }
    Keep(model_.appearanceChanged.Observe([this] { ShowAppearance(); }));
    Measure();
    ShowAppearance();
}

void ControlBinding::Measure() {
    model_.SetPreferred(context_.scale.ToTwips(window_->GetBestSize()));
}

void ControlBinding::ShowAppearance() {
    wxRect place = context_.scale.ToPixels(model_.Bounds());
    place.Offset(-inside_.origin);
    window_->SetSize(place);
    if (!model_.Enabled() && HoldsFocus(*window_)) {
        context_.controls.FocusNext(this);
    }
    window_->Enable(model_.Enabled());
    window_->Show(model_.Visible());
}

void ControlBinding::Rescale() {
    window_->InvalidateBestSize();
    Measure();
    ShowAppearance();
}

} // namespace zy
