#pragma once

#include <string>

#include "controls/Grid.h"
#include "desktop/ViewContext.h"

class wxString;

namespace zy {

// What the status bar tells of a person's text that is not taken.

/// The name of a cell, for such a text: its row and the title of its column.
std::string NameOf(const Grid& grid, const Cell& cell);
/// The name of a field: its label.
std::string NameOf(const Control& field);

/// Tells why a line of text that a person has entered is not taken: it is longer than one can be, or holds a
/// character that the code page lacks, the first of which is told.
void TellRefused(const ViewContext& context, const std::string& place, const wxString& shown);

} // namespace zy
