#include "shell/Program.h"

namespace zy {

Program::Program(const World& outside)
    : world(outside), trace(world.traceServers, world.system.ExecutableName()), rules(world, trace),
      rulesPage(rules, form, state, trace, world), securityPage(form, state, trace, world),
      unitsPage(form, state, trace, world), registryEdit(world.registry, world.window),
      subClasser(world.window, state), window({form, state, trace, world.dialogs, rulesPage, securityPage,
                                               unitsPage, registryEdit, subClasser}),
      helpMenu(form.menu, trace, world) {
    securityPage.users.loginCancelled.Connect([this] { window.Unload(); });
    helpMenu.ConnectButton(rulesPage.controls.cmdHelpRules);
    helpMenu.ConnectButton(securityPage.controls.cmdHelpSecurity);
    helpMenu.ConnectButton(unitsPage.controls.cmdHelpUnits);
}

} // namespace zy
