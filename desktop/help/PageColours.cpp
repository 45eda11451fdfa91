#include "desktop/PageColours.h"

#include <wx/settings.h>

#include <array>

#include "desktop/Contrast.h"

namespace zy {
namespace {

struct NamedColour {
    const char* name;
    wxSystemColour colour;
};

constexpr std::array kNamedColours{
    NamedColour{"window", wxSYS_COLOUR_WINDOW},
    NamedColour{"windowtext", wxSYS_COLOUR_WINDOWTEXT},
    NamedColour{"highlight", wxSYS_COLOUR_HIGHLIGHT},
    NamedColour{"highlighttext", wxSYS_COLOUR_HIGHLIGHTTEXT},
    NamedColour{"buttonface", wxSYS_COLOUR_BTNFACE},
    NamedColour{"buttontext", wxSYS_COLOUR_BTNTEXT},
};

void Paint(wxString& page, const wxString& name, const wxColour& colour) {
    page.Replace("=\"" + name + '"', "=\"" + colour.GetAsString(wxC2S_HTML_SYNTAX) + '"');
}

} // namespace

wxString WithDesktopColours(const wxString& page) {
    wxString painted = page;
    for (const auto& [name, colour] : kNamedColours) {
        Paint(painted, name, wxSystemSettings::GetColour(colour));
    }
    // Links are underlined too.
    Paint(painted, "linktext", NoticeableColour(wxSystemSettings::GetColour(wxSYS_COLOUR_HOTLIGHT)));
    return painted;
}

} // namespace zy
