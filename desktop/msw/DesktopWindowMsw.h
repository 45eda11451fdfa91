#pragma once

#include <wx/msw/wrapwin.h>

#include <functional>
#include <utility>

#include "desktop/DesktopWindow.h"

namespace zy {

/// The main window as the system itself knows it.
class DesktopWindowMsw final : public DesktopWindow {
  public:
    explicit DesktopWindowMsw(std::function<void()> startToolkit) : DesktopWindow(std::move(startToolkit)) {}

    WindowHandle Handle() override;
    WindowProcedure SetProcedure(WindowProcedure procedure) override;
    PixelRect NormalRectangle() override;
    void SetPosition(const PixelRect& place, std::uint32_t flags) override;
    void Show(int command) override;
    double TwipsPerPixelX() override;
    double TwipsPerPixelY() override;

    void Attach(wxFrame& frame) override;

  private:
    /// The procedure that the toolkit has given the window, for somebody else to call and to put back.
    struct Own {
        const DesktopWindowMsw* window;
        std::intptr_t operator()(const WindowMessage& message) const { return window->PassOn(message); }
    };

    static LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    std::intptr_t PassOn(const WindowMessage& message) const;
    /// Gives the real window the procedure that was set.
    void InstallProcedure();
    void InstallProcedure(WNDPROC procedure);
    /// The real window goes, and with its own procedure.
    void LetGo();
    wxSize WithinBounds(wxSize size) const;
    void Move();

    WindowProcedure procedure_ = Own{this};
    WNDPROC toolkits_ = nullptr;
    HWND window_ = nullptr;   ///< the real one, while there is one
    std::uint32_t flags_ = 0; ///< those that the place was asked for with
};

} // namespace zy
