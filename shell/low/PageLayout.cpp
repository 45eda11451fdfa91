#include "shell/PageLayout.h"

#include <algorithm>

namespace zy {
namespace {

constexpr int kStripLeft = 300;
constexpr int kBesideStrip = 500; // left and right of it
constexpr int kStripHeight = 550;
constexpr int kButtonTop = 150;
constexpr int kButtonHeight = 350;
constexpr int kBelowButtons = 50;
constexpr int kLeastBetweenButtons = 50;

/// The size of all buttons.
Size ButtonSize(std::span<CommandButton* const> buttons, int stripWidth) {
    Size size{stripWidth / 9, kButtonHeight};
    for (const auto* button : buttons) {
        size.width = std::max(size.width, button->Preferred().width);
        size.height = std::max(size.height, button->Preferred().height);
    }
    return size;
}

int StripHeight(const Size& button) {
    return std::max(kStripHeight, kButtonTop + button.height + kBelowButtons);
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

Size LeastInnerSize(const Size& frame, const SettingsForm& form) {
    return {frame.width + 2 * kPageMargin,
            frame.height + 2 * kPageMargin + form.zyStatusBar.Preferred().height};
}

int ContentTop(const Frame& frame) {
    return std::max(frame.Preferred().height, kGap) + kGap;
}

void FillWithLastColumn(ListView& list, int least) {
    constexpr int kBorder = 360; // the list's scroll bar and frame
    const std::size_t last = list.Columns().size() - 1;
    int left = list.Bounds().width - kBorder;
    for (std::size_t column = 0; column < last; ++column) {
        left -= list.Columns()[column].width;
    }
    list.SetColumnWidth(last, std::max(left, least));
}

Size ButtonStrip::LeastFrame(std::span<CommandButton* const> buttons, const Size& above) {
    const int count = static_cast<int>(buttons.size());
    const Size button = ButtonSize(buttons, 0);
    const int width = kBesideStrip + count * button.width + (count + 1) * kLeastBetweenButtons;
    return {std::max(width, above.width), above.height + StripHeight(button) + kGap};
}

ButtonStrip::ButtonStrip(std::span<CommandButton* const> buttons, const Rect& frame) : buttons_(buttons) {
    const int width = frame.width - kBesideStrip;
    button_ = ButtonSize(buttons, width);
    const int height = StripHeight(button_);
    bounds_ = {kStripLeft, frame.height - kGap - height, width, height};
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
