#include "security/SecurityLayout.h"

#include <array>

#include "shell/PageLayout.h"

namespace zy {
namespace {

constexpr int kGridLeft = 50;
constexpr int kGridTop = 50;

std::array<CommandButton*, 4> Buttons(SecurityControls& c) {
    return {&c.cmdAddUser, &c.cmdDeleteUser, &c.cmdSaveUsers, &c.cmdHelpSecurity};
}

} // namespace

void LayOutSecurity(SecurityControls& c, SettingsForm& form) {
    PlacePageFrame(form.fraSecurity, form);
    const auto& frame = form.fraSecurity.Bounds();
    const auto buttons = Buttons(c);
    const ButtonStrip strip(buttons, frame);
    strip.PlaceButtons(strip.Bounds().left, strip.Bounds().top);
    Place(c.grdSecurity, {kGridLeft, kGridTop, frame.width - 2 * kGridLeft, strip.Bounds().top - kGridTop});
}

Size LeastInnerSizeForSecurity(SecurityControls& c, const SettingsForm& form) {
    const Size& grid = c.grdSecurity.Preferred();
    const Size above{grid.width + 2 * kGridLeft, kGridTop + grid.height};
    return LeastInnerSize(ButtonStrip::LeastFrame(Buttons(c), above), form);
}

} // namespace zy
