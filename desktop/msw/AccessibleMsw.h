#pragma once

#include <wx/string.h>

class wxWindow;

namespace zy {

// What a screen reader gets to know of a window in place of what the system finds out by itself.

void AnnotateName(wxWindow& window, const wxString& name);
/// One of the system's ROLE_SYSTEM_ numbers.
void AnnotateRole(wxWindow& window, long role);
/// Has a screen reader that listens say a window's name, which is new.
void AnnounceName(wxWindow& window);

} // namespace zy
