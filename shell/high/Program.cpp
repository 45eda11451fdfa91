#include "shell/Program.h"

#include "shell/StatusTexts.h"

namespace zy {

Program::Program(const World& outside)
    : world(outside), trace(world.traceServers, world.system.ExecutableName()),
      rules(world.files, world.system, trace),
      ruleChecks(rules.gaRules, world.system, world.dialogs, world.codePage, trace),
      rulesPage(rules, ruleChecks, form, state, trace, world.system, world.dialogs, world.codePage),
      securityPage(form, state, trace, world.files, world.recycleBin, world.system, world.dialogs,
                   world.codePage),
      unitsPage(form, state, trace, world.files, world.dialogs), registryEdit(world.registry, world.window),
      subClasser(world.window, state), window({form, state, trace, world.dialogs, rulesPage, securityPage,
                                               unitsPage, registryEdit, subClasser}),
      editMenu(window, {&rulesPage, &securityPage, &unitsPage}, list, trace),
      rulesMenu(form.menu, rules, rulesPage, world, trace),
      helpMenu(form.menu, trace, world.system, world.dialogs, world.help, world.links),
      recovery(world.files, world.journals, world.system, world.dialogs) {
    securityPage.users.loginCancelled.Connect([this] { window.Unload(); });
    recovery.reported.Connect([this](const std::string& report) { AddHint(form.zyStatusBar, report); });
    // What a grid of units takes its texts from is what its file held, so that memory has it once.
    unitsPage.units.taken.Connect([this](const SharedText& text) {
        if (file) {
            file->TakeUp(text);
        }
    });
    window.idle.Connect([this] { recovery.Idle(); });
    window.idle.Connect([this] { WithList(&ListSession::Idle); });
    window.activated.Connect([this] { WithList(&ListSession::Activated); });
    window.otherPart.Connect([this] { WithList(&ListSession::GoToOtherPart); });
    window.ending.Connect([this] { recovery.Sync(); });
    window.unloaded.Connect([this] { recovery.End(); });
    helpMenu.ConnectButton(rulesPage.controls.cmdHelpRules);
    helpMenu.ConnectButton(securityPage.controls.cmdHelpSecurity);
    helpMenu.ConnectButton(unitsPage.controls.cmdHelpUnits);
}

void Program::Open(const std::string& path, Editor& editor, VersionKeeper::Keeps keeps) {
    file.emplace(world.files, path);
    list.emplace(world, form, *file, editor, keeps);
    list->rebased.Connect([this] { recovery.GoOnFromFile(); });
}

void Program::TellOfCrash(const std::optional<std::string>& note) {
    if (note) {
        const auto hint = "ZY Setup broke off the last time it ran; its support needs " + *note;
        AddHint(form.zyStatusBar, hint);
    }
}

void Program::TellOfSilentBus() {
    AddHint(form.zyStatusBar, "The session bus does not answer: screen readers do not reach this window");
}

void Program::WithList(void (ListSession::*call)()) {
    if (list) {
        (*list.*call)();
    }
}

} // namespace zy
