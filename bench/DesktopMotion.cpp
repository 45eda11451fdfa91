#include <glib-object.h>

#include <iostream>

// The toolkit comes without headers.
extern "C" {
gboolean gtk_init_check(int* argumentCount, char*** arguments);
GObject* gtk_settings_get_default(void);
}

// desktop_motion: what moves by itself in every window of this desktop, a line each, as the toolkit itself
// tells a program that is started here. Its status is 2 where there is no display.

namespace {

bool IsOn(const char* setting) {
    gboolean isOn = FALSE;
    g_object_get(gtk_settings_get_default(), setting, &isOn, nullptr);
    return isOn != FALSE;
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (gtk_init_check(&argumentCount, &arguments) == FALSE) {
        return 2;
    }
    if (IsOn("gtk-enable-animations")) {
        std::cout << "animations\n";
    }
    if (IsOn("gtk-cursor-blink")) {
        std::cout << "a blinking cursor\n";
    }
    return 0;
}
