#pragma once

#include <span>

#include "controls/CommandButton.h"
#include "controls/ListView.h"
#include "shell/SettingsForm.h"

namespace zy {

// What the layouts of the three pages share, in twips.

inline constexpr int kPageMargin = 50; ///< round a page's frames
inline constexpr int kGap = 100;       ///< between controls, and between them and the frame round them

/// Gives a control its place. A size that would not be positive is left as it is.
void Place(Control& control, const Rect& wanted);

/// Lets a page's frame fill the window above the status bar.
void PlacePageFrame(Frame& frame, const SettingsForm& form);
/// The least inner size of a window whose page's frame needs that much.
Size LeastInnerSize(const Size& frame, const SettingsForm& form);

/// Where the content of a frame begins, below its caption.
int ContentTop(const Frame& frame);

/// Gives the last column of a list the width that the others leave, but no less than this.
void FillWithLastColumn(ListView& list, int least);

/// A row of buttons of one size at the foot of a page's frame. A text that needs more room than the designed
/// sizes give gets it.
class ButtonStrip {
  public:
    ButtonStrip(std::span<CommandButton* const> buttons, const Rect& frame);

    /// The least size of a frame that holds a strip of these buttons below something of that size.
    static Size LeastFrame(std::span<CommandButton* const> buttons, const Size& above);

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
