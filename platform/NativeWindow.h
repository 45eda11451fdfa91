#pragma once

#include <cstdint>
#include <functional>

namespace zy {

// Here lengths are pixels and numbers are those of the window system, which counts from the screen's top left
// corner.

struct PixelPoint {
    std::int32_t x = 0;
    std::int32_t y = 0;

    friend bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

/// `right` and `bottom` lie just outside.
struct PixelRect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

/// The bounds of a window's size, as the window system hands them over to be filled in.
struct MinMaxInfo {
    PixelPoint reserved;
    PixelPoint maxSize;
    PixelPoint maxPosition;
    PixelPoint minTrackSize; ///< the least size that the user can drag the window to
    PixelPoint maxTrackSize;
};
static_assert(sizeof(MinMaxInfo) == 40);

using WindowHandle = std::uintptr_t;

/// A message to a window. The arguments are as wide as a pointer, for one of them can be one.
struct WindowMessage {
    WindowHandle window = 0;
    std::uint32_t message = 0;
    std::uintptr_t wParam = 0;
    std::intptr_t lParam = 0;
};

/// Asks a window for the bounds of its size; lParam points to a MinMaxInfo.
inline constexpr std::uint32_t kGetMinMaxInfo = 0x24;

using WindowProcedure = std::function<std::intptr_t(const WindowMessage&)>;

/// The main window as the window system knows it, and the screen it stands on. It is there, unseen, before it
/// is first shown.
class NativeWindow {
  public:
    virtual ~NativeWindow() = default;

    /// What messages name the window by. 0 while a window system has not made it yet.
    virtual WindowHandle Handle() = 0;
    /// Puts a procedure in place of the one that gets the window's messages, and returns that one. A window
    /// system without messages asks the procedure for the bounds of the window's size all the same.
    virtual WindowProcedure SetProcedure(WindowProcedure procedure) = 0;

    /// Where the window stands while it is neither maximized nor minimized, with its borders.
    virtual PixelRect NormalRectangle() = 0;
    /// Moves and sizes the window, borders included, as it is while neither maximized nor minimized. The
    /// flags are SetWindowPos's; a window system that has no such call ignores them.
    virtual void SetPosition(const PixelRect& place, std::uint32_t flags) = 0;
    /// Takes one of ShowWindow's commands. Nothing reaches the screen before the program has opened an
    /// editor, whatever the command.
    virtual void Show(int command) = 0;

    /// The twips of a pixel on the screen of the window: 15 where an inch has 96 pixels.
    virtual double TwipsPerPixelX() = 0;
    virtual double TwipsPerPixelY() = 0;
    /// The size of all screens together.
    virtual PixelPoint ScreenSize() = 0;
};

} // namespace zy
