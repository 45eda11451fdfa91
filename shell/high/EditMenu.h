#pragma once

#include <string_view>
#include <vector>

#include "shell/Editor.h"
#include "shell/TraceChannel.h"
#include "shell/frmGlobalSettings.h"

namespace zy {

/// Undo and Redo of the main window's Edit menu, for the editor in charge. What the menu does with the
/// clipboard is the view's: that works on what is selected on the screen.
class EditMenu {
  public:
    /// All of these must outlive it.
    EditMenu(frmGlobalSettings& window, const std::vector<Editor*>& editors, TraceChannel& trace);

    void mnuUndo_Click();
    void mnuRedo_Click();

  private:
    void Trace(std::string_view procedure);
    /// Names what the two entries would do, and lets them be chosen where there is something.
    void Show();

    frmGlobalSettings& window_;
    TraceChannel& trace_;
};

} // namespace zy
