#include <glib-object.h>

#include "DesktopColours.h"
#include "support/EnvironmentVariable.h"

struct _GtkSettings; // NOLINT(bugprone-reserved-identifier): the name is GTK's own

extern "C" _GtkSettings* gtk_settings_get_default();

namespace zy::test {
namespace {

void TakeTheme(const char* name) {
    g_object_set(gtk_settings_get_default(), "gtk-theme-name", name, nullptr);
}

} // namespace

/// A theme that the environment names cannot be changed.
struct DesktopColours::Native {
    EnvironmentVariable theme{"GTK_THEME", std::nullopt};
};

DesktopColours::DesktopColours() : native_(std::make_unique<Native>()) {}

DesktopColours::~DesktopColours() {
    TakeTheme("Adwaita");
}

void DesktopColours::Darken() {
    TakeTheme("HighContrastInverse");
}

} // namespace zy::test
