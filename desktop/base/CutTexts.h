#pragma once

#include <wx/gdicmn.h>
#include <wx/string.h>

#include <functional>

class wxWindow;

namespace zy {

/// While the mouse is over a text that is cut, shows the whole of it as the window's tooltip. `cutTextAt`
/// tells the text at a place on the screen, and nothing where none is cut.
void ShowCutTexts(wxWindow& window, std::function<wxString(const wxPoint&)> cutTextAt);

} // namespace zy
