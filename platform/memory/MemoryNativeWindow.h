#pragma once

#include <string>
#include <vector>

#include "platform/NativeWindow.h"

namespace zy {

/// A window without a screen: it stands where it is put, and notes what is asked of it.
class MemoryNativeWindow final : public NativeWindow {
  public:
    static constexpr WindowHandle kHandle = 0x5A59;
    /// Where the window is when nobody has put it anywhere.
    static constexpr PixelRect kDesigned{100, 80, 900, 720};

    WindowHandle Handle() override { return kHandle; }
    WindowProcedure SetProcedure(WindowProcedure procedure) override;
    PixelRect NormalRectangle() override { return normal_; }
    void SetPosition(const PixelRect& place, std::uint32_t flags) override;
    void Show(int command) override;
    double TwipsPerPixelX() override { return twipsPerPixelX_; }
    double TwipsPerPixelY() override { return twipsPerPixelY_; }
    PixelPoint ScreenSize() override { return screenSize_; }

    void SetTwipsPerPixel(double horizontal, double vertical);
    void SetScreenSize(const PixelPoint& size) { screenSize_ = size; }

    /// Sends a message as the window system does. The window's own procedure notes it and returns kOwnResult.
    std::intptr_t Send(const WindowMessage& message);
    /// The user drags an edge until the window has that size, as far as its bounds let it.
    void DragTo(const PixelPoint& size);

    static constexpr std::intptr_t kOwnResult = 77;
    /// The messages that came to the window's own procedure.
    const std::vector<WindowMessage>& OwnMessages() const { return ownMessages_; }
    /// What was asked for, such as "SetPosition 10 20 640 600 flags 128".
    const std::vector<std::string>& Calls() const { return calls_; }

  private:
    std::intptr_t Own(const WindowMessage& message);

    WindowProcedure procedure_ = [this](const WindowMessage& message) { return Own(message); };
    PixelRect normal_ = kDesigned;
    PixelPoint screenSize_{1920, 1080};
    double twipsPerPixelX_ = 15;
    double twipsPerPixelY_ = 15;
    std::vector<WindowMessage> ownMessages_;
    std::vector<std::string> calls_;
};

} // namespace zy
