#pragma once

#include <wx/gdicmn.h>
#include <wx/string.h>

#include <functional>

class wxWindow;

namespace zy {

/// While the mouse is over a text that is cut, shows the whole of it as the window's tooltip. `cutTextAt`
/// returns the text at a place on the screen, and an empty one where none is cut.
void ShowCutTexts(wxWindow& window, std::function<wxString(const wxPoint&)> cutTextAt);

} // namespace zy
