#include "controls/StatusBar.h"

namespace zy {

void StatusBar::SetText(std::string_view text) {
    if (text_ != text) {
        text_ = text;
        change.Raise();
    }
}

} // namespace zy
