#include "desktop/Scale.h"

#include <cmath>

namespace zy {

int Scale::ToPixels(int twips) const {
    return static_cast<int>(std::lround(twips * pixelsPerTwip_));
}

wxRect Scale::ToPixels(const Rect& rect) const {
    const wxPoint topLeft(ToPixels(rect.left), ToPixels(rect.top));
    return {topLeft.x, topLeft.y, ToPixels(rect.Right()) - topLeft.x, ToPixels(rect.Bottom()) - topLeft.y};
}

wxSize Scale::ToPixels(const Size& size) const {
    return {static_cast<int>(std::ceil(size.width * pixelsPerTwip_)),
            static_cast<int>(std::ceil(size.height * pixelsPerTwip_))};
}

int Scale::ToTwips(int pixels) const {
    return static_cast<int>(std::ceil(pixels / pixelsPerTwip_));
}

Size Scale::ToTwips(const wxSize& size) const {
    return {ToTwips(size.x), ToTwips(size.y)};
}

} // namespace zy
