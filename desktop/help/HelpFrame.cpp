#include "desktop/HelpFrame.h"

#include <wx/display.h>

#include <string>

#include "desktop/Displays.h"
#include "desktop/HelpWindow.h"
#include "desktop/Native.h"
#include "desktop/Pictures.h"
#include "shell/Application.h"

namespace zy {
namespace {

/// Room for a picture beside the contents, as far as the screen has it.
wxRect PlaceOver(const wxWindow& owner) {
    const wxRect screen = wxDisplay(&owner).GetClientArea();
    wxSize size = owner.FromDIP(wxSize(1000, 700));
    size.DecTo(screen.GetSize());
    return MovedInside(wxRect(size).CentreIn(owner.GetScreenRect()), screen);
}

} // namespace

HelpFrame::HelpFrame(wxWindow& owner, wxHtmlHelpData& book)
    : wxFrame(&owner, wxID_ANY, std::string(kApplicationTitle) + " - Help"),
      inside_(new HelpWindow(this, book)) {
    SetIcons(ProgramIcon());
    SetSize(PlaceOver(owner));
    LayOutUnseen(*this);
    Bind(wxEVT_CHAR_HOOK, &HelpFrame::PressKey, this);
}

void HelpFrame::PressKey(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    if (key == WXK_ESCAPE && event.GetModifiers() == wxMOD_NONE) {
        Close();
    } else if (key == WXK_LEFT && event.GetModifiers() == wxMOD_ALT) {
        inside_->GoBack();
    } else if (key == WXK_RIGHT && event.GetModifiers() == wxMOD_ALT) {
        inside_->GoForward();
    } else {
        event.Skip();
    }
}

} // namespace zy
