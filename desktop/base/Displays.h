#pragma once

#include <wx/gdicmn.h>

#include <vector>

namespace zy {

// The screens that windows stand on, in pixels.

/// The room for windows on each screen, the first screen first.
std::vector<wxRect> RoomOnScreens();
/// The size of all screens together.
wxSize SizeOfScreens();

/// The room for windows on the screen where a window at this place stands; the whole place without a screen.
wxRect RoomFor(const wxRect& place, const std::vector<wxRect>& screens);
/// The place moved so that it lies inside the area as far as it fits in; its top left corner always does.
wxRect MovedInside(wxRect place, const wxRect& area);
/// The place as it is when the user can reach a window there by its title; else moved inside the nearest
/// screen.
wxRect Reachable(const wxRect& place, const std::vector<wxRect>& screens);

} // namespace zy
