#pragma once

#include "security/SecurityControls.h"
#include "shell/SettingsForm.h"

namespace zy {

/// Lays out the users page, in twips: its frame fills the window above the status bar, the grid stands at 50,
/// 50 in it and the buttons in a strip at the foot. A size that would not be positive is left as it is.
void LayOutSecurity(SecurityControls& controls, SettingsForm& form);

/// The least inner size of the window in which the page's controls have what they need.
Size LeastInnerSizeForSecurity(SecurityControls& controls, const SettingsForm& form);

} // namespace zy
