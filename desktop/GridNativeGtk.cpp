#include "desktop/GridNative.h"

#include <glib-object.h>
#include <wx/window.h>

#include "desktop/GtkFunctions.h"
#include "desktop/Native.h"

extern "C" {
int atk_role_for_name(const char* name);
void atk_object_set_role(_AtkObject* accessible, int role);
}

namespace zy {

wxWindow* MakeSurround(wxWindow* parent) {
    auto* surround = new wxWindow(parent, wxID_ANY);
    surround->SetCanFocus(false);
    return surround;
}

void PresentCell(wxWindow& gridWindow, const wxString& text, bool announce) {
    auto* accessible = gtk_widget_get_accessible(gridWindow.GetHandle());
    atk_object_set_role(accessible, atk_role_for_name("table cell"));
    SetAccessibleName(gridWindow, text);
    // Known since version 2.46 of the library.
    constexpr const char* kAnnouncement = "announcement";
    if (announce && g_signal_lookup(kAnnouncement, G_OBJECT_TYPE(accessible)) != 0) {
        g_signal_emit_by_name(accessible, kAnnouncement, static_cast<const char*>(text.utf8_str()));
    }
}

} // namespace zy
