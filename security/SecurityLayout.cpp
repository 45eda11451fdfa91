#include "security/SecurityLayout.h"

#include <array>

#include "shell/PageLayout.h"

namespace zy {

void LayOutSecurity(SecurityControls& c, SettingsForm& form) {
    constexpr int kGridLeft = 50;
    constexpr int kGridTop = 50;
    PlacePageFrame(form.fraSecurity, form);
    const auto& frame = form.fraSecurity.Bounds();
    const std::array<CommandButton*, 4> buttons{&c.cmdAddUser, &c.cmdDeleteUser, &c.cmdSaveUsers,
                                                &c.cmdHelpSecurity};
    const ButtonStrip strip(buttons, frame);
    strip.PlaceButtons(strip.Bounds().left, strip.Bounds().top);
    Place(c.grdSecurity, {kGridLeft, kGridTop, frame.width - 2 * kGridLeft, strip.Bounds().top - kGridTop});
}

} // namespace zy
