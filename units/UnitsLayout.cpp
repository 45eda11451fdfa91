#include "units/UnitsLayout.h"

#include <algorithm>
#include <array>

namespace zy {
namespace {

constexpr int kGap = 100;
constexpr int kFrameMargin = 50; // round the page's frame
constexpr int kArrowsLeft = 50;
constexpr int kArrowsWidth = 375;
constexpr int kStripLeft = 300;
constexpr int kStripHeight = 550;
constexpr int kButtonTop = 150;
constexpr int kButtonHeight = 350;
constexpr int kBelowButtons = 50;

void Place(Control& control, const Rect& wanted) {
    const auto& held = control.Bounds();
    control.SetBounds({wanted.left, wanted.top, wanted.width > 0 ? wanted.width : held.width,
                       wanted.height > 0 ? wanted.height : held.height});
}

void PlaceFrame(SettingsForm& form) {
    const auto& inner = form.InnerSize();
    const int statusBar = form.zyStatusBar.Preferred().height;
    Place(form.FraUnits, {kFrameMargin, kFrameMargin, inner.width - 2 * kFrameMargin,
                          inner.height - 2 * kFrameMargin - statusBar});
}

void PlaceArrows(UpDown& arrows, const Rect& frame) {
    const int width = std::max(kArrowsWidth, arrows.Preferred().width);
    const int height = std::max(frame.height / 4, arrows.Preferred().height);
    Place(arrows, {kArrowsLeft, (frame.height - height) / 2, width, height});
}

std::array<CommandButton*, 4> ButtonsOf(UnitsControls& c) {
    return {&c.cmdAddUNit, &c.cmdDeleteUnit, &c.cmdSaveUnits, &c.cmdHelpUnits};
}

/// The size that all buttons of the strip have.
Size ButtonSize(UnitsControls& c, int stripWidth) {
    Size size{stripWidth / 9, kButtonHeight};
    for (const auto* button : ButtonsOf(c)) {
        size.width = std::max(size.width, button->Preferred().width);
        size.height = std::max(size.height, button->Preferred().height);
    }
    return size;
}

void PlaceStrip(UnitsControls& c, const Rect& frame) {
    const int width = frame.width - 500;
    const auto button = ButtonSize(c, width);
    const int height = std::max(kStripHeight, kButtonTop + button.height + kBelowButtons);
    Place(c.fraUnitFunction, {kStripLeft, frame.height - kGap - height, width, height});

    const auto buttons = ButtonsOf(c);
    const int count = static_cast<int>(buttons.size());
    const int gap = std::max((width - count * button.width) / (count + 1), 0);
    int left = gap;
    for (auto* each : buttons) {
        Place(*each, {left, kButtonTop, button.width, button.height});
        left = each->Bounds().Right() + gap;
    }
}

/// The grid takes what the arrows and the strip leave.
void PlaceGrid(UnitsControls& c, const Frame& fraUnits) {
    const auto& frame = fraUnits.Bounds();
    const int left = c.UpDownUnits.Bounds().Right() + kGap;
    const int top = std::max(fraUnits.Preferred().height, kGap) + kGap;
    Place(c.grdUnits, {left, top, frame.width - left - kGap, c.fraUnitFunction.Bounds().top - top});
}

} // namespace

void LayOutUnits(UnitsControls& controls, SettingsForm& form) {
    PlaceFrame(form);
    PlaceArrows(controls.UpDownUnits, form.FraUnits.Bounds());
    PlaceStrip(controls, form.FraUnits.Bounds());
    PlaceGrid(controls, form.FraUnits);
}

} // namespace zy
