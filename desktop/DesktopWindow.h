#pragma once

#include <wx/gdicmn.h>
#include <wx/timer.h>
#include <wx/weakref.h>

#include <functional>
#include <optional>
#include <utility>

#include "platform/NativeWindow.h"

class wxFrame;

namespace zy {

/// The main window as the program's start and end deal with it. The real window comes when an editor opens;
/// until then this one remembers what was asked of it.
class DesktopWindow final : public NativeWindow {
  public:
    explicit DesktopWindow(std::function<void()> startToolkit) : startToolkit_(std::move(startToolkit)) {}

    WindowHandle Handle() override;
    WindowProcedure SetProcedure(WindowProcedure procedure) override;
    PixelRect NormalRectangle() override;
    void SetPosition(const PixelRect& place, std::uint32_t flags) override;
    void Show(int /*command*/) override {} // the editor that opens shows it
    double TwipsPerPixelX() override { return TwipsPerPixel(); }
    double TwipsPerPixelY() override { return TwipsPerPixel(); }
    PixelPoint ScreenSize() override;

    /// The real window, not shown yet: gives it its bounds and its place.
    void Attach(wxFrame& frame);

  private:
    double TwipsPerPixel();
    wxRect DesignedPlace();
    void SetBounds();
    bool IsNormal() const;
    /// The window has moved or has another size.
    void FollowPlace();
    /// Some time behind the last event: a window that is being maximized tells of its new place before it
    /// tells that it is maximized.
    void NotePlace();

    std::function<void()> startToolkit_;
    WindowProcedure procedure_ = [](const WindowMessage&) { return 0; };
    std::optional<wxRect> place_; ///< the last one that was neither maximized nor minimized
    wxWeakRef<wxFrame> frame_;
    std::optional<wxTimer> settled_;
};

} // namespace zy
