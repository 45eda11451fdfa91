#pragma once

#include <string>

namespace zy::test {

// The display with its keyboard. The window is the one that has the keyboard, whatever program it belongs to.
// Each system has one file of these.

std::string ActiveWindowTitle();

/// Presses keys, with a pause between them, given as "alt+a", "ctrl+shift+Home" or "Return", with blanks
/// between them.
void PressKeys(const std::string& keys);
/// Types characters that are on the keyboard.
void TypeCharacters(const std::string& text);

void MoveActiveWindow(int left, int top);
void ResizeActiveWindow(int width, int height);

/// Has the display cut off the program that the window belongs to, as at its own end.
void CutOffActiveWindow();

struct WindowSize {
    int width = 0;
    int height = 0;

    bool operator==(const WindowSize&) const = default;
};
/// With or without its borders.
WindowSize ActiveWindowSize();

} // namespace zy::test
