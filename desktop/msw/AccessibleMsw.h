#pragma once

#include <wx/string.h>

class wxWindow;

namespace zy {

// What a screen reader gets to know of a window in place of what the system finds out by itself.

/// A screen reader that listens says a name that is new when the window has the keyboard.
void AnnotateName(wxWindow& window, const wxString& name);
void AnnotateDescription(wxWindow& window, const wxString& description);
/// One of the system's ROLE_SYSTEM_ numbers.
void AnnotateRole(wxWindow& window, long role);

} // namespace zy
