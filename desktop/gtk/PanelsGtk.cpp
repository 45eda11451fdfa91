#include <glib-object.h>
#include <wx/panel.h>
#include <wx/scrolwin.h>
#include <wx/statbox.h>
#include <wx/stattext.h>

#include "desktop/GtkFunctions.h"
#include "desktop/Panels.h"

namespace zy {
namespace {

/// The toolkit has each text, and each box by its caption, name the next control that takes the focus, which
/// is the first one of another box here.
template <typename Window>
class Plain final : public Window {
  public:
    using Window::Window;

  protected:
    bool GTKWidgetNeedsMnemonic() const override { return false; }
};

} // namespace

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
    return new Plain<wxStaticBox>(&parent, wxID_ANY, caption);
}

wxStaticText* MakePlainText(wxWindow& parent, const wxString& text) {
    return new Plain<wxStaticText>(&parent, wxID_ANY, text);
}

} // namespace zy
