#pragma once

#include <wx/string.h>

class wxWindow;

namespace zy {

/// What a window has to say at once, for a screen reader alone: it says each new text as it comes, wherever
/// the keyboard is. The text stands in the window until the next one.
class Notice {
  public:
    /// `window` must outlive this object's last use. It gets a child that nobody sees.
    explicit Notice(wxWindow& window) : window_(window) {}

    void Say(const wxString& text);

  private:
    wxWindow& window_;
    wxWindow* notice_ = nullptr;
    wxString text_;
};

} // namespace zy
