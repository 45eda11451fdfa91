#pragma once

#include "shell/SettingsForm.h"
#include "units/UnitsControls.h"

namespace zy {

/// Lays out the units page, in twips: its frame in the window, inside it the arrows, the grid at their right
/// and the buttons in a strip at the foot. A text that needs more room than the designed sizes give gets it.
/// A size that would not be positive is left as it is.
void LayOutUnits(UnitsControls& controls, SettingsForm& form);

/// The least inner size of the window in which the page's controls have what they need.
Size LeastInnerSizeForUnits(UnitsControls& controls, const SettingsForm& form);

} // namespace zy
