#include "units/UnitsLayout.h"

#include <algorithm>
#include <array>

#include "shell/PageLayout.h"

namespace zy {
namespace {

constexpr int kArrowsLeft = 50;
constexpr int kArrowsWidth = 375;

Size ArrowsSize(const UpDown& arrows, int frameHeight) {
    return {std::max(kArrowsWidth, arrows.Preferred().width),
            std::max(frameHeight / 4, arrows.Preferred().height)};
}

void PlaceArrows(UpDown& arrows, const Rect& frame) {
    const Size size = ArrowsSize(arrows, frame.height);
    Place(arrows, {kArrowsLeft, (frame.height - size.height) / 2, size.width, size.height});
}

std::array<CommandButton*, 4> Buttons(UnitsControls& c) {
    return {&c.cmdAddUNit, &c.cmdDeleteUnit, &c.cmdSaveUnits, &c.cmdHelpUnits};
}

void PlaceStrip(UnitsControls& c, const Rect& frame) {
    const auto buttons = Buttons(c);
    const ButtonStrip strip(buttons, frame);
    Place(c.fraUnitFunction, strip.Bounds());
    strip.PlaceButtons(0, 0);
}

/// The grid takes what the arrows and the strip leave.
void PlaceGrid(UnitsControls& c, const Frame& fraUnits) {
    const auto& frame = fraUnits.Bounds();
    const int left = c.UpDownUnits.Bounds().Right() + kGap;
    const int top = ContentTop(fraUnits);
    Place(c.grdUnits, {left, top, frame.width - left - kGap, c.fraUnitFunction.Bounds().top - top});
}

} // namespace

void LayOutUnits(UnitsControls& controls, SettingsForm& form) {
    PlacePageFrame(form.FraUnits, form);
    PlaceArrows(controls.UpDownUnits, form.FraUnits.Bounds());
    PlaceStrip(controls, form.FraUnits.Bounds());
    PlaceGrid(controls, form.FraUnits);
}

Size LeastInnerSizeForUnits(UnitsControls& controls, const SettingsForm& form) {
    const int top = ContentTop(form.FraUnits);
    const Size arrows = ArrowsSize(controls.UpDownUnits, 0);
    const Size& grid = controls.grdUnits.Preferred();
    const Size above{kArrowsLeft + arrows.width + kGap + grid.width + kGap, top + grid.height};
    Size frame = ButtonStrip::LeastFrame(Buttons(controls), above);
    frame.height = std::max(frame.height, 2 * top + arrows.height);
    return LeastInnerSize(frame, form);
}

} // namespace zy
