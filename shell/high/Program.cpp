#include "shell/Program.h"

namespace zy {

Program::Options Program::WithOwnParts(Options given) {
    if (given.security == nullptr) {
        given.security = &securityPage;
    }
    if (given.units == nullptr) {
        given.units = &unitsPage;
    }
    if (given.placement == nullptr) {
        given.placement = &registryEdit;
    }
    if (given.minSize == nullptr) {
        given.minSize = &subClasser;
    }
    return given;
}

Program::Program(const World& outside) : Program(outside, Options()) {}

Program::Program(const World& outside, const Options& given)
    : world(outside), trace(world.traceServers, world.system.ExecutableName()), rules(world, trace),
      rulesPage(rules, form, state, trace, world), securityPage(form, state, trace, world),
      unitsPage(form, state, trace, world), registryEdit(world, window), subClasser(world.window, state),
      options(WithOwnParts(given)), window({form, state, trace, world, rules, rulesPage, *options.security,
                                            *options.units, *options.placement, *options.minSize}),
      helpMenu(form.menu, trace, world) {
    securityPage.users.loginCancelled.Connect([this] { window.Unload(); });
    helpMenu.ConnectButton(rulesPage.controls.cmdHelpRules);
    helpMenu.ConnectButton(securityPage.controls.cmdHelpSecurity);
    helpMenu.ConnectButton(unitsPage.controls.cmdHelpUnits);
}

} // namespace zy
