#include "desktop/HelpTools.h"

#include <wx/bmpbuttn.h>
#include <wx/html/helpwnd.h>
#include <wx/settings.h>
#include <wx/sizer.h>

#include <array>

#include "desktop/Native.h"
#include "desktop/Pictures.h"

namespace zy {
namespace {

struct Tool {
    int id;
    const char* name;
    const char* picture;
};

constexpr const char* kPane = "M1 2 H15 V14 H1 Z M2.5 3.5 V12.5 H5.5 V3.5 Z M7 3.5 V12.5 H13.5 V3.5 Z";
constexpr const char* kLeft = "M7 2 L1 8 L7 14 V10 H15 V6 H7 Z";
constexpr const char* kRight = "M9 2 L15 8 L9 14 V10 H1 V6 H9 Z";
constexpr const char* kOut = "M9 1 L4 6 H7.5 V12 H2 V15 H10.5 V6 H14 Z";
constexpr const char* kUpwards = "M8 2 L2 8 H6 V14 H10 V8 H14 Z";
constexpr const char* kDownwards = "M8 14 L14 8 H10 V2 H6 V8 H2 Z";
constexpr const char* kPrinter = "M4 1 H12 V5 H15 V12 H12 V15 H4 V12 H1 V5 H4 Z M5.5 2.5 V5 H10.5 V2.5 Z "
                                 "M5.5 9.5 V13.5 H10.5 V9.5 Z";
constexpr const char* kLetterAndPlus = "M5 2 H7 L11 14 H9 L8 10.5 H4 L3 14 H1 Z M4.6 8.7 H7.4 L6 4.5 Z "
                                       "M12 2 H13.5 V4 H15.5 V5.5 H13.5 V7.5 H12 V5.5 H10 V4 H12 Z";
constexpr const char* kLetterAndMinus =
    "M5 2 H7 L11 14 H9 L8 10.5 H4 L3 14 H1 Z M4.6 8.7 H7.4 L6 4.5 Z M10 4 H15.5 V5.5 H10 Z";

constexpr std::array kTools{
    Tool{wxID_HTML_PANEL, "Show or hide the contents", kPane},
    Tool{wxID_HTML_BACK, "Back", kLeft},
    Tool{wxID_HTML_FORWARD, "Forward", kRight},
    Tool{wxID_HTML_UPNODE, "First page of the chapter", kOut},
    Tool{wxID_HTML_UP, "Previous page", kUpwards},
    Tool{wxID_HTML_DOWN, "Next page", kDownwards},
    Tool{wxID_ZOOM_IN, "Larger text", kLetterAndPlus},
    Tool{wxID_ZOOM_OUT, "Smaller text", kLetterAndMinus},
    Tool{wxID_HTML_PRINT, "Print this page", kPrinter},
};

constexpr int kGap = 2;

wxBitmapBundle PictureOf(const Tool& tool) {
    constexpr int kSize = 20;
    return Silhouette(tool.picture, kSize, wxSystemSettings::GetColour(wxSYS_COLOUR_BTNTEXT));
}

} // namespace

HelpTools::HelpTools(wxWindow* parent) : wxPanel(parent) {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    for (const auto& tool : kTools) {
        auto* button = new wxBitmapButton(this, tool.id, PictureOf(tool));
        button->SetToolTip(tool.name);
        SetAccessibleName(*button, tool.name);
        row->Add(button, wxSizerFlags().Border(wxALL, FromDIP(kGap)));
    }
    SetSizer(row);
    Bind(wxEVT_SYS_COLOUR_CHANGED, [this](wxSysColourChangedEvent& event) {
        event.Skip();
        Draw();
    });
}

void HelpTools::Draw() {
    for (const auto& tool : kTools) {
        dynamic_cast<wxBitmapButton&>(*FindWindow(tool.id)).SetBitmap(PictureOf(tool));
    }
}

} // namespace zy
