#pragma once

#include <optional>
#include <string>

#include "controls/Event.h"
#include "platform/World.h"
#include "rules/RulesPage.h"
#include "rules/mRules.h"
#include "security/SecurityPage.h"
#include "shell/EditMenu.h"
#include "shell/HelpMenu.h"
#include "shell/ListSession.h"
#include "shell/Recovery.h"
#include "shell/RulesMenu.h"
#include "shell/SettingsForm.h"
#include "shell/SubClasser.h"
#include "shell/TraceChannel.h"
#include "shell/frmGlobalSettings.h"
#include "shell/mRegistryEdit.h"
#include "shell/mZYGlobal.h"
#include "units/UnitsPage.h"

namespace zy {

/// Everything that one run of the program consists of, short of the outside world.
class Program {
  public:
    explicit Program(const World& outside);

    /// An editor is about to load its list from this file. What that holds is to be told to `file`.
    void Open(const std::string& path, Editor& editor, VersionKeeper::Keeps keeps);
    /// Says in the status bar where the note of an earlier run that broke off is, where there is one.
    void TellOfCrash(const std::optional<std::string>& note);
    /// Says in the status bar that this run goes without the session bus.
    void TellOfSilentBus();
    /// Calls what stands around the list of the editor that was started; nothing before one was.
    void WithList(void (ListSession::*call)());

    /// The editor that is about to start will read passwords.
    Event<> secretsAhead;

    World world;
    SharedState state;
    TraceChannel trace;
    SettingsForm form;
    mRules rules;
    RuleChecks ruleChecks;
    RulesPage rulesPage;
    SecurityPage securityPage;
    UnitsPage unitsPage;
    mRegistryEdit registryEdit;
    SubClasser subClasser;
    frmGlobalSettings window;
    std::optional<ListFile> file; ///< of the editor that was started
    std::optional<ListSession> list;
    EditMenu editMenu;
    RulesMenu rulesMenu;
    HelpMenu helpMenu;
    Recovery recovery;
};

} // namespace zy
