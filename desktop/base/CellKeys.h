#pragma once

#include <wx/event.h>

#include <optional>

#include "controls/Key.h"

namespace zy {

/// A key of the toolkit as a grid knows it; nothing for one that it does not react to.
std::optional<KeyPress> GridKeyPressOf(const wxKeyEvent& event);

/// Whether the toolkit's grid moves its cursor by this key, or selects from it on.
bool IsCursorKey(const wxKeyEvent& event);

/// Whether the key, pressed with Alt, may be a button's or a menu's.
bool IsAccessKey(const wxKeyEvent& event);

/// What the keys of the clipboard ask for, and the one that selects all to be copied.
enum class ClipboardKey { None, SelectAll, Copy, Cut, Paste };
ClipboardKey ClipboardKeyOf(const wxKeyEvent& event);

/// The character that a key types; NUL when it types none.
wxUniChar TypedCharacter(const wxKeyEvent& event);

} // namespace zy
