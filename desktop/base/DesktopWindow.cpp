#include "desktop/DesktopWindow.h"

#include <algorithm>

#include "controls/Geometry.h"
#include "desktop/Displays.h"
#include "desktop/Native.h"
#include "desktop/Scale.h"

namespace zy {
namespace {

constexpr Size kDesignedSize{12000, 9600}; // twips

} // namespace

PixelPoint DesktopWindow::ScreenSize() {
    startToolkit_();
    const wxSize size = SizeOfScreens();
    return {size.x, size.y};
}

wxRect DesktopWindow::Place() {
    return place_ ? *place_ : DesignedPlace();
}

wxRect DesktopWindow::DesignedPlace() {
    startToolkit_();
    wxRect place(Scale(DotsPerInch()).ToPixels({0, 0, kDesignedSize.width, kDesignedSize.height}).GetSize());
    const auto screens = RoomOnScreens();
    if (screens.empty()) {
        return place;
    }
    const wxRect& room = screens.front();
    place.width = std::min(place.width, room.width);
    place.height = std::min(place.height, room.height);
    return place.CentreIn(room);
}

wxRect ToRect(const PixelRect& place) {
    return {place.left, place.top, place.right - place.left, place.bottom - place.top};
}

PixelRect ToPixelRect(const wxRect& place) {
    return {place.x, place.y, place.x + place.width, place.y + place.height};
}

} // namespace zy
