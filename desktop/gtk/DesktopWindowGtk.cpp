#include "desktop/DesktopWindowGtk.h"

#include <wx/frame.h>

#include <bit>
#include <memory>

#include "desktop/Displays.h"
#include "desktop/Native.h"
#include "desktop/Scale.h"
#include "desktop/Toolkit.h"

namespace zy {

std::unique_ptr<DesktopWindow> MakeDesktopWindow(std::function<void()> startToolkit) {
    return std::make_unique<DesktopWindowGtk>(std::move(startToolkit));
}

WindowHandle DesktopWindowGtk::Handle() {
    return std::bit_cast<WindowHandle>(this);
}

WindowProcedure DesktopWindowGtk::SetProcedure(WindowProcedure procedure) {
    auto before = std::exchange(procedure_, std::move(procedure));
    SetBounds();
    return before;
}

PixelRect DesktopWindowGtk::NormalRectangle() {
    if (IsNormal()) {
        SetPlace(frame_->GetRect());
    }
    return ToPixelRect(Place());
}

void DesktopWindowGtk::SetPosition(const PixelRect& place, std::uint32_t /*flags*/) {
    SetPlace(ToRect(place));
    if (frame_) {
        frame_->SetSize(Place());
    }
}

double DesktopWindowGtk::TwipsPerPixel() {
    try {
        StartToolkit();
        return Scale(DotsPerInch()).TwipsPerPixel();
    } catch (const CannotShow&) {
        // Whether a display is needed at all is not known yet.
        constexpr double kUsual = 15;
        return kUsual;
    }
}

void DesktopWindowGtk::Attach(wxFrame& frame) {
    frame_ = &frame;
    SetBounds();
    wxRect wanted = Place();
    wxSize size = wanted.GetSize();
    size.DecTo(SizeOfScreens());
    size.IncTo(frame.GetMinSize());
    wanted.SetSize(size);
    SetPlace(Reachable(wanted, RoomOnScreens()));
    frame.SetSize(Place());
    const auto follow = [this](wxEvent& event) {
        event.Skip();
        FollowPlace();
    };
    frame.Bind(wxEVT_MOVE, follow);
    frame.Bind(wxEVT_SIZE, follow);
    frame.Bind(wxEVT_MAXIMIZE, follow);
    frame.Bind(wxEVT_ICONIZE, follow);
}

void DesktopWindowGtk::SetBounds() {
    if (frame_) {
        MinMaxInfo bounds;
        procedure_(
            {.window = Handle(), .message = kGetMinMaxInfo, .lParam = std::bit_cast<std::intptr_t>(&bounds)});
        const auto toSize = [](const PixelPoint& size) {
            return size == PixelPoint() ? wxDefaultSize : wxSize(size.x, size.y);
        };
        wxSize least = toSize(bounds.minTrackSize);
        // A window that is larger than its screen cannot be seen whole.
        least.DecTo(RoomFor(Place(), RoomOnScreens()).GetSize());
        frame_->SetSizeHints(least, toSize(bounds.maxTrackSize));
    }
}

bool DesktopWindowGtk::IsNormal() const {
    return frame_ && frame_->IsShown() && !frame_->IsMaximized() && !frame_->IsIconized();
}

void DesktopWindowGtk::FollowPlace() {
    constexpr std::chrono::milliseconds kUntilSettled{250};
    const auto now = Clock::now();
    if (stand_ && now - stand_->since >= kUntilSettled) {
        SetPlace(stand_->place);
    }
    stand_.reset();
    if (IsNormal()) {
        stand_ = {.place = frame_->GetRect(), .since = now};
    }
}

} // namespace zy
