#include "desktop/Keys.h"

namespace zy {
namespace {

std::optional<Key> KeyOf(int code) {
    switch (code) {
    case WXK_DELETE:
    case WXK_NUMPAD_DELETE:
        return Key::Delete;
    case WXK_UP:
    case WXK_NUMPAD_UP:
        return Key::Up;
    case WXK_DOWN:
    case WXK_NUMPAD_DOWN:
        return Key::Down;
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<KeyPress> KeyPressOf(const wxKeyEvent& event) {
    const auto key = KeyOf(event.GetKeyCode());
    if (!key) {
        return std::nullopt;
    }
    return KeyPress{
        .key = *key, .ctrl = event.ControlDown(), .alt = event.AltDown(), .shift = event.ShiftDown()};
}

} // namespace zy
