#include <wx/msw/wrapwin.h>
#include <wx/panel.h>

#include <oleacc.h>

#include "desktop/AccessibleMsw.h"
#include "desktop/GridNative.h"
#include "desktop/Panels.h"

namespace zy {

wxWindow* MakeSurround(wxWindow* parent) {
    // A panel hands the focus on to the grid in it.
    return MakeInnerPanel(*parent);
}

void ShowOverCells(wxWindow& control, const wxRect& place) {
    control.SetSize(place);
    control.Show();
}

void HideOverCells(wxWindow& control) {
    control.Hide();
}

void PresentCell(wxWindow& gridWindow, const wxString& text, bool announce) {
    AnnotateRole(gridWindow, ROLE_SYSTEM_CELL);
    AnnotateName(gridWindow, text);
    if (announce) {
        AnnounceName(gridWindow);
    }
}

} // namespace zy
