#include "desktop/AccessiblePartsMsw.h"

#include <wx/window.h>

namespace zy {

bool AccessibleParts::HasKeyboard() const {
    // A window may say that it always has, so that the toolkit draws it so.
    return window_.wxWindow::HasFocus();
}

wxAccStatus AccessibleParts::GetChildCount(int* count) {
    *count = Count();
    return wxACC_OK;
}

wxAccStatus AccessibleParts::GetChild(int /*number*/, wxAccessible** child) {
    *child = nullptr;
    return wxACC_OK;
}

wxAccStatus AccessibleParts::GetValue(int /*number*/, wxString* /*value*/) {
    return wxACC_NOT_SUPPORTED;
}

wxAccStatus AccessibleParts::GetLocation(wxRect& place, int number) {
    if (number == kItself) {
        return wxACC_NOT_IMPLEMENTED; // the system knows it
    }
    place = PlaceOf(number);
    return wxACC_OK;
}

wxAccStatus AccessibleParts::Navigate(wxNavDir direction, int from, int* number, wxAccessible** child) {
    *child = nullptr;
    if (from == kItself && direction != wxNAVDIR_FIRSTCHILD && direction != wxNAVDIR_LASTCHILD) {
        return wxACC_NOT_IMPLEMENTED; // from window to window
    }
    *number = NumberFrom(from, direction);
    return *number > kItself && *number <= Count() ? wxACC_OK : wxACC_FALSE;
}

wxAccStatus AccessibleParts::GetFocus(int* number, wxAccessible** child) {
    *number = HasKeyboard() ? NumberOfCurrent() : kItself;
    *child = HasKeyboard() && *number == kItself ? this : nullptr;
    return wxACC_OK;
}

PartsTold::PartsTold(wxWindow& window, AccessibleParts* parts) : window_(&window), parts_(parts) {
    window.SetAccessible(parts);
    window.Bind(wxEVT_SET_FOCUS, &PartsTold::TakeFocus, this);
}

PartsTold::~PartsTold() {
    if (window_) {
        window_->Unbind(wxEVT_SET_FOCUS, &PartsTold::TakeFocus, this);
        window_->SetAccessible(nullptr);
    }
}

void PartsTold::TellFocus() const {
    if (parts_->HasKeyboard()) {
        TellOfCurrent(wxACC_EVENT_OBJECT_FOCUS);
    }
}

void PartsTold::TakeFocus(wxFocusEvent& event) {
    event.Skip();
    // Behind the system's own event, which is of the window as a whole.
    CallAfter([this] { TellFocus(); });
}

void PartsTold::Tell(int event, int number) const {
    wxAccessible::NotifyEvent(event, window_, wxOBJID_CLIENT, number);
}

} // namespace zy
