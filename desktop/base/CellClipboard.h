#pragma once

#include <string>

#include "controls/Grid.h"
#include "desktop/ViewContext.h"

namespace zy {

// The cells of a grid or list as text on the clipboard, the way spreadsheets put them there.

/// Copies what is selected; nothing when that is empty. False when another program keeps the clipboard open,
/// as programs do for a moment, and the status bar says so.
bool CopyCells(const ViewContext& context, const std::string& cells);

/// Copies the selected cells and empties them; they stay when they could not be copied.
void CutCells(const ViewContext& context, Grid& model);

/// Pastes the clipboard's text from the current cell on. A text with a character that the code page lacks is
/// refused as a whole, and the status bar says so; so it does when the clipboard cannot be had.
void PasteCells(const ViewContext& context, Grid& model);

} // namespace zy
