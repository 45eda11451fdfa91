#include "desktop/Pictures.h"

#include <string>

namespace zy {
namespace {

constexpr const char* kUp = "M2 11 L8 5 L14 11 Z";
constexpr const char* kDown = "M2 5 L8 11 L14 5 Z";

constexpr const char* kChart = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<rect x="0" y="0" width="16" height="16" rx="2" fill="#ffffff"/>
<rect x="0.5" y="0.5" width="15" height="15" rx="1.5" fill="none" stroke="#4a5a6a"/>
<path d="M1 4 H15 M1 12 H15" stroke="#c03020" stroke-width="1" fill="none"/>
<path d="M1 8 H15" stroke="#2f8f4f" stroke-width="1" fill="none"/>
<path d="M2 9 L5 6.5 L8 9.5 L11 5.5 L14 7.5" stroke="#1f4f9f" stroke-width="1.3" fill="none"/>
<circle cx="5" cy="6.5" r="1.1" fill="#1f4f9f"/><circle cx="8" cy="9.5" r="1.1" fill="#1f4f9f"/>
<circle cx="11" cy="5.5" r="1.1" fill="#1f4f9f"/></svg>)";

constexpr const char* kLargeChart = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 96 96">
<rect x="1" y="1" width="94" height="94" rx="7" fill="#fbfcfd" stroke="#4a5a6a" stroke-width="2"/>
<rect x="14" y="22" width="76" height="52" fill="#eef4ee"/>
<path d="M14 10 V84 H90" stroke="#4a5a6a" stroke-width="2" fill="none"/>
<path d="M14 22 H90 M14 74 H90" stroke="#c03020" stroke-width="2" fill="none"/>
<path d="M14 35 H90 M14 61 H90" stroke="#d8a018" stroke-width="1.4" fill="none"/>
<path d="M14 48 H90" stroke="#2f8f4f" stroke-width="2" fill="none"/>
<path d="M19 52 L28 43 L37 56 L46 40 L55 50 L64 30 L73 15 L83 44" stroke="#1f4f9f" stroke-width="2.4" fill="none"/>
<circle cx="19" cy="52" r="3" fill="#1f4f9f"/><circle cx="28" cy="43" r="3" fill="#1f4f9f"/>
<circle cx="37" cy="56" r="3" fill="#1f4f9f"/><circle cx="46" cy="40" r="3" fill="#1f4f9f"/>
<circle cx="55" cy="50" r="3" fill="#1f4f9f"/><circle cx="64" cy="30" r="3" fill="#1f4f9f"/>
<circle cx="83" cy="44" r="3" fill="#1f4f9f"/>
<circle cx="73" cy="15" r="5" fill="#c03020"/><circle cx="73" cy="15" r="2" fill="#ffffff"/></svg>)";

} // namespace

wxBitmapBundle Silhouette(const char* path, int size, const wxColour& colour) {
    const std::string svg =
        std::string(R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16"><path d=")") + path +
        R"(" fill=")" + colour.GetAsString(wxC2S_HTML_SYNTAX).ToStdString() + R"("/></svg>)";
    return wxBitmapBundle::FromSVG(svg.c_str(), wxSize(size, size));
}

wxBitmapBundle UpArrow(int size, const wxColour& colour) {
    return Silhouette(kUp, size, colour);
}

wxBitmapBundle DownArrow(int size, const wxColour& colour) {
    return Silhouette(kDown, size, colour);
}

wxBitmapBundle ProgramPicture(int size) {
    return wxBitmapBundle::FromSVG(kLargeChart, wxSize(size, size));
}

wxIconBundle ProgramIcon() {
    wxIconBundle icons;
    for (const int size : {16, 32, 48, 64}) {
        const auto picture = wxBitmapBundle::FromSVG(kChart, wxSize(size, size));
        icons.AddIcon(picture.GetIcon(wxSize(size, size)));
    }
    return icons;
}

} // namespace zy
