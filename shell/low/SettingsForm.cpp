#include "shell/SettingsForm.h"

namespace zy {

SettingsForm::SettingsForm()
    : Form("frmGlobalSettings"), fraRules(this, "fraRules"), fraSecurity(this, "fraSecurity"),
      FraUnits(this, "FraUnits", "Units of Measure"), zyStatusBar(this, "zyStatusBar") {
    // Loading picks the one frame that is shown.
    fraRules.SetVisible(false);
    fraSecurity.SetVisible(false);
    FraUnits.SetVisible(false);
}

} // namespace zy
