#pragma once

#include <wx/textctrl.h>

#include <string>

#include "controls/TextBox.h"
#include "desktop/ControlBinding.h"

namespace zy {

/// A text box. What the user enters is taken character for character or, when the code page lacks one, not at
/// all.
class TextBoxBinding : public ControlBinding {
  public:
    TextBoxBinding(const ViewContext& context, const Inside& inside, TextBox& model);

  private:
    void TakeText();
    /// The part of the model's text that the box holds.
    std::string_view Held() const;
    void ShowText();
    void RememberSelection() { box_->GetSelection(&selectionStart_, &selectionEnd_); }

    TextBox& model_;
    wxTextCtrl* box_;
    /// The end of a text that is longer than the box takes. It is kept, out of reach.
    std::string beyond_;
    // The selection before the user's change, put back when the change is refused.
    long selectionStart_ = 0;
    long selectionEnd_ = 0;
};

} // namespace zy
