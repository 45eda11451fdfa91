#include <wx/msw/wrapwin.h>
#include <wx/panel.h>
#include <wx/settings.h>
#include <wx/textctrl.h>

#include "desktop/GridNative.h"
#include "desktop/Panels.h"

namespace zy {
namespace {

/// The system's line of text stays scrolled when it has got more room.
void ScrollBack(wxTextCtrl& text) {
    long start = 0;
    long end = 0;
    text.GetSelection(&start, &end);
    text.SetInsertionPoint(0);
    text.SetSelection(start, end);
}

} // namespace

wxWindow* MakeSurround(wxWindow* parent) {
    // A panel hands the focus on to the grid in it.
    return MakeInnerPanel(*parent);
}

wxColour HeaderTextColour() {
    return wxSystemSettings::GetColour(wxSYS_COLOUR_BTNTEXT);
}

void ShowOverCells(wxWindow& control, const wxRect& place) {
    const bool grows = place.width > control.GetSize().x;
    control.SetSize(place);
    control.Show();
    if (auto* text = dynamic_cast<wxTextCtrl*>(&control); text != nullptr && grows) {
        ScrollBack(*text);
    }
}

void HideOverCells(wxWindow& control) {
    control.Hide();
}

} // namespace zy
