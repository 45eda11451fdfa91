#pragma once

#include <string>

class wxImage;

namespace zy {

/// The bytes of a picture as a PNG file (ISO/IEC 15948): eight bits a colour, without transparency, in so
/// many points an inch. The toolkit's own writer is not in its make for Windows.
std::string PngFileOf(const wxImage& picture, int pointsPerInch);

} // namespace zy
