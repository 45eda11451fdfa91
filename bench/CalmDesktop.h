#pragma once

#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

namespace zy::bench {

/// While this lives, programs with a window are started without animations and blinking cursors, which would
/// keep them at work for as long as the theme likes, and without a connection to assistive technology.
class CalmDesktop {
  public:
    CalmDesktop() {
        configuration_.AddFolder("gtk-3.0");
        configuration_.Put("gtk-3.0/settings.ini",
                           "[Settings]\ngtk-enable-animations=0\ngtk-cursor-blink=0\n");
    }

  private:
    test::TemporaryFolder configuration_;
    test::EnvironmentVariable configurationFolder_{"XDG_CONFIG_HOME", configuration_.Path().string()};
    test::EnvironmentVariable noAssistance_{"NO_AT_BRIDGE", "1"};
    test::EnvironmentVariable theme_{"GTK_THEME", "Adwaita"};
};

} // namespace zy::bench
