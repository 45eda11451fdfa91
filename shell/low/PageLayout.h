#pragma once

#include <span>

#include "controls/CommandButton.h"
#include "shell/SettingsForm.h"

namespace zy {

// What the layouts of the units and the users page share, in twips.

inline constexpr int kPageMargin = 50; ///< round a page's frame

/// Gives a control its place. A size that would not be positive is left as it is.
void Place(Control& control, const Rect& wanted);

/// Lets a page's frame fill the window above the status bar.
void PlacePageFrame(Frame& frame, const SettingsForm& form);

/// A row of buttons of one size at the foot of a page's frame. A text that needs more room than the designed
/// sizes give gets it.
class ButtonStrip {
  public:
    ButtonStrip(std::span<CommandButton* const> buttons, const Rect& frame);

    /// The strip's place in the frame.
    const Rect& Bounds() const { return bounds_; }
    /// Places the buttons, from left to right, by the strip's corner in their container.
    void PlaceButtons(int left, int top) const;

  private:
    std::span<CommandButton* const> buttons_;
    Size button_;
    Rect bounds_;
};

} // namespace zy
