#pragma once

#include <wx/string.h>

namespace zy {

/// A page of the help in the colours of the user's desktop. In place of colours the page has names: "window",
/// "windowtext" and "linktext" for the whole of it, "highlight" and "highlighttext" for its title,
/// "buttonface" and "buttontext" for the heads of tables.
wxString WithDesktopColours(const wxString& page);

} // namespace zy
