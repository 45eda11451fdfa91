#pragma once

#include <wx/string.h>

class wxWindow;

namespace zy {

/// What a window has to say at once, for a screen reader alone: it says each new text as it comes, wherever
/// the keyboard is; behind what else comes of the same event, for a screen reader falls silent where the
/// current cell becomes another one. The text stands in the window until the next one.
class Notice {
  public:
    /// `window` must outlive this object's last use. It gets a child that nobody sees.
    explicit Notice(wxWindow& window) : window_(window) {}

    void Say(const wxString& text);

  private:
    void Announce();

    wxWindow& window_;
    wxWindow* notice_ = nullptr;
    wxString text_;
    bool waits_ = false; ///< to be announced
};

} // namespace zy
