#include "desktop/CutTexts.h"

#include <wx/utils.h>
#include <wx/window.h>

#include <utility>

namespace zy {
namespace {

void ShowTip(wxWindow& window, const wxString& text) {
    if (text.empty()) {
        window.UnsetToolTip();
    } else if (text != window.GetToolTipText()) {
        window.SetToolTip(text);
    }
}

} // namespace

void ShowCutTexts(wxWindow& window, std::function<wxString(const wxPoint&)> cutTextAt) {
    window.Bind(wxEVT_MOTION, [&window, cutTextAt = std::move(cutTextAt)](wxMouseEvent& event) {
        event.Skip();
        ShowTip(window, cutTextAt(wxGetMousePosition()));
    });
    window.Bind(wxEVT_LEAVE_WINDOW, [&window](wxMouseEvent& event) {
        event.Skip();
        window.UnsetToolTip();
    });
}

} // namespace zy
