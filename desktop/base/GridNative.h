#pragma once

#include <wx/colour.h>
#include <wx/gdicmn.h>
#include <wx/string.h>

class wxWindow;

namespace zy {

/// The window around a grid, whose background is the grid's border. It takes no focus itself.
wxWindow* MakeSurround(wxWindow* parent);

/// The colour in which the system writes the headers of its own lists.
wxColour HeaderTextColour();

/// Shows a control over the cells, at a place. Shown already, it moves there.
void ShowOverCells(wxWindow& control, const wxRect& place);
/// Hides one that lies over the cells.
void HideOverCells(wxWindow& control);

/// Presents the current cell of a grid to assistive technology. The toolkit paints its grid, so that its
/// cells are nothing to a screen reader: the window that has the keyboard stands for the current one, and
/// bears its text as its name. `announce` has a screen reader that listens say the text at once.
void PresentCell(wxWindow& gridWindow, const wxString& text, bool announce);

} // namespace zy
