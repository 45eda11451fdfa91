#include "desktop/PageColours.h"

#include <wx/settings.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace zy {
namespace {

/// One of red, green and blue as the amount of light that it gives.
double LightOf(unsigned char part) {
    const double share = part / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double LightOf(const wxColour& colour) {
    return 0.2126 * LightOf(colour.Red()) + 0.7152 * LightOf(colour.Green()) +
           0.0722 * LightOf(colour.Blue());
}

/// The colour of links, where it can be seen; links are underlined too.
wxColour LinkColour() {
    constexpr double kEnough = 3;
    const auto usual = wxSystemSettings::GetColour(wxSYS_COLOUR_HOTLIGHT);
    const bool isSeen = Contrast(usual, wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW)) >= kEnough;
    return isSeen ? usual : wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT);
}

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
    Paint(painted, "linktext", LinkColour());
    return painted;
}

double Contrast(const wxColour& one, const wxColour& other) {
    constexpr double kStrayLight = 0.05;
    const auto [darker, lighter] = std::minmax({LightOf(one), LightOf(other)});
    return (lighter + kStrayLight) / (darker + kStrayLight);
}

} // namespace zy
