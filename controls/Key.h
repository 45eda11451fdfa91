#pragma once

namespace zy {

/// The keys that a control reacts to beyond typing. The digits of the number pad are digits like the others.
enum class Key {
    Delete,
    Up,
    Down,
    Left,
    Right,
    Home,
    End,
    PageUp,
    PageDown,
    Tab,
    Enter,
    Escape,
    F2,
    Digit0,
    Digit2,
    Digit3
};

struct KeyPress {
    Key key{};
    bool ctrl = false;
    bool alt = false;
    bool shift = false;

    bool IsPlain() const { return !ctrl && !alt && !shift; }
};

} // namespace zy
