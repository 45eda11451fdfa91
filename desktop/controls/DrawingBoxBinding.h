#pragma once

#include <string>

#include "controls/DrawingBox.h"
#include "desktop/ControlBinding.h"

class wxDC;

namespace zy {

/// A drawing, painted in the colours of the user's desktop. Nothing of it is painted before the window has
/// come to the screen and there is nothing else to do, so that no start waits for it.
class DrawingBoxBinding : public ControlBinding {
  public:
    DrawingBoxBinding(const ViewContext& context, const Inside& inside, DrawingBox& model);

  protected:
    /// Room for a chart and two lines of forty letters.
    void Measure() override;

  private:
    void ShowChange();
    void Idle();
    void PaintOn(wxDC& canvas);
    Drawing DrawingForWindow() const;

    DrawingBox& model_;
    bool isBlankSeen_ = false; ///< the window has come to the screen
    bool isOpen_ = false;      ///< and there was nothing else to do
    std::string described_;    ///< what a screen reader was told
};

} // namespace zy
