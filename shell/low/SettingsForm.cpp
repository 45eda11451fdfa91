#include "shell/SettingsForm.h"

#include <string>

#include "shell/TraceChannel.h"

namespace zy {

SettingsForm::SettingsForm()
    : Form(std::string(kMainForm)), fraRules(this, "fraRules"), fraSecurity(this, "fraSecurity"),
      FraUnits(this, "FraUnits", "Units of Measure"), zyStatusBar(this, "zyStatusBar"),
      fraNotice(&zyStatusBar, "fraNotice"), lblNotice(&fraNotice, "lblNotice"),
      lblShow(&fraNotice, "lblShow", "Show"), lblLoad(&fraNotice, "lblLoad", "Load"),
      lblIgnore(&fraNotice, "lblIgnore", "Ignore") {
    // Loading picks the one frame that is shown.
    fraRules.SetVisible(false);
    fraSecurity.SetVisible(false);
    FraUnits.SetVisible(false);
    fraNotice.SetVisible(false);
    menu.mnuOthers.SetEnabled(false);
    for (auto* entry : {&menu.mnuStandardRules, &menu.mnuSavePictures, &menu.mnuPrint}) {
        entry->SetEnabled(false); // until the rules are shown
    }
    resize.Connect([this] { LayOutNotice(); });
}

void SettingsForm::ShowNotice(const std::string& text) {
    lblNotice.SetCaption(text);
    fraNotice.SetVisible(true);
    menu.mnuOthers.SetEnabled(true);
    LayOutNotice();
}

bool SettingsForm::HideNotice() {
    const bool hadFocus = HasNoticeFocus();
    fraNotice.SetVisible(false);
    menu.mnuOthers.SetEnabled(false);
    return hadFocus;
}

bool SettingsForm::HasNoticeFocus() {
    return lblShow.HasFocus() || lblLoad.HasFocus() || lblIgnore.HasFocus();
}

void SettingsForm::LayOutNotice() {
    constexpr int kBetween = 150;
    constexpr int kGrip = 300; // by which the window is made larger
    const int height = zyStatusBar.Preferred().height;
    int left = 0;
    for (Control* part : std::initializer_list<Control*>{&lblNotice, &lblShow, &lblLoad, &lblIgnore}) {
        const auto& needed = part->Preferred();
        part->SetBounds({left, (height - needed.height) / 2, needed.width, needed.height});
        left += needed.width + kBetween;
    }
    fraNotice.SetBounds({InnerSize().width - left - kGrip, 0, left, height});
}

} // namespace zy
