#include "desktop/ListText.h"

#include <glib-object.h>
#include <wx/dataview.h>

#include <memory>
#include <string>

#include "desktop/GtkFunctions.h"

namespace zy {
namespace {

/// A header's button is as wide as its column, and would like to be as wide as its text.
gboolean TellHeader(GtkWidget* button, int /*x*/, int /*y*/, gboolean /*byKeyboard*/, _GtkTooltip* tip,
                    gpointer text) {
    GtkSizeNeeded needed{};
    gtk_widget_get_preferred_size(button, &needed, nullptr);
    GtkRectangle given{};
    gtk_widget_get_allocation(button, &given);
    gtk_tooltip_set_text(tip, static_cast<std::string*>(text)->c_str());
    return needed.width > given.width ? 1 : 0;
}

void ForgetText(gpointer text, GClosure* /*closure*/) {
    delete static_cast<std::string*>(text);
}

} // namespace

wxDataViewTextRenderer* MakeListText() {
    return new wxDataViewTextRenderer;
}

int MarginOfListText() {
    return 2;
}

void ShowCutHeaders(wxDataViewCtrl& list) {
    for (unsigned i = 0; i < list.GetColumnCount(); ++i) {
        auto& column = *list.GetColumn(i);
        GtkWidget* button =
            gtk_tree_view_column_get_button(reinterpret_cast<_GtkTreeViewColumn*>(column.GetGtkHandle()));
        g_object_set(button, "has-tooltip", gboolean{1}, nullptr);
        g_signal_connect_data(button, "query-tooltip", G_CALLBACK(TellHeader),
                              new std::string(column.GetTitle().utf8_string()), ForgetText, GConnectFlags{});
    }
}

} // namespace zy
