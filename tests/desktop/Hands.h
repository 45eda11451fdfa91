#pragma once

#include <wx/defs.h>
#include <wx/gdicmn.h>

#include <chrono>
#include <memory>
#include <string>

class wxUIActionSimulator;

namespace zy::test {

/// Keyboard and mouse: whatever has the focus or lies under the pointer gets real events.
class Hands {
  public:
    Hands();
    ~Hands();

    void Press(int key, int modifiers = wxMOD_NONE);
    /// Types characters that are on the keyboard.
    void Type(const std::string& text);
    void Click(const wxPoint& place);
    void RightClick(const wxPoint& place);
    /// Turns the mouse wheel towards the user.
    void TurnWheelOver(const wxPoint& place);
    /// Lets the mouse come to rest there.
    void PointAt(const wxPoint& place);
    /// Presses the button of the mouse and keeps it down.
    void PushMouse(const wxPoint& place);
    void LetGoOfMouse();
    /// Waits that long between the steps of the way.
    void Drag(const wxPoint& from, const wxPoint& to, std::chrono::milliseconds pause = {});
    /// Drags a window's title or border.
    void DragWindow(const wxPoint& from, const wxPoint& to);
    /// Clicks while a key such as WXK_SHIFT is held down.
    void ClickWith(int key, const wxPoint& place);
    /// Holds a key such as WXK_CONTROL down.
    void HoldKey(int key);
    void LetGoOfKey(int key);

  private:
    std::unique_ptr<wxUIActionSimulator> simulator_;
};

} // namespace zy::test
