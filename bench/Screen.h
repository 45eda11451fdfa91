#pragma once

#include <X11/Xlib.h>

#include <chrono>
#include <memory>
#include <optional>

namespace zy::bench {

using Clock = std::chrono::steady_clock;

/// The X display as the user has it: sees what is painted, presses keys and clicks.
class Screen {
  public:
    Screen();

    /// Waits a moment for something to be painted. The time when an area of at least that many pixels was
    /// painted last, nothing if that did not happen.
    std::optional<Clock::time_point> Painted(int pixels);
    /// Forgets what was painted so far.
    void Forget();

    void PushKey(KeySym key);
    void LetGoOfKey(KeySym key);
    void Press(KeySym key);
    /// Clicks a place, counted in pixels from the screen's top left corner.
    void Click(int x, int y);

  private:
    struct CloseDisplay {
        void operator()(Display* display) const { ::XCloseDisplay(display); }
    };

    void FakeKey(KeySym key, bool down);

    std::unique_ptr<Display, CloseDisplay> display_;
    int damageEvent_ = 0;
};

} // namespace zy::bench
