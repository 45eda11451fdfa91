#pragma once

#include <initializer_list>
#include <vector>

#include "controls/CommandButton.h"
#include "controls/Decoration.h"
#include "controls/Form.h"
#include "controls/ListView.h"

namespace zy {

// What the layouts of the dialogs share that show lists and can be made larger, in twips.

/// Where the parts of such a dialog stand: texts below one another, room for lists, and a row of buttons at
/// the foot, to the right.
class ListDialogLayout {
  public:
    /// Gives the form its usual size, where nobody has given it another one.
    explicit ListDialogLayout(Form& form, int usualHeight = 7200);

    /// The size below which it cannot be made smaller.
    static Size Least() { return {kLeastWidth, kLeastHeight}; }

    /// A text at the top, below those before. One that is hidden takes no room.
    void Add(TextLabel& label);
    /// At the foot, from the left to the right, above those before.
    void Add(std::initializer_list<CommandButton*> buttons);
    /// What room is left between them, in as many parts, one below another.
    std::vector<Rect> Rooms(int count) const;

  private:
    static constexpr int kLeastWidth = 7000;
    static constexpr int kLeastHeight = 5000;

    Size size_;
    int top_;
    int bottom_;
};

/// A list in a frame of its own, all of its room; the last column takes what the others leave.
void PlaceList(Frame& frame, ListView& list, const Rect& room);

} // namespace zy
