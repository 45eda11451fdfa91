#pragma once

namespace zy {

// Lengths are in twips, 15 to a pixel on a display of 96 pixels per inch.
inline constexpr double kTwipsPerInch = 1440;

struct Size {
    int width = 0;
    int height = 0;

    friend bool operator==(const Size&, const Size&) = default;
};

/// A place inside the container that holds the control.
struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    int Right() const { return left + width; }
    int Bottom() const { return top + height; }

    friend bool operator==(const Rect&, const Rect&) = default;
};

} // namespace zy
