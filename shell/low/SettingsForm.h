#pragma once

#include <cstdint>

#include "basics/Bool16.h"
#include "controls/Decoration.h"
#include "controls/Form.h"
#include "controls/LinkLabel.h"
#include "controls/StatusBar.h"
#include "shell/MainMenu.h"

namespace zy {

/// `frmGlobalSettings` as far as the editors know it: the window with one frame for each of them, the status
/// bar, the menus and the mark of unsaved changes. What the window itself does is frmGlobalSettings's.
class SettingsForm : public Form {
  public:
    SettingsForm();

    /// Shows the notice with a text, in the status bar, so that nothing that is laid out has to move.
    void ShowNotice(const std::string& text);
    /// True when it had the keyboard, which now nothing has.
    bool HideNotice();
    bool HasNoticeFocus();

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
    /// What happened outside of the window, with what can be done about it.
    Frame fraNotice;
    TextLabel lblNotice;
    LinkLabel lblShow;
    LinkLabel lblLoad;
    LinkLabel lblIgnore;
    MainMenu menu;

  private:
    void LayOutNotice();
};

} // namespace zy
