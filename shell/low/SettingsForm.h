#pragma once

#include <cstdint>

#include "basics/Bool16.h"
#include "controls/Form.h"
#include "controls/StatusBar.h"
#include "shell/MainMenu.h"

namespace zy {

/// `frmGlobalSettings` as far as the editors know it: the window with one frame for each of them, the status
/// bar, the menus and the mark of unsaved changes. What the window itself does is frmGlobalSettings's.
class SettingsForm : public Form {
  public:
    SettingsForm();

    /// Unsaved changes on the rules or the units page.
    Bool16 ChangeFlag;
    /// The minimum size that the registry holds, in twips. Read and kept, but the window is bounded by fixed
    /// numbers.
    std::int16_t MinWidth = 0;
    std::int16_t MinHeight = 0;

    Frame fraRules;
    Frame fraSecurity;
    Frame FraUnits;
    StatusBar zyStatusBar;
    MainMenu menu;
};

} // namespace zy
