#pragma once

#include <optional>

#include "desktop/BoundControls.h"
#include "desktop/ClipboardMenu.h"
#include "desktop/Desktop.h"
#include "desktop/MenuBarBinding.h"
#include "desktop/WindowBinding.h"
#include "shell/frmGlobalSettings.h"

namespace zy {

/// The main window on the desktop. It opens when the program shows the window, and ends the event loop when
/// the program has unloaded it.
class MainWindowView {
  public:
    MainWindowView(Desktop& desktop, frmGlobalSettings& window);

  private:
    void ShowOrHide();
    void Open();

    Desktop& desktop_;
    frmGlobalSettings& window_;
    BoundControls controls_;
    MenuPlace menuPlace_;
    std::optional<ViewContext> context_;
    std::optional<WindowBinding> binding_;
    std::optional<MenuBarBinding> menuBar_;
    std::optional<ClipboardMenu> clipboard_;
    Subscription appearanceChanged_;
    Subscription unloaded_;
    Subscription failing_;
};

} // namespace zy
