#include <wx/msw/wrapwin.h>
#include <wx/panel.h>

#include <oleacc.h>

#include "desktop/AccessibleMsw.h"
#include "desktop/GridNative.h"

namespace zy {

wxWindow* MakeSurround(wxWindow* parent) {
    // A panel hands the focus on to the grid in it.
    return new wxPanel(parent, wxID_ANY);
}

void PresentCell(wxWindow& gridWindow, const wxString& text, bool announce) {
    AnnotateRole(gridWindow, ROLE_SYSTEM_CELL);
    AnnotateName(gridWindow, text);
    if (announce) {
        AnnounceName(gridWindow);
    }
}

} // namespace zy
