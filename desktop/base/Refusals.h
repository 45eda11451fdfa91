#pragma once

#include <string>

#include "controls/Control.h"
#include "controls/GridCells.h"
#include "desktop/ViewContext.h"

class wxString;

namespace zy {

// What the status bar says of a text of the user's that is not taken.

/// The name of a cell, for such a text: its row and the title of its column.
std::string NameOf(const GridCells& cells, const Cell& cell);
/// The name of a field: its label.
std::string NameOf(const Control& field);

/// Shows why a line of text that the user has entered is not taken: it is longer than one can be, or holds a
/// character that the code page lacks, the first of which is named.
void TellRefused(const ViewContext& context, const std::string& place, const wxString& shown);

} // namespace zy
