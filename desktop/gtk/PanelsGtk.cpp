#include <glib-object.h>
#include <wx/panel.h>
#include <wx/scrolwin.h>
#include <wx/statbox.h>

#include "desktop/GtkFunctions.h"
#include "desktop/Panels.h"

namespace zy {

wxPanel* MakeOuterPanel(wxWindow& window) {
    return new wxPanel(&window);
}

void KeepScrollBarsInSight(wxScrolledWindow& window) {
    gtk_scrolled_window_set_overlay_scrolling(reinterpret_cast<_GtkScrolledWindow*>(window.m_widget), 0);
}

wxPanel* MakeInnerPanel(wxWindow& parent) {
    return new wxPanel(&parent);
}

wxStaticBox* MakeInnerBox(wxWindow& parent, const wxString& caption) {
    return new wxStaticBox(&parent, wxID_ANY, caption);
}

} // namespace zy
