#pragma once

#include <wx/gdicmn.h>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "platform/NativeWindow.h"

class wxFrame;

namespace zy {

/// The main window as the program's start and end deal with it. The real window comes when an editor opens;
/// until then this one remembers what was asked of it. Each window system has a kind of its own.
class DesktopWindow : public NativeWindow {
  public:
    PixelPoint ScreenSize() override;

    /// The real window, not shown yet: gives it its bounds and its place.
    virtual void Attach(wxFrame& frame) = 0;

  protected:
    explicit DesktopWindow(std::function<void()> startToolkit) : startToolkit_(std::move(startToolkit)) {}

    void StartToolkit() { startToolkit_(); }
    /// What was asked for or noted last, else the designed place.
    wxRect Place();
    void SetPlace(const wxRect& place) { place_ = place; }

  private:
    wxRect DesignedPlace();

    std::function<void()> startToolkit_;
    std::optional<wxRect> place_; ///< one that is neither maximized nor minimized
};

/// Makes the kind of this window system. `startToolkit` is called before anything needs the toolkit.
std::unique_ptr<DesktopWindow> MakeDesktopWindow(std::function<void()> startToolkit);

wxRect ToRect(const PixelRect& place);
PixelRect ToPixelRect(const wxRect& place);

} // namespace zy
