#include "controls/DrawingBox.h"

#include <utility>

namespace zy {

void DrawingBox::Show(const std::string& description, Draw draw) {
    description_ = description;
    draw_ = std::move(draw);
    changed.Raise();
}

Drawing DrawingBox::DrawingIn(const Size& room, const Lettering& letters) const {
    return draw_ ? draw_(room, letters) : Drawing();
}

} // namespace zy
