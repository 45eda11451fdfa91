#pragma once

#include <wx/timer.h>
#include <wx/weakref.h>

#include <functional>
#include <optional>
#include <utility>

#include "desktop/DesktopWindow.h"

namespace zy {

/// The main window of a window system that has no messages and tells of a place some time after it was
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
    /// The window has moved or has another size.
    void FollowPlace();
    /// Some time behind the last event: a window that is being maximized tells of its new place before it
    /// tells that it is maximized.
    void NotePlace();

    WindowProcedure procedure_ = [](const WindowMessage&) { return 0; };
    wxWeakRef<wxFrame> frame_;
    std::optional<wxTimer> settled_;
};

} // namespace zy
