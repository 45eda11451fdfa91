#include "desktop/UpDownBinding.h"

#include <wx/panel.h>
#include <wx/settings.h>
#include <wx/sizer.h>

#include <functional>

#include "desktop/Keys.h"
#include "desktop/Native.h"
#include "desktop/Panels.h"
#include "desktop/Pictures.h"

namespace zy {

UpDownBinding::UpDownBinding(const ViewContext& context, const Inside& inside, UpDown& model)
    : ControlBinding(context, inside, model), model_(model), both_(MakeInnerPanel(*Parent())) {
    const int size = both_->GetCharHeight();
    const auto colour = wxSystemSettings::GetColour(wxSYS_COLOUR_BTNTEXT);
    up_ = MakeArrow(" up", UpArrow(size, colour), &UpDown::PressUp);
    down_ = MakeArrow(" down", DownArrow(size, colour), &UpDown::PressDown);

    auto* halves = new wxBoxSizer(wxVERTICAL);
    halves->Add(up_, wxSizerFlags(1).Expand());
    halves->Add(down_, wxSizerFlags(1).Expand());
    both_->SetSizer(halves);
    Attach(both_);
}

wxBitmapButton* UpDownBinding::MakeArrow(const wxString& direction, const wxBitmapBundle& picture,
                                         void (UpDown::*press)()) {
    auto* arrow = new wxBitmapButton(both_, wxID_ANY, picture);
    const wxString name = Shown(model_.Caption()) + direction;
    arrow->SetToolTip(name);
    SetAccessibleName(*arrow, name);
    arrow->Bind(wxEVT_BUTTON, [this, press](wxCommandEvent&) { Press(press); });
    arrow->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) { PressKey(event); });
    return arrow;
}

void UpDownBinding::Press(void (UpDown::*press)()) {
    Gate().Act([&] { std::invoke(press, model_); });
}

void UpDownBinding::PressKey(wxKeyEvent& event) {
    const auto press = KeyPressOf(event);
    if (press && press->alt && press->key == Key::Up) {
        Press(&UpDown::PressUp);
    } else if (press && press->alt && press->key == Key::Down) {
        Press(&UpDown::PressDown);
    } else {
        event.Skip();
    }
}

} // namespace zy
