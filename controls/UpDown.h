#pragma once

#include "controls/Control.h"

namespace zy {

/// A pair of arrows.
class UpDown : public Control {
  public:
    using Control::Control;

    /// The user presses an arrow.
    void PressUp();
    void PressDown();

    Event<> upClick;
    Event<> downClick;
};

} // namespace zy
