#include "desktop/GridNative.h"

#include <glib-object.h>
#include <wx/window.h>

#include <cmath>

#include "desktop/GtkFunctions.h"

namespace zy {

wxWindow* MakeSurround(wxWindow* parent) {
    auto* surround = new wxWindow(parent, wxID_ANY);
    surround->SetCanFocus(false);
    return surround;
}

wxColour HeaderTextColour() {
    // A theme gives its colours to what stands where they apply: in a list, even in one that nobody sees.
    auto* list = static_cast<GtkWidget*>(g_object_ref_sink(gtk_tree_view_new()));
    auto* column = gtk_tree_view_column_new();
    gtk_tree_view_append_column(reinterpret_cast<_GtkTreeView*>(list), column);
    auto* style = gtk_widget_get_style_context(gtk_tree_view_column_get_button(column));
    GtkColour colour{};
    gtk_style_context_get_color(style, gtk_style_context_get_state(style), &colour);
    g_object_unref(list);
    const auto part = [](double share) { return static_cast<unsigned char>(std::lround(share * 255)); };
    return {part(colour.red), part(colour.green), part(colour.blue), part(colour.alpha)};
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

} // namespace zy
