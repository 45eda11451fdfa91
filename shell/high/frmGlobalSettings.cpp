#include "shell/frmGlobalSettings.h"

#include <string>

#include "rules/RulesPage.h"
#include "rules/mRules.h"

namespace zy {
namespace {

constexpr std::string_view kModule = "frmGlobalSettings";

} // namespace

frmGlobalSettings::frmGlobalSettings(const Parts& parts) : menu(parts.form.menu), parts_(parts) {
    parts_.form.resize.Connect([this] { Form_Resize(); });
    menu.mnuSave.click.Connect([this] { mnuSave_Click(); });
    menu.mnuExit.click.Connect([this] { mnuExit_Click(); });
}

void frmGlobalSettings::Trace(std::string_view procedure, std::string_view message) {
    parts_.trace.DebugTrace(kModule, procedure, message);
}

void frmGlobalSettings::Load() {
    if (!loaded_) {
        loaded_ = true;
        Form_Load();
    }
}

void frmGlobalSettings::Show() {
    Load();
    parts_.form.SetVisible(true);
}

void frmGlobalSettings::ShowFrame(const Frame& frame) {
    for (Frame* each : {&parts_.form.fraRules, &parts_.form.fraSecurity, &parts_.form.FraUnits}) {
        each->SetVisible(each == &frame);
    }
}

// All three pages trace "Rules", which is meant.

void frmGlobalSettings::ShowRules() {
    Load();
    Trace("ShowRules", "Rules");
    ShowFrame(parts_.form.fraRules);
    ShowListMode();
    parts_.rulesPage.LoadRulesListMode();
    parts_.form.SetCaption("ZY Setup - Rules");
}

void frmGlobalSettings::ShowSecurity() {
    Load();
    Trace("ShowSecurity", "Rules");
    ShowFrame(parts_.form.fraSecurity);
    parts_.security.LoadSecurity();
    parts_.form.SetCaption("ZY Setup - Security");
}

void frmGlobalSettings::ShowUnits() {
    Load();
    Trace("ShowUnits", "Rules");
    ShowFrame(parts_.form.FraUnits);
    parts_.form.SetCaption("ZY Setup - Units of Measure");
    parts_.units.LoadUnitsData();
}

void frmGlobalSettings::ShowListMode() {
    parts_.rulesPage.ShowListMode();
}

void frmGlobalSettings::ShowGridMode() {
    parts_.rulesPage.ShowGridMode();
}

void frmGlobalSettings::ConfirmExit() {
    if (parts_.world.dialogs.AskYesNo("Are you Sure you want to Exit Without Saving Changes", "Confirm Exit",
                                      Escape::AnswersNo)) {
        Unload();
    }
}

bool frmGlobalSettings::Unload() {
    if (!Form_Unload()) {
        return false;
    }
    loaded_ = false;
    parts_.form.SetVisible(false);
    unloaded.Raise();
    return true;
}

void frmGlobalSettings::Form_Load() {
    Trace("Form_Load", "Start");
    parts_.minSize.InstallMinSizeHook();
}

void frmGlobalSettings::Form_Resize() {
    Trace("Form_Resize", "Start");
    if (parts_.form.State() == WindowState::Minimized) {
        return;
    }
    if (parts_.state.gbRulesMode) {
        parts_.rulesPage.ResizeRuleTab();
    }
    if (parts_.state.gbSecurityMode) {
        parts_.security.ResizeSecurity();
    }
    if (parts_.state.gbUnitsMode) {
        parts_.units.ResizeUnits();
    }
}

void frmGlobalSettings::mnuExit_Click() {
    Unload();
}

void frmGlobalSettings::mnuSave_Click() {
    if (parts_.state.gbRulesMode) {
        SaveRules();
    } else if (parts_.state.gbSecurityMode) {
        SaveSecurity();
    } else if (parts_.state.gbUnitsMode) {
        SaveUnits();
    }
}

namespace {
constexpr std::string_view kSaveProcedure = ",mnuSave_Click"; // the leading comma is meant
} // namespace

void frmGlobalSettings::SaveRules() {
    Trace(kSaveProcedure, "Rules");
    auto& changeFlag = parts_.form.ChangeFlag;
    if (parts_.rules.giCurRule != -1 && changeFlag) {
        if (!parts_.rulesPage.Validate_Rule()) {
            return;
        }
        parts_.rulesPage.Save_Rules_Edit(parts_.rules.giCurRule);
        changeFlag = true;
    }
    if (changeFlag) {
        changeFlag = !parts_.rules.Write_Rules_File();
    }
}

void frmGlobalSettings::SaveSecurity() {
    parts_.security.CommitCellEdit();
    Trace(kSaveProcedure, "Security");
    if (!parts_.security.Validate_Security()) {
        return;
    }
    parts_.security.Save_Security();
    if (!WriteUserTable()) {
        return;
    }
    parts_.state.gbChanged = false;
    parts_.security.DisableSaveButton();
}

void frmGlobalSettings::SaveUnits() {
    parts_.units.CommitCellEdit();
    Trace(kSaveProcedure, "Units");
    if (parts_.units.ValidateUnits() && parts_.units.Write_Units()) {
        parts_.form.ChangeFlag = false;
        parts_.units.DisableSaveButton();
    }
}

bool frmGlobalSettings::Form_Unload() {
    const auto& state = parts_.state;
    const bool unload = state.gbRulesMode      ? UnloadRules()
                        : state.gbSecurityMode ? UnloadSecurity()
                        : state.gbUnitsMode    ? UnloadUnits()
                                               : true;
    if (!unload) {
        return false;
    }
    parts_.minSize.RemoveMinSizeHook();
    parts_.placement.SaveWindowPlacement();
    Trace("Form_Unload", "Unloaded");
    return true;
}

bool frmGlobalSettings::WantsToSave() {
    return parts_.world.dialogs.AskYesNo("Do you Wish to Save your Changes?", "Save Changes?",
                                         Escape::IsIgnored);
}

bool frmGlobalSettings::UnloadRules() {
    Trace("Form_Unload", "Rules");
    if (parts_.form.ChangeFlag && WantsToSave()) {
        // Unlike the other two editors, nothing is checked here, which is meant.
        return parts_.rules.Write_Rules_File();
    }
    return true;
}

bool frmGlobalSettings::UnloadSecurity() {
    parts_.security.CommitCellEdit();
    Trace("Form_Unload", "Security");
    if (parts_.state.gbChanged && WantsToSave()) {
        if (!parts_.security.Validate_Security()) {
            return false;
        }
        parts_.security.Save_Security();
        return WriteUserTable();
    }
    return true;
}

bool frmGlobalSettings::UnloadUnits() {
    parts_.units.CommitCellEdit();
    Trace("Form_Unload", "Units");
    if (parts_.form.ChangeFlag && WantsToSave()) {
        return parts_.units.ValidateUnits() && parts_.units.Write_Units();
    }
    return true;
}

/// Without users the two files under the system directory go, even when the table that is edited lies in
/// another folder: meant.
bool frmGlobalSettings::WriteUserTable() {
    return parts_.security.WriteUsers(parts_.state.gsSystemDir);
}

} // namespace zy
