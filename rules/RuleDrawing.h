#pragma once

#include "controls/DrawingBox.h"
#include "controls/Geometry.h"
#include "rules/RulePicture.h"

namespace zy {

/// A rule's picture in so much room, in twips: the chart with its lines, each with its code in front of it,
/// its points joined in the order of time, those that break the rule as diamonds, and the sentence below.
/// Where there is nothing to be drawn the sentence stands alone. It takes two lines at most; what is longer
/// is cut.
Drawing DrawingOf(const RulePicture& picture, const Size& room, const Lettering& letters);

/// Shows a rule's picture in a box, with its sentence as the description.
void Show(DrawingBox& box, RulePicture picture);

} // namespace zy
