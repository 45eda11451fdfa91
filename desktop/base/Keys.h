#pragma once

#include <wx/event.h>

#include <optional>

#include "controls/Key.h"

namespace zy {

/// A key of the toolkit as the control models know it; nothing for one that they do not react to.
std::optional<KeyPress> KeyPressOf(const wxKeyEvent& event);

} // namespace zy
