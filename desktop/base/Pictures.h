#pragma once

#include <wx/bmpbndl.h>
#include <wx/colour.h>
#include <wx/iconbndl.h>

namespace zy {

// The program's own pictures, drawn for whatever size and resolution they are shown in.

/// A shape of one colour, given as the path of a drawing of 16 x 16.
wxBitmapBundle Silhouette(const char* path, int size, const wxColour& colour);

/// Arrows of about `size` pixels.
wxBitmapBundle UpArrow(int size, const wxColour& colour);
wxBitmapBundle DownArrow(int size, const wxColour& colour);

/// The picture of the About box: a control chart with a point beyond its limit.
wxBitmapBundle ProgramPicture(int size);

/// The program's icon: a control chart with its limits.
wxIconBundle ProgramIcon();

} // namespace zy
