#include "units/UnitsLayout.h"

#include <algorithm>
#include <array>

#include "shell/PageLayout.h"

namespace zy {
namespace {

constexpr int kGap = 100;
constexpr int kArrowsLeft = 50;
constexpr int kArrowsWidth = 375;

void PlaceArrows(UpDown& arrows, const Rect& frame) {
    const int width = std::max(kArrowsWidth, arrows.Preferred().width);
    const int height = std::max(frame.height / 4, arrows.Preferred().height);
    Place(arrows, {kArrowsLeft, (frame.height - height) / 2, width, height});
}

void PlaceStrip(UnitsControls& c, const Rect& frame) {
    const std::array<CommandButton*, 4> buttons{&c.cmdAddUNit, &c.cmdDeleteUnit, &c.cmdSaveUnits,
                                                &c.cmdHelpUnits};
    const ButtonStrip strip(buttons, frame);
    Place(c.fraUnitFunction, strip.Bounds());
    strip.PlaceButtons(0, 0);
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
    PlacePageFrame(form.FraUnits, form);
    PlaceArrows(controls.UpDownUnits, form.FraUnits.Bounds());
    PlaceStrip(controls, form.FraUnits.Bounds());
    PlaceGrid(controls, form.FraUnits);
}

} // namespace zy
