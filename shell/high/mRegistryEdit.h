#pragma once

#include <string_view>

#include "platform/NativeWindow.h"
#include "platform/Registry.h"

namespace zy {

class frmGlobalSettings;

/// Keeps in the registry where the main window was left. Failures are not reported: the window then opens at
/// its designed place, or its place is not stored.
class mRegistryEdit {
  public:
    /// The key of the place, below the registry's part for the whole machine.
    static constexpr std::string_view kKey = R"(software\norvale\products\ZYSetup\Window)";

    mRegistryEdit(Registry& registry, NativeWindow& window) : registry_(registry), native_(window) {}

    /// Loads the window and gives it its stored place, size and state; nothing when the key is missing.
    /// Run-time error 6 for a stored number beyond 16 bits.
    void RestoreWindowPlacement(frmGlobalSettings& form);
    /// Run-time error 6, with nothing stored, for a place or a size of more than 32,767 twips.
    void SaveWindowPlacement(frmGlobalSettings& form);

  private:
    Registry& registry_;
    NativeWindow& native_;
};

} // namespace zy
