#include "desktop/Displays.h"

#include <wx/display.h>

#include <algorithm>

namespace zy {
namespace {

/// How far a coordinate lies outside of a range.
int Beyond(int value, int first, int last) {
    return std::max({first - value, value - last, 0});
}

double DistanceTo(const wxRect& screen, const wxPoint& point) {
    const double x = Beyond(point.x, screen.GetLeft(), screen.GetRight());
    const double y = Beyond(point.y, screen.GetTop(), screen.GetBottom());
    return x * x + y * y;
}

bool ShowsTitle(const wxRect& screen, const wxRect& place) {
    constexpr int kTitleHeight = 24;
    constexpr int kGrip = 48; // enough to take hold of
    const wxRect seen = screen.Intersect({place.x, place.y, place.width, kTitleHeight});
    return seen.width >= std::min(kGrip, place.width) && seen.height >= kTitleHeight / 2;
}

} // namespace

std::vector<wxRect> RoomOnScreens() {
    std::vector<wxRect> screens;
    for (unsigned i = 0; i < wxDisplay::GetCount(); ++i) {
        screens.push_back(wxDisplay(i).GetClientArea());
    }
    return screens;
}

wxSize SizeOfScreens() {
    wxRect all;
    for (unsigned i = 0; i < wxDisplay::GetCount(); ++i) {
        all.Union(wxDisplay(i).GetGeometry());
    }
    return all.GetSize();
}

wxRect MovedInside(wxRect place, const wxRect& area) {
    place.x = std::max(area.x, std::min(place.x, area.x + area.width - place.width));
    place.y = std::max(area.y, std::min(place.y, area.y + area.height - place.height));
    return place;
}

wxRect RoomFor(const wxRect& place, const std::vector<wxRect>& screens) {
    const wxPoint middle(place.x + place.width / 2, place.y + place.height / 2);
    const auto nearest =
        std::min_element(screens.begin(), screens.end(), [&](const auto& one, const auto& other) {
            return DistanceTo(one, middle) < DistanceTo(other, middle);
        });
    return nearest == screens.end() ? place : *nearest;
}

wxRect Reachable(const wxRect& place, const std::vector<wxRect>& screens) {
    const auto reachable = [&](const wxRect& screen) { return ShowsTitle(screen, place); };
    if (screens.empty() || std::any_of(screens.begin(), screens.end(), reachable)) {
        return place;
    }
    return MovedInside(place, RoomFor(place, screens));
}

} // namespace zy
