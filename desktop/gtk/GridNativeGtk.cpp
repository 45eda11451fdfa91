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

void ShowOverCells(wxWindow& control, const wxRect& place) {
    if (gtk_widget_get_parent(control.m_widget) == nullptr) {
        gtk_container_add(reinterpret_cast<_GtkContainer*>(control.GetParent()->m_wxwindow),
                          control.m_widget);
    }
    control.SetSize(place);
    control.Show();
}

void HideOverCells(wxWindow& control) {
    // Scrolling moves whatever lies over the cells, and GTK complains where that is hidden. So it is taken
    // out, and comes back without a size.
    if (auto* cells = gtk_widget_get_parent(control.m_widget)) {
        control.Hide();
        control.SetSize(wxRect());
        gtk_container_remove(reinterpret_cast<_GtkContainer*>(cells), control.m_widget);
    }
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
