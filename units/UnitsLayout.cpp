#include "units/UnitsLayout.h"

#include <algorithm>
#include <array>

namespace zy {
namespace {

constexpr int kArrowsLeft = 50;
constexpr int kStripLeft = 300;
constexpr int kStripHeight = 550;
constexpr int kButtonTop = 150;
constexpr int kButtonHeight = 350;
constexpr int kGap = 100;

void Place(Control& control, const Rect& bounds) {
    if (bounds.width > 0 && bounds.height > 0) {
        control.SetBounds(bounds);
    }
}

void PlaceButtons(UnitsControls& c, int stripWidth) {
    const std::array buttons{&c.cmdAddUNit, &c.cmdDeleteUnit, &c.cmdSaveUnits, &c.cmdHelpUnits};
    constexpr int kCount = buttons.size();
    int width = stripWidth / 9;
    int height = kButtonHeight;
    for (const auto* button : buttons) {
        width = std::max(width, button->Preferred().width);
        height = std::max(height, button->Preferred().height);
    }
    const int gap = std::max((stripWidth - kCount * width) / (kCount + 1), 0);
    int left = gap;
    for (auto* button : buttons) {
        Place(*button, {left, kButtonTop, width, height});
        left += width + gap;
    }
}

} // namespace

void LayOutUnits(UnitsControls& c, const Frame& fraUnits) {
    const auto& frame = fraUnits.Bounds();
    const int arrowsWidth = std::max(c.UpDownUnits.Preferred().width, 375);
    const int arrowsHeight = std::max(frame.height / 4, c.UpDownUnits.Preferred().height);
    Place(c.UpDownUnits, {kArrowsLeft, (frame.height - arrowsHeight) / 2, arrowsWidth, arrowsHeight});

    const int stripWidth = frame.width - 500;
    PlaceButtons(c, stripWidth);
    const int stripHeight = std::max(kStripHeight, c.cmdAddUNit.Bounds().Bottom() + 50);
    const int stripTop = frame.height - stripHeight - kGap;
    Place(c.fraUnitFunction, {kStripLeft, stripTop, stripWidth, stripHeight});

    const int gridLeft = kArrowsLeft + arrowsWidth + kGap;
    const int gridTop = std::max(fraUnits.Preferred().height, kGap) + kGap;
    Place(c.grdUnits, {gridLeft, gridTop, frame.width - gridLeft - kGap, stripTop - gridTop});
}

} // namespace zy
