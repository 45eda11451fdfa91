#include "shell/frmGlobalSettings.h"

#include <algorithm>

#include "rules/RulesPage.h"
#include "shell/SubClasser.h"
#include "shell/mRegistryEdit.h"

namespace zy {

frmGlobalSettings::frmGlobalSettings(const Parts& parts)
    : menu(parts.form.menu),
      parts_(parts), modes_{{{&SharedState::gbRulesMode, "Rules", &parts.rules},
                             {&SharedState::gbSecurityMode, "Security", &parts.security},
                             {&SharedState::gbUnitsMode, "Units", &parts.units}}} {
    parts_.form.resize.Connect([this] { Form_Resize(); });
    parts_.form.leastInnerSize = [this] {
        const Mode* mode = InCharge();
        return mode == nullptr ? Size() : mode->editor->LeastInnerSize();
    };
    menu.mnuSave.click.Connect([this] { mnuSave_Click(); });
    menu.mnuExit.click.Connect([this] { mnuExit_Click(); });
}

void frmGlobalSettings::Trace(std::string_view procedure, std::string_view message) {
    parts_.trace.DebugTrace(kMainForm, procedure, message);
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

// All three trace "Rules", which whoever reads the traces is used to.

void frmGlobalSettings::ShowRules() {
    Load();
    Trace("ShowRules", "Rules");
    ShowFrame(parts_.form.fraRules);
    parts_.rules.Show();
    parts_.form.SetCaption("ZY Setup - Rules");
}

void frmGlobalSettings::ShowSecurity() {
    Load();
    Trace("ShowSecurity", "Rules");
    ShowFrame(parts_.form.fraSecurity);
    parts_.security.Show();
    parts_.form.SetCaption("ZY Setup - Security");
}

void frmGlobalSettings::ShowUnits() {
    Load();
    Trace("ShowUnits", "Rules");
    ShowFrame(parts_.form.FraUnits);
    parts_.form.SetCaption("ZY Setup - Units of Measure");
    parts_.units.Show();
}

void frmGlobalSettings::ShowListMode() {
    parts_.rules.ShowListMode();
}

void frmGlobalSettings::ShowGridMode() {
    parts_.rules.ShowGridMode();
}

void frmGlobalSettings::ConfirmExit() {
    if (parts_.dialogs.AskYesNo("Are you Sure you want to Exit Without Saving Changes", "Confirm Exit",
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

const frmGlobalSettings::Mode* frmGlobalSettings::InCharge() const {
    const auto found = std::find_if(modes_.begin(), modes_.end(),
                                    [this](const Mode& mode) { return bool(parts_.state.*mode.flag); });
    return found == modes_.end() ? nullptr : &*found;
}

Editor* frmGlobalSettings::EditorInCharge() const {
    const Mode* mode = InCharge();
    return mode == nullptr ? nullptr : mode->editor;
}

void frmGlobalSettings::Form_Resize() {
    Trace("Form_Resize", "Start");
    if (parts_.form.State() == WindowState::Minimized) {
        return;
    }
    for (const auto& mode : modes_) {
        if (parts_.state.*mode.flag) {
            mode.editor->Resize();
        }
    }
}

void frmGlobalSettings::mnuExit_Click() {
    Unload();
}

void frmGlobalSettings::mnuSave_Click() {
    if (const Mode* mode = InCharge()) {
        mode->editor->CommitOpenCell();
        Trace(",mnuSave_Click", mode->name); // with that comma it stands in the traces of all versions
        mode->editor->Save();
    }
}

bool frmGlobalSettings::Form_Unload() {
    const Mode* mode = InCharge();
    if (mode != nullptr && !Leave(*mode)) {
        return false;
    }
    parts_.minSize.RemoveMinSizeHook();
    parts_.placement.SaveWindowPlacement(*this);
    Trace("Form_Unload", "Unloaded");
    return true;
}

bool frmGlobalSettings::Leave(const Mode& mode) {
    mode.editor->CommitOpenCell();
    Trace("Form_Unload", mode.name);
    return !mode.editor->HasUnsavedChanges() || !WantsToSave() || mode.editor->SaveAtClosing();
}

bool frmGlobalSettings::WantsToSave() {
    return parts_.dialogs.AskYesNo("Do you Wish to Save your Changes?", "Save Changes?", Escape::IsIgnored);
}

} // namespace zy
