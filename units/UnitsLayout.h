#pragma once

#include "units/UnitsControls.h"

namespace zy {

/// Lays out the units page inside its frame, in twips: the arrows left of the grid, the buttons in a strip
/// below it. Where a text needs more room than the designed sizes give, the text wins.
void LayOutUnits(UnitsControls& controls, const Frame& fraUnits);

} // namespace zy
