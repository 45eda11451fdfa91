#include "controls/UpDown.h"

namespace zy {

void UpDown::PressUp() {
    if (TakeFocus()) {
        upClick.Raise();
    }
}

void UpDown::PressDown() {
    if (TakeFocus()) {
        downClick.Raise();
    }
}

} // namespace zy
