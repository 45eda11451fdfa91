#pragma once

#include <wx/image.h>

namespace zy::test {

// How well something stands out on the screen: from 1 for what cannot be seen to 21 for black on white.

/// How much the text in a picture stands out from its background, which is the picture's commonest colour.
double TextContrast(const wxImage& picture);

/// How much that part of a picture has changed that has changed most. A mark has more than a few pixels.
double ChangeContrast(const wxImage& before, const wxImage& after);

} // namespace zy::test
