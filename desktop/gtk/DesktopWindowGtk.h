#pragma once

#include <wx/event.h>
#include <wx/weakref.h>

#include <chrono>
#include <functional>
#include <optional>
#include <utility>

#include "desktop/DesktopWindow.h"

namespace zy {

/// The main window of a window system that has no messages and reports a place some time after it was
/// taken.
class DesktopWindowGtk final : public DesktopWindow {
  public:
    explicit DesktopWindowGtk(std::function<void()> startToolkit) : DesktopWindow(std::move(startToolkit)) {}

    WindowHandle Handle() override;
    WindowProcedure SetProcedure(WindowProcedure procedure) override;
    PixelRect NormalRectangle() override;
    void SetPosition(const PixelRect& place, std::uint32_t flags) override;
    void Show(int /*command*/) override {} // the editor that opens shows it
    double TwipsPerPixelX() override { return TwipsPerPixel(); }
    double TwipsPerPixelY() override { return TwipsPerPixel(); }

    void Attach(wxFrame& frame) override;

  private:
    double TwipsPerPixel();
    void SetBounds();
    bool IsNormal() const;
    /// The window has moved, has another size or another state. A window that is being maximized may report
    /// its new place before it reports that it is maximized, so a place counts once the window has stood
    /// there for a moment.
    void FollowPlace();

    using Clock = std::chrono::steady_clock;

    /// Where the window stands as neither maximized nor minimized.
    struct Stand {
        wxRect place;
        Clock::time_point since;
    };

    WindowProcedure procedure_ = [](const WindowMessage&) { return 0; };
    wxWeakRef<wxFrame> frame_;
    std::optional<Stand> stand_;
};

} // namespace zy
