#include "desktop/PageArea.h"

#include <wx/frame.h>
#include <wx/panel.h>

#include <algorithm>
#include <cmath>

#include "desktop/Panels.h"

namespace zy {
namespace {

/// How many steps of that length to go until something lies inside the room, its beginning at least.
int StepsTo(int place, int length, int room, int step) {
    const int beyond = place + length - room;
    if (place < 0 || (beyond > 0 && length > room)) {
        return static_cast<int>(std::floor(1.0 * place / step));
    }
    return std::max(beyond + step - 1, 0) / step;
}

} // namespace

PageArea::PageArea(wxFrame& frame)
    : wxScrolledWindow(&frame, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxBORDER_NONE),
      page_(MakeOuterPanel(*this)) {
    const int step = GetCharHeight();
    SetScrollRate(step, step);
    KeepScrollBarsInSight(*this);
}

wxWindow& PageArea::PageIn(wxWindow& window) {
    for (auto* child : window.GetChildren()) {
        if (const auto* area = dynamic_cast<PageArea*>(child)) {
            return *area->Page();
        }
    }
    return window;
}

void PageArea::FitPage(const wxSize& least) {
    SetVirtualSize(least);
    wxSize size = GetClientSize();
    size.IncTo(least);
    page_->SetSize(wxRect(CalcScrolledPosition(wxPoint()), size));
}

void PageArea::ShowWhole(const wxRect& place) {
    const wxSize room = GetClientSize();
    const wxPoint seen = CalcScrolledPosition(place.GetPosition());
    wxPoint step;
    GetScrollPixelsPerUnit(&step.x, &step.y);
    const wxPoint start = GetViewStart();
    Scroll(start.x + StepsTo(seen.x, place.width, room.x, step.x),
           start.y + StepsTo(seen.y, place.height, room.y, step.y));
}

} // namespace zy
