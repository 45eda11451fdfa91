#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "shell/Editor.h"
#include "shell/ListSession.h"
#include "shell/TraceChannel.h"
#include "shell/frmGlobalSettings.h"

namespace zy {

/// The main window's Edit menu, for the editor in charge. What the menu does with the
/// clipboard is the view's: that works on what is selected on the screen.
class EditMenu {
  public:
    /// All of these must outlive it.
    EditMenu(frmGlobalSettings& window, const std::vector<Editor*>& editors, std::optional<ListSession>& list,
             TraceChannel& trace);

    void mnuUndo_Click();
    void mnuRedo_Click();
    void mnuChanges_Click() { ShowOfList("mnuChanges_Click", &ListSession::ShowUnsavedChanges); }
    void mnuOthers_Click() { ShowOfList("mnuOthers_Click", &ListSession::ShowChangesByOthers); }
    void mnuVersions_Click() { ShowOfList("mnuVersions_Click", &ListSession::ShowEarlierVersions); }

  private:
    void Trace(std::string_view procedure);
    void ShowOfList(std::string_view procedure, void (ListSession::*show)());
    /// Names what the two entries would do, and lets them be chosen where there is something.
    void Show();

    frmGlobalSettings& window_;
    TraceChannel& trace_;
    std::optional<ListSession>& list_; ///< of the editor in charge
};

} // namespace zy
