#pragma once

#include <wx/gdicmn.h>

#include <functional>
#include <optional>
#include <string_view>

#include "desktop/BoundControls.h"
#include "desktop/EventGate.h"
#include "desktop/Scale.h"
#include "platform/CodePage.h"

class wxWindow;

namespace zy {

/// Where a context menu opens that a key asks for, on the screen, while that key is at work. One that the
/// mouse asks for opens at the mouse.
using MenuPlace = std::optional<wxPoint>;

/// What all bindings of one window work with.
struct ViewContext {
    const CodePage& codePage;
    EventGate& gate;
    BoundControls& controls;
    /// Lets the user know why what was typed or pasted is not taken.
    std::function<void(std::string_view reason)> showRefusal;
    Scale scale;
    MenuPlace& menuPlace;
};

/// Where the real controls of a container are made.
struct Inside {
    wxWindow* window = nullptr;
    /// Where the inside begins: the model's places count from the container's own corner.
    wxPoint origin;
};

} // namespace zy
