#include "shell/SettingsForm.h"

#include <string>

#include "shell/TraceChannel.h"

namespace zy {

SettingsForm::SettingsForm()
    : Form(std::string(kMainForm)), fraRules(this, "fraRules"), fraSecurity(this, "fraSecurity"),
      FraUnits(this, "FraUnits", "Units of Measure"), zyStatusBar(this, "zyStatusBar") {
    // Loading picks the one frame that is shown.
    fraRules.SetVisible(false);
    fraSecurity.SetVisible(false);
    FraUnits.SetVisible(false);
}

} // namespace zy
