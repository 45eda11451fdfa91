#pragma once

#include <wx/bmpbuttn.h>

#include "controls/UpDown.h"
#include "desktop/ControlBinding.h"

namespace zy {

/// A pair of arrows, the upper above the lower. Alt with the arrow keys presses them as well, while one has
/// the focus.
class UpDownBinding : public ControlBinding {
  public:
    UpDownBinding(const ViewContext& context, const Inside& inside, UpDown& model);

    void TakeFocus() override { up_->SetFocus(); }

  private:
    wxBitmapButton* MakeArrow(const wxString& direction, const wxBitmapBundle& picture,
                              void (UpDown::*press)());
    void PressKey(wxKeyEvent& event);
    void Press(void (UpDown::*press)());

    UpDown& model_;
    wxWindow* both_;
    wxBitmapButton* up_ = nullptr;
    wxBitmapButton* down_ = nullptr;
};

} // namespace zy
