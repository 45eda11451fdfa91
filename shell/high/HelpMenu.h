#pragma once

#include <string_view>

#include "controls/CommandButton.h"
#include "platform/Dialogs.h"
#include "platform/HelpSystem.h"
#include "platform/ShellLinks.h"
#include "platform/SystemInfo.h"
#include "shell/MainMenu.h"
#include "shell/TraceChannel.h"

namespace zy {

/// The handlers of the main window's Help menu, and of the Help buttons of its pages.
class HelpMenu {
  public:
    HelpMenu(MainMenu& menu, TraceChannel& trace, SystemInfo& system, Dialogs& dialogs, HelpSystem& help,
             ShellLinks& links);

    /// Lets a button open the help file at its contents, not at a topic of its editor.
    void ConnectButton(CommandButton& button);

    void mnuContents_Click();
    void mnuIndex_Click();
    void mnuWebProducts_Click();
    void mnuWebAcademy_Click();
    void mnuWebMentorDesk_Click();
    void mnuWebHome_Click();
    void mnuAbout_Click();

  private:
    void Start(std::string_view procedure);
    void ShowHelp(HelpCommand command);
    /// A page of the maker's web site.
    void OpenPage(std::string_view path);

    TraceChannel& trace_;
    SystemInfo& system_;
    Dialogs& dialogs_;
    HelpSystem& help_;
    ShellLinks& links_;
};

} // namespace zy
