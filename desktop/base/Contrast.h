#pragma once

#include <wx/colour.h>

namespace zy {

/// The contrast between two colours: 1 for the same, 21 for black and white. The formula is that of the Web
/// Content Accessibility Guidelines 2.1.
double Contrast(const wxColour& one, const wxColour& other);

/// What those guidelines want of a mark, and of text that is large.
inline constexpr double kNoticeable = 3;
/// What they want of other text.
inline constexpr double kReadable = 4.5;

/// The usual colour of a mark where it can be noticed on the windows' colour, else that of their text.
wxColour NoticeableColour(const wxColour& usual);

/// The colour as close to the usual one as can be that can be noticed on a ground.
wxColour ColourNoticedOn(const wxColour& ground, const wxColour& usual);

/// The ground on which selected text stands: the desktop's own, made as much darker or lighter as it takes
/// for the desktop's colour of such text to be read.
wxColour SelectionGround();

} // namespace zy
