#include "desktop/DesktopWindow.h"

#include <wx/frame.h>

#include <algorithm>
#include <bit>

#include "controls/Geometry.h"
#include "desktop/Displays.h"
#include "desktop/Native.h"
#include "desktop/Scale.h"
#include "desktop/Toolkit.h"

namespace zy {
namespace {

constexpr Size kDesignedSize{12000, 9600}; // twips

wxRect ToRect(const PixelRect& place) {
    return {place.left, place.top, place.right - place.left, place.bottom - place.top};
}

} // namespace

WindowHandle DesktopWindow::Handle() {
    return std::bit_cast<WindowHandle>(this);
}

WindowProcedure DesktopWindow::SetProcedure(WindowProcedure procedure) {
    auto before = std::exchange(procedure_, std::move(procedure));
    SetBounds();
    return before;
}

PixelRect DesktopWindow::NormalRectangle() {
    NotePlace();
    const wxRect place = place_ ? *place_ : DesignedPlace();
    return {place.x, place.y, place.x + place.width, place.y + place.height};
}

void DesktopWindow::SetPosition(const PixelRect& place, std::uint32_t /*flags*/) {
    place_ = ToRect(place);
    if (frame_) {
        frame_->SetSize(*place_);
    }
}

PixelPoint DesktopWindow::ScreenSize() {
    startToolkit_();
    const wxSize size = SizeOfScreens();
    return {size.x, size.y};
}

double DesktopWindow::TwipsPerPixel() {
    try {
        startToolkit_();
        return Scale(DotsPerInch()).TwipsPerPixel();
    } catch (const NoDisplay&) {
        // Whether a display is needed at all is not known yet.
        constexpr double kUsual = 15;
        return kUsual;
    }
}

wxRect DesktopWindow::DesignedPlace() {
    startToolkit_();
    wxRect place(Scale(DotsPerInch()).ToPixels({0, 0, kDesignedSize.width, kDesignedSize.height}).GetSize());
    const auto screens = RoomOnScreens();
    if (screens.empty()) {
        return place;
    }
    const wxRect& room = screens.front();
    place.width = std::min(place.width, room.width);
    place.height = std::min(place.height, room.height);
    return place.CentreIn(room);
}

void DesktopWindow::Attach(wxFrame& frame) {
    frame_ = &frame;
    SetBounds();
    wxRect wanted = place_ ? *place_ : DesignedPlace();
    wxSize size = wanted.GetSize();
    size.IncTo(frame.GetMinSize());
    size.DecTo(SizeOfScreens());
    wanted.SetSize(size);
    place_ = Reachable(wanted, RoomOnScreens());
    frame.SetSize(*place_);
    settled_.emplace();
    settled_->Bind(wxEVT_TIMER, [this](wxTimerEvent&) { NotePlace(); });
    frame.Bind(wxEVT_MOVE, [this](wxMoveEvent& event) {
        event.Skip();
        FollowPlace();
    });
    frame.Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        FollowPlace();
    });
}

void DesktopWindow::SetBounds() {
    if (frame_) {
        MinMaxInfo bounds;
        procedure_(
            {.window = Handle(), .message = kGetMinMaxInfo, .lParam = std::bit_cast<std::intptr_t>(&bounds)});
        const auto toSize = [](const PixelPoint& size) {
            return size == PixelPoint() ? wxDefaultSize : wxSize(size.x, size.y);
        };
        frame_->SetSizeHints(toSize(bounds.minTrackSize), toSize(bounds.maxTrackSize));
    }
}

bool DesktopWindow::IsNormal() const {
    return frame_ && frame_->IsShown() && !frame_->IsMaximized() && !frame_->IsIconized();
}

void DesktopWindow::FollowPlace() {
    constexpr int kUntilSettled = 250; // milliseconds
    settled_->StartOnce(kUntilSettled);
}

void DesktopWindow::NotePlace() {
    if (IsNormal()) {
        place_ = frame_->GetRect();
    }
}

} // namespace zy
