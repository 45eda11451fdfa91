#pragma once

#include "controls/Control.h"

namespace zy {

/// A text that can be clicked like a button, such as a web address.
class LinkLabel : public Control {
  public:
    using Control::Control;

    /// The user clicks it.
    void Click();

    Event<> click;
};

} // namespace zy
