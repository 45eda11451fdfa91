#include <glib-object.h>
#include <wx/app.h>
#include <wx/choice.h>
#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/dataview.h>
#include <wx/msgdlg.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <stdexcept>

#include "Hands.h"
#include "NativeLook.h"
#include "desktop/GtkFunctions.h"

// NOLINTBEGIN(bugprone-reserved-identifier): the names are GTK's own
struct _GtkDialog;
struct _GtkLabel;
struct _GtkMessageDialog;
struct _GtkWindow;
// NOLINTEND(bugprone-reserved-identifier)

extern "C" {
int gdk_window_get_origin(GdkWindow* window, int* x, int* y);
GtkWidget* gtk_dialog_get_widget_for_response(_GtkDialog* dialog, int response);
void gtk_entry_get_layout_offsets(_GtkEntry* entry, int* x, int* y);
unsigned gtk_entry_get_invisible_char(_GtkEntry* entry);
int gtk_entry_get_visibility(_GtkEntry* entry);
GtkWidget* gtk_message_dialog_get_image(_GtkMessageDialog* dialog);
GList* gtk_container_get_children(_GtkContainer* container);
unsigned long gtk_container_get_type();
const char* gtk_label_get_text(_GtkLabel* label);
unsigned long gtk_label_get_type();
GList* gtk_window_list_toplevels();
int gtk_widget_get_visible(GtkWidget* widget);
GdkWindow* gtk_widget_get_window(GtkWidget* widget);
int gtk_widget_translate_coordinates(GtkWidget* from, GtkWidget* to, int x, int y, int* toX, int* toY);
GtkWidget* gtk_window_get_default_widget(_GtkWindow* window);
const char* gtk_window_get_title(_GtkWindow* window);
int gtk_window_is_active(_GtkWindow* window);
}

