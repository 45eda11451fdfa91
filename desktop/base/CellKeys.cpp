#include "desktop/CellKeys.h"

#include <algorithm>
#include <array>
#include <utility>

#include "desktop/Keys.h"
#include "desktop/Native.h"

namespace zy {
namespace {

constexpr std::array<std::pair<int, Key>, 25> kKeys{{
    {WXK_LEFT, Key::Left},         {WXK_NUMPAD_LEFT, Key::Left},
    {WXK_RIGHT, Key::Right},       {WXK_NUMPAD_RIGHT, Key::Right},
    {WXK_HOME, Key::Home},         {WXK_NUMPAD_HOME, Key::Home},
    {WXK_END, Key::End},           {WXK_NUMPAD_END, Key::End},
    {WXK_PAGEUP, Key::PageUp},     {WXK_NUMPAD_PAGEUP, Key::PageUp},
    {WXK_PAGEDOWN, Key::PageDown}, {WXK_NUMPAD_PAGEDOWN, Key::PageDown},
    {WXK_TAB, Key::Tab},           {WXK_NUMPAD_TAB, Key::Tab},
    {WXK_RETURN, Key::Enter},      {WXK_NUMPAD_ENTER, Key::Enter},
    {WXK_ESCAPE, Key::Escape},     {WXK_F2, Key::F2},
    {WXK_NUMPAD_F2, Key::F2},      {'0', Key::Digit0},
    {WXK_NUMPAD0, Key::Digit0},    {'2', Key::Digit2},
    {WXK_NUMPAD2, Key::Digit2},    {'3', Key::Digit3},
    {WXK_NUMPAD3, Key::Digit3},
}};

bool IsOnlyWith(const wxKeyEvent& event, int modifier) {
    return event.GetModifiers() == modifier;
}

} // namespace

std::optional<KeyPress> GridKeyPressOf(const wxKeyEvent& event) {
    // Keyboards that type a digit with Shift bear it on the same key.
    const int digit = event.ControlDown() ? static_cast<unsigned char>(DigitOn(event)) : 0;
    for (const auto& [code, key] : kKeys) {
        if (code == event.GetKeyCode() || code == digit) {
            return KeyPress{
                .key = key, .ctrl = event.ControlDown(), .alt = event.AltDown(), .shift = event.ShiftDown()};
        }
    }
    return KeyPressOf(event);
}

bool IsCursorKey(const wxKeyEvent& event) {
    constexpr std::array kMoving{Key::Up,   Key::Down, Key::Left,   Key::Right,
                                 Key::Home, Key::End,  Key::PageUp, Key::PageDown};
    const auto press = GridKeyPressOf(event);
    return event.GetKeyCode() == WXK_SPACE ||
           (press && std::find(kMoving.begin(), kMoving.end(), press->key) != kMoving.end());
}

bool IsAccessKey(const wxKeyEvent& event) {
    return event.AltDown() && !event.ControlDown() && event.GetUnicodeKey() > ' ';
}

ClipboardKey ClipboardKeyOf(const wxKeyEvent& event) {
    const int code = event.GetKeyCode();
    const bool insert = code == WXK_INSERT || code == WXK_NUMPAD_INSERT;
    const bool remove = code == WXK_DELETE || code == WXK_NUMPAD_DELETE;
    if (IsOnlyWith(event, wxMOD_CONTROL)) {
        return code == 'A'             ? ClipboardKey::SelectAll
               : code == 'C' || insert ? ClipboardKey::Copy
               : code == 'X'           ? ClipboardKey::Cut
               : code == 'V'           ? ClipboardKey::Paste
                                       : ClipboardKey::None;
    }
    if (IsOnlyWith(event, wxMOD_SHIFT)) {
        return insert ? ClipboardKey::Paste : remove ? ClipboardKey::Cut : ClipboardKey::None;
    }
    return ClipboardKey::None;
}

wxUniChar TypedCharacter(const wxKeyEvent& event) {
    const wxUniChar character = event.GetUnicodeKey();
    const bool types =
        character >= ' ' && character != WXK_DELETE && !event.ControlDown() && !event.AltDown();
    return types ? character : wxUniChar(0);
}

} // namespace zy
