#pragma once

#include <wx/colour.h>
#include <wx/font.h>

#include "controls/Drawing.h"
#include "platform/CodePage.h"

class wxDC;

namespace zy {

/// What a drawing is painted with.
struct Paints {
    wxColour ground;
    wxColour text;
    wxFont font;
    double unitsPerTwip = 0; ///< of the canvas
};

/// Paints a drawing from the canvas's left top corner on, which is filled with the ground already. The
/// colours are those of its inks, in shades that can be noticed on the ground.
void Paint(wxDC& canvas, const Drawing& drawing, const Paints& paints, const CodePage& codePage);
/// The same on a printer's canvas, whose units are those of the paints.
void PaintOnPaper(wxDC& canvas, const Drawing& drawing, const Paints& paints, const CodePage& codePage);

} // namespace zy
