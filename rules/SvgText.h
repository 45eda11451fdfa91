#pragma once

#include <string>

#include "controls/Drawing.h"
#include "controls/Geometry.h"
#include "platform/CodePage.h"

namespace zy {

// Drawings as Scalable Vector Graphics 1.1, on white.

/// The letters of such a picture: those of the usual sans-serif fonts, which are all as wide as each other.
Lettering SvgLettering();

/// The text of a picture of that size in twips, in UTF-8. The title is for who cannot see it.
std::string SvgOf(const Drawing& drawing, const Size& size, const std::string& title,
                  const CodePage& codePage);

} // namespace zy
