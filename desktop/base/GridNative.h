#pragma once

#include <wx/colour.h>
#include <wx/gdicmn.h>

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

} // namespace zy
