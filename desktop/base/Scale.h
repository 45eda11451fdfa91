#pragma once

#include <wx/gdicmn.h>

#include "controls/Geometry.h"

namespace zy {

/// Twips and the pixels of the display.
class Scale {
  public:
    explicit Scale(double dotsPerInch) : pixelsPerTwip_(dotsPerInch / kTwipsPerInch) {}

    double TwipsPerPixel() const { return 1 / pixelsPerTwip_; }
    /// The nearest pixel.
    int ToPixels(int twips) const;
    /// Places are rounded by their edges, so that neighbours stay neighbours.
    wxRect ToPixels(const Rect& rect) const;
    /// The fewest pixels that hold so many twips.
    wxSize ToPixels(const Size& size) const;
    /// The fewest twips that are at least so many pixels again.
    int ToTwips(int pixels) const;
    Size ToTwips(const wxSize& size) const;

  private:
    double pixelsPerTwip_;
};

} // namespace zy
