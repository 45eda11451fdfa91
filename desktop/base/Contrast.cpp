#include "desktop/Contrast.h"

#include <wx/settings.h>

#include <algorithm>
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

/// A colour that has so much contrast to another one, as close to the usual one as can be.
wxColour ContrastingColour(const wxColour& usual, const wxColour& other, double contrast, bool darker) {
    constexpr int kAsItIs = 100; // per cent of its lightness
    wxColour colour = usual;
    for (int step = 1; step < kAsItIs && Contrast(colour, other) < contrast; ++step) {
        colour = usual.ChangeLightness(darker ? kAsItIs - step : kAsItIs + step);
    }
    return colour;
}

} // namespace

double Contrast(const wxColour& one, const wxColour& other) {
    constexpr double kStrayLight = 0.05;
    const auto [darker, lighter] = std::minmax({LightOf(one), LightOf(other)});
    return (lighter + kStrayLight) / (darker + kStrayLight);
}

wxColour SelectionGround() {
    const wxColour usual = wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT);
    const wxColour text = wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHTTEXT);
    return ContrastingColour(usual, text, kReadable, LightOf(text) > LightOf(usual));
}

wxColour ColourNoticedOn(const wxColour& ground, const wxColour& usual) {
    constexpr double kMiddle = 0.18; // as far from black as from white
    return ContrastingColour(usual, ground, kNoticeable, LightOf(ground) > kMiddle);
}

wxColour NoticeableColour(const wxColour& usual) {
    const bool isSeen = Contrast(usual, wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW)) >= kNoticeable;
    return isSeen ? usual : wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT);
}

} // namespace zy
