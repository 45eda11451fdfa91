#pragma once

#include <wx/access.h>
#include <wx/string.h>

class wxWindow;

namespace zy {

// What a screen reader gets to know of a window in place of what the system finds out by itself.

/// A screen reader that listens says a name that is new when the window has the keyboard.
void GiveName(wxWindow& window, const wxString& name);
void GiveDescription(wxWindow& window, const wxString& description);
void GiveRole(wxWindow& window, wxAccRole role);

} // namespace zy
