#include "shell/PageLayout.h"

#include <algorithm>

namespace zy {
namespace {

constexpr int kStripLeft = 300;
constexpr int kStripHeight = 550;
constexpr int kBelowStrip = 100;
constexpr int kButtonTop = 150;
constexpr int kButtonHeight = 350;
constexpr int kBelowButtons = 50;

/// The size of all buttons.
Size ButtonSize(std::span<CommandButton* const> buttons, int stripWidth) {
    Size size{stripWidth / 9, kButtonHeight};
    for (const auto* button : buttons) {
        size.width = std::max(size.width, button->Preferred().width);
        size.height = std::max(size.height, button->Preferred().height);
    }
    return size;
}

} // namespace

void Place(Control& control, const Rect& wanted) {
    const auto& held = control.Bounds();
    control.SetBounds({wanted.left, wanted.top, wanted.width > 0 ? wanted.width : held.width,
                       wanted.height > 0 ? wanted.height : held.height});
}

void PlacePageFrame(Frame& frame, const SettingsForm& form) {
    const auto& inner = form.InnerSize();
    const int statusBar = form.zyStatusBar.Preferred().height;
    Place(frame, {kPageMargin, kPageMargin, inner.width - 2 * kPageMargin,
                  inner.height - 2 * kPageMargin - statusBar});
}

ButtonStrip::ButtonStrip(std::span<CommandButton* const> buttons, const Rect& frame) : buttons_(buttons) {
    const int width = frame.width - 500;
    button_ = ButtonSize(buttons, width);
    const int height = std::max(kStripHeight, kButtonTop + button_.height + kBelowButtons);
    bounds_ = {kStripLeft, frame.height - kBelowStrip - height, width, height};
}

void ButtonStrip::PlaceButtons(int left, int top) const {
    const int count = static_cast<int>(buttons_.size());
    const int gap = std::max((bounds_.width - count * button_.width) / (count + 1), 0);
    for (auto* button : buttons_) {
        left += gap;
        Place(*button, {left, top + kButtonTop, button_.width, button_.height});
        left += button_.width;
    }
}

} // namespace zy
