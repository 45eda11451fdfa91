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

/// A ground on which the text can be read, as close to the usual one as can be.
wxColour ReadableGround(const wxColour& usual, const wxColour& text) {
    constexpr int kAsItIs = 100; // per cent of its lightness
    const int away = LightOf(text) > LightOf(usual) ? -1 : 1;
    wxColour ground = usual;
    for (int step = 1; step < kAsItIs && Contrast(ground, text) < kReadable; ++step) {
        ground = usual.ChangeLightness(kAsItIs + away * step);
    }
    return ground;
}

} // namespace

double Contrast(const wxColour& one, const wxColour& other) {
    constexpr double kStrayLight = 0.05;
    const auto [darker, lighter] = std::minmax({LightOf(one), LightOf(other)});
    return (lighter + kStrayLight) / (darker + kStrayLight);
}

wxColour SelectionGround() {
    return ReadableGround(wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT),
                          wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHTTEXT));
}

wxColour NoticeableColour(const wxColour& usual) {
    const bool isSeen = Contrast(usual, wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW)) >= kNoticeable;
    return isSeen ? usual : wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT);
}

} // namespace zy
