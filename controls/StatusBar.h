#pragma once

#include <string_view>

#include "controls/Control.h"

namespace zy {

/// The line of short texts at the window's foot.
class StatusBar : public Control {
  public:
    using Control::Control;

    const std::string& Text() const { return text_; }
    /// Raises `change` when the text differs from the one held.
    void SetText(std::string_view text);

    Event<> change;

  private:
    std::string text_;
};

} // namespace zy
