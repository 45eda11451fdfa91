#pragma once

#include "controls/Grid.h"
#include "desktop/ViewContext.h"

namespace zy {

// The cells of a grid as text on the clipboard, the way spreadsheets put them there.

/// Copies the block that is selected; nothing when there is none.
void CopyCells(const ViewContext& context, const Grid& model);

/// Pastes the clipboard's text from the current cell on. A text with a character that the code page lacks is
/// refused as a whole, which the status bar tells.
void PasteCells(const ViewContext& context, Grid& model);

} // namespace zy
