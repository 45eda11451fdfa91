#pragma once

#include <string_view>

#include "controls/Control.h"

namespace zy {

/// The line of short texts at the window's foot. What it contains stands at its right end.
class StatusBar : public Container {
  public:
    using Container::Container;

    const std::string& Text() const { return text_; }
    /// Raises `change` when the text differs from the one held.
    void SetText(std::string_view text);

    Event<> change;

  private:
    std::string text_;
};

} // namespace zy
