#include "shell/Program.h"

namespace zy {

Program::Options Program::WithOwnEditors(Options given) {
    if (given.security == nullptr) {
        given.security = &securityPage;
    }
    if (given.units == nullptr) {
        given.units = &unitsPage;
    }
    return given;
}

Program::Program(const World& outside) : Program(outside, Options()) {}

Program::Program(const World& outside, const Options& given)
    : world(outside), trace(world.traceServers, world.system.ExecutableName()), rules(world, trace),
      rulesPage(rules, form, state, trace, world), securityPage(form, state, trace, world),
      unitsPage(form, state, trace, world), options(WithOwnEditors(given)),
      window(
          {form, state, trace, world, rules, rulesPage, options.security, options.units, options.placement}) {
    securityPage.users.loginCancelled.Connect([this] { window.Unload(); });
    for (auto* button : {&rulesPage.controls.cmdHelpRules, &securityPage.controls.cmdHelpSecurity,
                         &unitsPage.controls.cmdHelpUnits}) {
        button->click.Connect([this] { window.ShowHelp(); });
    }
}

} // namespace zy
