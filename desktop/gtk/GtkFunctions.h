#pragma once

#include <atk/atk.h>
#include <wx/defs.h>

#include <cstddef>

// The calls of GTK that the program makes itself. The toolkit's development package brings GTK's libraries
// but not its headers, so these few are declared here, as GTK 3 has fixed them for good.

// NOLINTBEGIN(bugprone-reserved-identifier): the names are GTK's own
struct _GdkAtom;
struct _GdkDisplay;
struct _GdkKeymap;
struct _GdkScreen;
struct _GtkAccessible;
struct _GtkComboBox;
struct _GtkContainer;
struct _GtkCssProvider;
struct _GtkDialog;
struct _GtkEntry;
struct _GtkEventController;
struct _GtkFileChooser;
struct _GtkFileFilter;
struct _GtkGesture;
struct _GtkGestureSingle;
struct _GtkMenuItem;
struct _GtkMenuShell;
struct _GtkScrolledWindow;
struct _GtkStyleContext;
struct _GtkStyleProvider;
struct _GtkTooltip;
struct _GtkTreePath;
struct _GtkTreeView;
struct _GtkTreeViewColumn;
struct _GtkWidgetClass;
struct _GtkWindow;
struct _PangoContext;
struct _PangoFont;
struct _PangoFontDescription;
// NOLINTEND(bugprone-reserved-identifier)

extern "C" {

struct GtkRectangle {
    int x, y, width, height;
};
struct GtkColour {
    double red, green, blue, alpha;
};
struct GtkSizeNeeded {
    int width, height;
};

_GdkAtom* gdk_atom_intern(const char* name, int onlyIfItExists);
_GdkDisplay* gdk_display_get_default();
int gdk_keymap_get_entries_for_keycode(_GdkKeymap* keymap, guint keyCode, void** keys, guint** symbols,
                                       int* count);
_GdkKeymap* gdk_keymap_get_for_display(_GdkDisplay* display);
guint gdk_keyval_to_lower(guint symbol);
_PangoContext* gdk_pango_context_get();
_GdkScreen* gdk_screen_get_default();
double gdk_screen_get_resolution(_GdkScreen* screen);
int gdk_x11_screen_supports_net_wm_hint(_GdkScreen* screen, _GdkAtom* property);
GtkWidget* gtk_accessible_get_widget(_GtkAccessible* accessible);
GType gtk_container_accessible_get_type();
GType gtk_entry_get_type();
void gtk_entry_set_invisible_char(_GtkEntry* entry, unsigned character);
void gtk_combo_box_popdown(_GtkComboBox* comboBox);
void gtk_container_add(_GtkContainer* container, GtkWidget* widget);
GList* gtk_container_get_children(_GtkContainer* container);
void gtk_container_remove(_GtkContainer* container, GtkWidget* widget);
_GtkCssProvider* gtk_css_provider_new();
int gtk_css_provider_load_from_data(_GtkCssProvider* provider, const char* text, std::ptrdiff_t length,
                                    GError** error);
GtkWidget* gtk_dialog_get_content_area(_GtkDialog* dialog);
void gtk_event_controller_set_propagation_phase(_GtkEventController* controller, int phase);
char* gtk_file_chooser_get_current_name(_GtkFileChooser* chooser);
_GtkFileFilter* gtk_file_chooser_get_filter(_GtkFileChooser* chooser);
void gtk_file_chooser_set_current_name(_GtkFileChooser* chooser, const char* name);
const char* gtk_file_filter_get_name(_GtkFileFilter* filter);
_GtkGesture* gtk_gesture_multi_press_new(GtkWidget* widget);
void gtk_gesture_single_set_button(_GtkGestureSingle* gesture, guint button);
GtkWidget* gtk_grab_get_current();
void gtk_grab_remove(GtkWidget* widget);
GList* gtk_menu_get_for_attach_widget(GtkWidget* widget);
GtkWidget* gtk_menu_item_get_submenu(_GtkMenuItem* item);
void gtk_menu_shell_cancel(_GtkMenuShell* menu);
GType gtk_menu_shell_get_type();
void gtk_scrolled_window_set_overlay_scrolling(_GtkScrolledWindow* window, int overlay);
void gtk_style_context_add_provider_for_screen(_GdkScreen* screen, _GtkStyleProvider* provider,
                                               guint priority);
void gtk_style_context_add_provider(_GtkStyleContext* style, _GtkStyleProvider* provider, unsigned priority);
void gtk_style_context_get_color(_GtkStyleContext* style, unsigned state, GtkColour* colour);
unsigned gtk_style_context_get_state(_GtkStyleContext* style);
void gtk_tooltip_set_text(_GtkTooltip* tip, const char* text);
void gtk_tree_path_free(_GtkTreePath* path);
_GtkTreePath* gtk_tree_path_new_from_indices(int first, ...);
int gtk_tree_view_append_column(_GtkTreeView* view, _GtkTreeViewColumn* column);
GtkWidget* gtk_tree_view_column_get_button(_GtkTreeViewColumn* column);
_GtkTreeViewColumn* gtk_tree_view_column_new();
void gtk_tree_view_column_set_clickable(_GtkTreeViewColumn* column, int clickable);
GtkWidget* gtk_tree_view_new();
void gtk_tree_view_set_cursor(_GtkTreeView* view, _GtkTreePath* path, _GtkTreeViewColumn* focusColumn,
                              int edit);
void gtk_widget_class_set_accessible_type(_GtkWidgetClass* type, GType accessible);
AtkObject* gtk_widget_get_accessible(GtkWidget* widget);
void gtk_widget_get_allocation(GtkWidget* widget, GtkRectangle* allocation);
int gtk_widget_get_mapped(GtkWidget* widget);
void gtk_widget_get_preferred_size(GtkWidget* widget, GtkSizeNeeded* least, GtkSizeNeeded* natural);
_GtkStyleContext* gtk_widget_get_style_context(GtkWidget* widget);
GtkWidget* gtk_widget_get_parent(GtkWidget* widget);
GtkWidget* gtk_widget_get_toplevel(GtkWidget* widget);
GType gtk_widget_get_type();
int gtk_widget_has_focus(GtkWidget* widget);
int gtk_widget_is_ancestor(GtkWidget* widget, GtkWidget* ancestor);
void gtk_widget_realize(GtkWidget* widget);
void gtk_widget_size_allocate(GtkWidget* widget, GtkRectangle* allocation);
GtkWidget* gtk_window_get_focus(_GtkWindow* window);
int gtk_window_mnemonic_activate(_GtkWindow* window, guint symbol, int modifiers);
_PangoFont* pango_context_load_font(_PangoContext* context, const _PangoFontDescription* description);
void pango_font_description_free(_PangoFontDescription* description);
_PangoFontDescription* pango_font_description_from_string(const char* text);
}