namespace zy::test {
namespace {

void Run(const std::string& command) {
    if (std::system(command.c_str()) != 0) {
        throw std::runtime_error("failed: " + command);
    }
}

_GtkWindow* WindowOf(const wxDialog& box) {
    return reinterpret_cast<_GtkWindow*>(box.m_widget);
}

GtkWidget* WidgetOf(const wxMessageDialog& box, int answer) {
    constexpr int kResponseOk = -5;
    constexpr int kResponseYes = -8;
    constexpr int kResponseNo = -9;
    const int response = answer == wxID_YES ? kResponseYes : answer == wxID_NO ? kResponseNo : kResponseOk;
    return gtk_dialog_get_widget_for_response(reinterpret_cast<_GtkDialog*>(box.m_widget), response);
}

bool IsA(GtkWidget* widget, GType type) {
    return g_type_check_instance_is_a(reinterpret_cast<GTypeInstance*>(widget), type) != 0;
}

using Widgets = std::unique_ptr<GList, decltype(&g_list_free)>;

/// The text of the visible labels in a widget.
std::string TextsIn(GtkWidget* widget) {
    if (gtk_widget_get_visible(widget) == 0) {
        return {};
    }
    std::string text;
    if (IsA(widget, gtk_label_get_type())) {
        text = gtk_label_get_text(reinterpret_cast<_GtkLabel*>(widget));
    } else if (IsA(widget, gtk_container_get_type())) {
        const Widgets inner(gtk_container_get_children(reinterpret_cast<_GtkContainer*>(widget)),
                            g_list_free);
        for (const GList* each = inner.get(); each != nullptr; each = each->next) {
            text += TextsIn(static_cast<GtkWidget*>(each->data));
        }
    }
    return text;
}

} // namespace

void AwaitWork() {
    // The toolkit's own way of handing work over needs nothing.
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the other system keeps it
void HandToWindow(std::function<void()> work) {
    wxTheApp->CallAfter(work);
}

bool HasKeyboard(const wxDialog& box) {
    return box.m_widget != nullptr && gtk_window_is_active(WindowOf(box)) != 0;
}

std::chrono::milliseconds UntilNewWindowKeepsKeyboard() {
    return {};
}

std::string TitleOf(const wxMessageDialog& box) {
    return gtk_window_get_title(WindowOf(box));
}

wxPoint ButtonOf(const wxMessageDialog& box, int answer) {
    GtkWidget* button = WidgetOf(box, answer);
    GtkRectangle size{};
    gtk_widget_get_allocation(button, &size);
    wxPoint inBox;
    gtk_widget_translate_coordinates(button, box.m_widget, size.width / 2, size.height / 2, &inBox.x,
                                     &inBox.y);
    wxPoint origin;
    gdk_window_get_origin(gtk_widget_get_window(box.m_widget), &origin.x, &origin.y);
    return origin + inBox;
}

bool IsDefault(const wxMessageDialog& box, int answer) {
    return gtk_window_get_default_widget(WindowOf(box)) == WidgetOf(box, answer);
}

bool HasPicture(const wxMessageDialog& box) {
    auto* picture = gtk_message_dialog_get_image(reinterpret_cast<_GtkMessageDialog*>(box.m_widget));
    return picture != nullptr && gtk_widget_get_visible(picture) != 0;
}

bool CanBeCancelled(const wxMessageDialog& /*box*/) {
    return true;
}

bool HasDroppedDown(const wxChoice& choice) {
    gboolean shown = 0;
    g_object_get(G_OBJECT(choice.m_widget), "popup-shown", &shown, nullptr);
    return shown != 0;
}

bool IsMenuOpen() {
    return gtk_grab_get_current() != nullptr;
}

bool KeysStopAtDisabledEntries() {
    return false;
}

std::optional<wxUniChar> PasswordCharacterOf(const wxTextCtrl& box) {
    auto* entry = reinterpret_cast<_GtkEntry*>(box.GetHandle());
    if (gtk_entry_get_visibility(entry) != 0) {
        return std::nullopt;
    }
    return wxUniChar(gtk_entry_get_invisible_char(entry));
}

bool ShowsWholeText(const wxTextCtrl& box) {
    auto* entry = reinterpret_cast<_GtkEntry*>(box.GetHandle());
    int scrolled = 0;
    g_object_get(G_OBJECT(entry), "scroll-offset", &scrolled, nullptr);
    int before = 0;
    gtk_entry_get_layout_offsets(entry, &before, nullptr);
    return scrolled == 0 && before + box.GetTextExtent(box.GetValue()).x <= box.GetSize().x;
}

std::optional<std::string> TipOnScreen() {
    const Widgets windows(gtk_window_list_toplevels(), g_list_free);
    for (const GList* each = windows.get(); each != nullptr; each = each->next) {
        auto* window = static_cast<GtkWidget*>(each->data);
        const std::string kind = g_type_name(G_OBJECT_TYPE(window));
        if (kind == "GtkTooltipWindow" && gtk_widget_get_mapped(window) != 0) {
            return TextsIn(window);
        }
    }
    return std::nullopt;
}

wxColour HeaderColourOf(wxDataViewCtrl& list) {
    auto* column = reinterpret_cast<_GtkTreeViewColumn*>(list.GetColumn(0)->GetGtkHandle());
    auto* style = gtk_widget_get_style_context(gtk_tree_view_column_get_button(column));
    GtkColour colour{};
    gtk_style_context_get_color(style, gtk_style_context_get_state(style), &colour);
    const auto part = [](double share) { return static_cast<unsigned char>(std::lround(share * 255)); };
    return {part(colour.red), part(colour.green), part(colour.blue)};
}

wxString TextOnClipboard() {
    wxTextDataObject text;
    const wxClipboardLocker open;
    wxTheClipboard->GetData(text);
    return text.GetText();
}

void TypeForeign(wxUniChar character) {
    Run(wxString::Format("xdotool key U%04X", character.GetValue()).utf8_string());
}

void PressMenuKey() {
    Run("xdotool key Menu");
}

void TurnWheel() {
    Run("xdotool click 5");
}

void TypeComposed(wxUniChar character) {
    wxUIActionSimulator keyboard;
    keyboard.Char('U', wxMOD_CONTROL | wxMOD_SHIFT); // a character by its number
    keyboard.Text(wxString::Format("%x", character.GetValue()).utf8_str());
    keyboard.Char(WXK_RETURN);
}

void DragBorder(Hands& hands, const wxPoint& from, const wxPoint& to) {
    constexpr std::chrono::milliseconds kUnhurried{60};
    hands.Drag(from, to, kUnhurried);
}

} // namespace zy::test
