#pragma once

#include <string_view>

#include "platform/CodePage.h"
#include "platform/Dialogs.h"
#include "rules/RulesPage.h"
#include "rules/mRules.h"
#include "shell/MainMenu.h"
#include "shell/TraceChannel.h"

namespace zy {

/// What the rules editor alone has in the menu Edit and in the menu of its list.
class RulesMenu {
  public:
    /// All of these must outlive it.
    RulesMenu(MainMenu& menu, const mRules& rules, RulesPage& page, Dialogs& dialogs, TraceChannel& trace,
              const CodePage& codePage);

    /// Offers the published sets, and appends the rules that the user chooses.
    void mnuStandardRules_Click();

  private:
    const mRules& rules_;
    RulesPage& page_;
    Dialogs& dialogs_;
    TraceChannel& trace_;
    const CodePage& codePage_;
};

} // namespace zy
