#pragma once

#include <string_view>

#include "controls/Control.h"

namespace zy {

/// A box for one line of text.
class TextBox : public Control {
  public:
    using Control::Control;

    const std::string& Text() const { return text_; }
    /// Raises `change` when the text differs from the one held. The selection goes to the start.
    void SetText(std::string_view text);

    /// The character that stands for each one of the text on the screen; NUL shows the text itself.
    char PasswordChar() const { return passwordChar_; }
    void SetPasswordChar(char character) { passwordChar_ = character; }

    std::size_t SelStart() const { return selStart_; }
    std::size_t SelLength() const { return selLength_; }
    /// Selects part of the text; what lies beyond its end is cut.
    void Select(std::size_t start, std::size_t length);

    /// The user types: the selection is replaced and the caret stands behind what was typed.
    void Type(std::string_view text);
    /// The user changed the text in the view that shows it.
    void Enter(std::string_view text);

    /// The text changed, by the program or by the user.
    Event<> change;
    Event<> selectionChanged;

  private:
    std::string text_;
    char passwordChar_ = '\0';
    std::size_t selStart_ = 0;
    std::size_t selLength_ = 0;
};

} // namespace zy
