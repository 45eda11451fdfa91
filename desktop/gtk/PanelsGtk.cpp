#include <wx/panel.h>
#include <wx/statbox.h>

#include "desktop/Panels.h"

namespace zy {

wxPanel* MakeOuterPanel(wxWindow& window) {
    return new wxPanel(&window);
}

wxPanel* MakeInnerPanel(wxWindow& parent) {
    return new wxPanel(&parent);
}

wxStaticBox* MakeInnerBox(wxWindow& parent, const wxString& caption) {
    return new wxStaticBox(&parent, wxID_ANY, caption);
}

} // namespace zy
