#include "shell/mMain.h"

#include <string>

#include "rules/RulesFormat.h"
#include "security/SecurityFileLocation.h"
#include "shell/Program.h"
#include "shell/SaveTurn.h"
#include "shell/mZYGlobal.h"

namespace zy {
namespace {

constexpr std::string_view kModule = "mZYGlobal";
constexpr std::string_view kProcedure = "mMain";

void ComputePaths(Program& program) {
    const std::string systemDir = GetSystemDir(program.world.system);
    auto& state = program.state;
    state.gsRulesFile = systemDir + std::string(kRulesFileName);
    // In every mode, and before gsSystemDir is set: the look-up asks for the system directory itself.
    state.gsSecurityFile = SecurityFileLocation(program.world.files, program.world.system,
                                                program.world.codePage, program.trace);
    state.gsUnitsFile = systemDir + "ZYUNITS.SYS";
    state.gsSystemDir = systemDir;
}

/// In the turn to save, so that what another program is just saving is read whole.
void LoadRules(Program& program) {
    const SaveTurn turn(program.world.files, program.state.gsRulesFile);
    program.Open(program.state.gsRulesFile, program.rulesPage, VersionKeeper::Keeps::Versions);
    program.file->TakeUp(program.file->Read());
    program.rules.Build_Rules_Array();
    if (turn.IsMine()) {
        program.rules.LookForDangers();
    }
}

StartUp StartRules(Program& program) {
    program.trace.DebugTrace(kModule, kProcedure, "Rules Mode Started");
    LoadRules(program);
    program.window.ShowRules();
    program.state.gbRulesMode = true;
    program.state.gbSecurityMode = false;
    program.state.gbUnitsMode = false;
    program.state.gbChanged = false;
    program.rulesPage.ResizeRuleTab();
    program.window.Show();
    program.recovery.Begin({"rules", &*program.file}, program.rulesPage.Steps());
    return StartUp::WindowShown;
}

StartUp StartSecurity(Program& program) {
    program.secretsAhead.Raise();
    program.Open(program.securityPage.users.TablePath(), program.securityPage, VersionKeeper::Keeps::Nothing);
    program.file->TakeUp(program.file->Read());
    if (!program.securityPage.users.LoadSecurityData()) {
        return StartUp::Ended;
    }
    program.trace.DebugTrace(kModule, kProcedure, "Security Mode Started");
    program.window.ShowSecurity();
    program.state.gbRulesMode = false;
    program.state.gbSecurityMode = true;
    program.state.gbUnitsMode = false;
    program.securityPage.ResizeSecurity();
    program.window.Show();
    program.recovery.Begin({"users", &*program.file, Secrecy::Passwords}, program.securityPage.Steps());
    return StartUp::WindowShown;
}

StartUp StartUnits(Program& program) {
    program.trace.DebugTrace(kModule, kProcedure, "Units Mode Started");
    program.Open(program.state.gsUnitsFile, program.unitsPage, VersionKeeper::Keeps::Versions);
    program.window.ShowUnits();
    program.state.gbRulesMode = false;
    program.state.gbSecurityMode = false;
    program.state.gbUnitsMode = true;
    program.unitsPage.ResizeUnits();
    program.window.Show();
    program.recovery.Begin({"units", &*program.file}, program.unitsPage.Steps());
    return StartUp::WindowShown;
}

} // namespace

StartUp mMain(Program& program) {
    program.trace.DebugTrace(kModule, kProcedure, "ZYGlobal Start");
    ComputePaths(program);
    program.registryEdit.RestoreWindowPlacement(program.window);

    // Upper case first, then the cut at NUL. Nothing is trimmed, so a blank behind the keyword makes it
    // unknown.
    const std::string upper = program.world.codePage.UCase(program.world.system.CommandLine());
    const std::string_view argument = StripAtNull(upper);
    if (argument == "@RULES") {
        return StartRules(program);
    }
    if (argument == "@SECURITY") {
        return StartSecurity(program);
    }
    if (argument == "@UNITS") {
        return StartUnits(program);
    }
    return StartUp::Ended;
}

} // namespace zy
