#include "MessageBoxes.h"

#include "desktop/GtkFunctions.h"

struct _GtkDialog;
struct _GtkMessageDialog;
struct _GtkWindow;

extern "C" {
int gdk_window_get_origin(GdkWindow* window, int* x, int* y);
GtkWidget* gtk_dialog_get_widget_for_response(_GtkDialog* dialog, int response);
GtkWidget* gtk_message_dialog_get_image(_GtkMessageDialog* dialog);
int gtk_widget_get_visible(GtkWidget* widget);
GdkWindow* gtk_widget_get_window(GtkWidget* widget);
int gtk_widget_translate_coordinates(GtkWidget* from, GtkWidget* to, int x, int y, int* toX, int* toY);
GtkWidget* gtk_window_get_default_widget(_GtkWindow* window);
const char* gtk_window_get_title(_GtkWindow* window);
int gtk_window_is_active(_GtkWindow* window);
}

namespace zy::test {
namespace {

_GtkWindow* WindowOf(const wxMessageDialog& box) {
    return reinterpret_cast<_GtkWindow*>(box.m_widget);
}

GtkWidget* WidgetOf(const wxMessageDialog& box, int answer) {
    constexpr int kResponseOk = -5;
    constexpr int kResponseYes = -8;
    constexpr int kResponseNo = -9;
    const int response = answer == wxID_YES ? kResponseYes : answer == wxID_NO ? kResponseNo : kResponseOk;
    return gtk_dialog_get_widget_for_response(reinterpret_cast<_GtkDialog*>(box.m_widget), response);
}

} // namespace

wxMessageDialog* MessageBoxes::Active() const {
    auto* box = open_.empty() ? nullptr : open_.back();
    return box != nullptr && box->m_widget != nullptr && gtk_window_is_active(WindowOf(*box)) != 0 ? box
                                                                                                   : nullptr;
}

int MessageBoxes::Enter(wxDialog* dialog) {
    if (auto* box = dynamic_cast<wxMessageDialog*>(dialog)) {
        open_.push_back(box);
        seen_.push_back(box->GetMessage().utf8_string());
    }
    return wxID_NONE;
}

void MessageBoxes::Exit(wxDialog* dialog) {
    std::erase(open_, dialog);
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

} // namespace zy::test
