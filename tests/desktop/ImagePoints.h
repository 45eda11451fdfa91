#pragma once

#include <wx/image.h>

namespace zy::test {

/// How many points of a picture are of a kind: isOfIt(red, green, blue), each 0 to 255.
template <typename Kind>
int CountPoints(const wxImage& picture, Kind isOfIt) {
    int count = 0;
    for (int y = 0; y < picture.GetHeight(); ++y) {
        for (int x = 0; x < picture.GetWidth(); ++x) {
            count += isOfIt(picture.GetRed(x, y), picture.GetGreen(x, y), picture.GetBlue(x, y)) ? 1 : 0;
        }
    }
    return count;
}

} // namespace zy::test
