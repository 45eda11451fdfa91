#include "shell/frmRecovery.h"

#include <algorithm>

namespace zy {

frmRecovery::frmRecovery(const std::string& heading, const std::string& text, bool canRestore)
    : Form("frmRecovery"), lblHeading(this, "lblHeading", TextLabel::Style::Heading),
      lblText(this, "lblText"), cmdRestore(this, "cmdRestore", "Restore", 'R'),
      cmdDiscard(this, "cmdDiscard", "Discard", 'D'), cmdNotNow(this, "cmdNotNow", "Not Now", 'N') {
    SetCaption("ZY Setup - Unsaved Changes");
    lblHeading.SetCaption(heading);
    lblText.SetCaption(text);
    cmdRestore.SetEnabled(canRestore);
    SetKeyButtons(canRestore ? &cmdRestore : &cmdNotNow, &cmdNotNow);
    (canRestore ? cmdRestore : cmdNotNow).SetFocus();
    cmdRestore.click.Connect([this] { Choose(Answer::Restore); });
    cmdDiscard.click.Connect([this] { Choose(Answer::Discard); });
    cmdNotNow.click.Connect([this] { Choose(Answer::NotNow); });
    resize.Connect([this] { Form_Resize(); });
}

void frmRecovery::Choose(Answer answer) {
    chosen_ = answer;
    SetVisible(false);
}

void frmRecovery::Form_Resize() {
    constexpr int kMargin = 240;
    constexpr int kGap = 120;
    int top = kMargin;
    int width = 0;
    for (auto* label : {&lblHeading, &lblText}) {
        const auto& needed = label->Preferred();
        label->SetBounds({kMargin, top, needed.width, needed.height});
        width = std::max(width, needed.width);
        top += needed.height + 2 * kGap;
    }
    int button = CommandButton::kUsualWidth;
    for (const auto* each : {&cmdRestore, &cmdDiscard, &cmdNotNow}) {
        button = std::max(button, each->Preferred().width);
    }
    width = std::max(width, 3 * button + 2 * kGap);
    const int height = cmdRestore.Preferred().height;
    int left = kMargin + width - 3 * button - 2 * kGap;
    for (auto* each : {&cmdRestore, &cmdDiscard, &cmdNotNow}) {
        each->SetBounds({left, top, button, height});
        left += button + kGap;
    }
    SetBounds({0, 0, width + 2 * kMargin, top + height + kMargin});
}

} // namespace zy
