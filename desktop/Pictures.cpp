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

wxBitmapBundle Arrow(const char* path, int size, const wxColour& colour) {
    const std::string svg = std::string(R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16"><path d=")") +
                            path + R"(" fill=")" + colour.GetAsString(wxC2S_HTML_SYNTAX).ToStdString() +
                            R"("/></svg>)";
    return wxBitmapBundle::FromSVG(svg.c_str(), wxSize(size, size));
}

} // namespace

wxBitmapBundle UpArrow(int size, const wxColour& colour) {
    return Arrow(kUp, size, colour);
}

wxBitmapBundle DownArrow(int size, const wxColour& colour) {
    return Arrow(kDown, size, colour);
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
