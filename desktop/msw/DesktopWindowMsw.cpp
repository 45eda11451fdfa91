#include "desktop/DesktopWindowMsw.h"

#include <wx/frame.h>

#include <algorithm>
#include <bit>

#include "controls/Geometry.h"
#include "desktop/Displays.h"
#include "desktop/Native.h"

namespace zy {
namespace {

static_assert(sizeof(MinMaxInfo) == sizeof(MINMAXINFO));
static_assert(kGetMinMaxInfo == WM_GETMINMAXINFO);

/// Under this name the real window keeps its DesktopWindowMsw.
constexpr const wchar_t* kOwner = L"zyGlobal";

MONITORINFO Describe(HMONITOR monitor) {
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    ::GetMonitorInfoW(monitor, &screen);
    return screen;
}

/// The system counts a window's normal place from where the room for windows begins on its screen.
wxPoint StartOfRoom(const RECT& place) {
    const auto screen = Describe(::MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST));
    return {screen.rcWork.left - screen.rcMonitor.left, screen.rcWork.top - screen.rcMonitor.top};
}

/// A window that is larger than its screen cannot be seen whole.
void KeepLeastSizeOnScreen(HWND window, MINMAXINFO& bounds) {
    const RECT room = Describe(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST)).rcWork;
    bounds.ptMinTrackSize.x = std::min(bounds.ptMinTrackSize.x, room.right - room.left);
    bounds.ptMinTrackSize.y = std::min(bounds.ptMinTrackSize.y, room.bottom - room.top);
}

} // namespace

std::unique_ptr<DesktopWindow> MakeDesktopWindow(std::function<void()> startToolkit) {
    return std::make_unique<DesktopWindowMsw>(std::move(startToolkit));
}

WindowHandle DesktopWindowMsw::Handle() {
    return std::bit_cast<WindowHandle>(window_);
}

WindowProcedure DesktopWindowMsw::SetProcedure(WindowProcedure procedure) {
    auto before = std::exchange(procedure_, std::move(procedure));
    if (window_ != nullptr) {
        InstallProcedure();
    }
    return before;
}

PixelRect DesktopWindowMsw::NormalRectangle() {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (window_ == nullptr || ::GetWindowPlacement(window_, &placement) == FALSE) {
        return ToPixelRect(Place());
    }
    const RECT& normal = placement.rcNormalPosition;
    const wxPoint start = StartOfRoom(normal);
    return {normal.left + start.x, normal.top + start.y, normal.right + start.x, normal.bottom + start.y};
}

void DesktopWindowMsw::SetPosition(const PixelRect& place, std::uint32_t flags) {
    SetPlace(ToRect(place));
    flags_ = flags;
    if (window_ != nullptr) {
        Move();
    }
}

void DesktopWindowMsw::Show(int command) {
    // The editor that opens shows the window, in the way that whoever started the program wants its first
    // one.
    if (window_ != nullptr && ::IsWindowVisible(window_) != FALSE) {
        ::ShowWindow(window_, command);
    }
}

double DesktopWindowMsw::TwipsPerPixelX() {
    return kTwipsPerInch / DotsPerInch();
}

double DesktopWindowMsw::TwipsPerPixelY() {
    return kTwipsPerInch / DotsPerInch();
}

void DesktopWindowMsw::Attach(wxFrame& frame) {
    window_ = frame.GetHandle();
    ::SetPropW(window_, kOwner, this);
    toolkits_ = std::bit_cast<WNDPROC>(::GetWindowLongPtrW(window_, GWLP_WNDPROC));
    InstallProcedure();
    frame.Bind(wxEVT_DESTROY, [this, &frame](wxWindowDestroyEvent& event) {
        event.Skip();
        if (event.GetEventObject() == &frame) {
            LetGo();
        }
    });
    const wxRect wanted(Place().GetPosition(), WithinBounds(Place().GetSize()));
    SetPlace(Reachable(wanted, RoomOnScreens()));
    Move();
    // When that brought it to a screen with more or fewer pixels an inch, the system has changed its size.
    Move();
}

wxSize DesktopWindowMsw::WithinBounds(wxSize size) const {
    MINMAXINFO bounds{};
    ::SendMessageW(window_, WM_GETMINMAXINFO, 0, std::bit_cast<LPARAM>(&bounds));
    size.DecTo(wxSize(bounds.ptMaxTrackSize.x, bounds.ptMaxTrackSize.y));
    size.IncTo(wxSize(bounds.ptMinTrackSize.x, bounds.ptMinTrackSize.y));
    return size;
}

void DesktopWindowMsw::Move() {
    const wxRect place = Place();
    ::SetWindowPos(window_, nullptr, place.x, place.y, place.width, place.height,
                   flags_ | SWP_NOZORDER | SWP_NOACTIVATE);
}

void DesktopWindowMsw::InstallProcedure() {
    InstallProcedure(procedure_.target<Own>() == nullptr ? &Receive : toolkits_);
}

void DesktopWindowMsw::InstallProcedure(WNDPROC procedure) {
    ::SetWindowLongPtrW(window_, GWLP_WNDPROC, std::bit_cast<LONG_PTR>(procedure));
}

void DesktopWindowMsw::LetGo() {
    InstallProcedure(toolkits_);
    ::RemovePropW(window_, kOwner);
    window_ = nullptr;
}

LRESULT CALLBACK DesktopWindowMsw::Receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto* const owner = static_cast<DesktopWindowMsw*>(::GetPropW(window, kOwner));
    // Copied, for a message that closes the window puts another one in its place.
    const auto procedure = owner->procedure_;
    const auto result = procedure({.window = std::bit_cast<WindowHandle>(window),
                                   .message = message,
                                   .wParam = wParam,
                                   .lParam = lParam});
    if (message == WM_GETMINMAXINFO) {
        KeepLeastSizeOnScreen(window, *std::bit_cast<MINMAXINFO*>(lParam));
    }
    return result;
}

std::intptr_t DesktopWindowMsw::PassOn(const WindowMessage& message) const {
    if (toolkits_ == nullptr) {
        return 0;
    }
    return ::CallWindowProcW(toolkits_, std::bit_cast<HWND>(message.window), message.message, message.wParam,
                             message.lParam);
}

} // namespace zy
