#pragma once

#include <string>

#include "controls/Control.h"
#include "controls/Drawing.h"

namespace zy {

/// Shows a drawing, which is made in the size that it is shown in. To a screen reader it is a picture with
/// the caption as its name and what the drawing says as its description.
class DrawingBox : public Control {
  public:
    using Draw = std::function<Drawing(const Size& room, const Lettering& letters)>;

    using Control::Control;

    /// Shows another drawing; none without a `draw`.
    void Show(const std::string& description, Draw draw);
    const std::string& Description() const { return description_; }
    /// What is to be shown now in so much room.
    Drawing DrawingIn(const Size& room, const Lettering& letters) const;

    /// What is shown is something else.
    Event<> changed;

  private:
    std::string description_;
    Draw draw_;
};

} // namespace zy
