#pragma once

#include <wx/scrolwin.h>

class wxFrame;

namespace zy {

/// The room of a main window between its menu bar and its status bar. The page that stands in it can be
/// scrolled where there is not enough room for it.
class PageArea final : public wxScrolledWindow {
  public:
    explicit PageArea(wxFrame& frame);

    /// The window that the page's controls are made in.
    wxWindow* Page() const { return page_; }
    /// The same for a main window as it stands on the screen; any other window is that itself.
    static wxWindow& PageIn(wxWindow& window);
    /// Gives the page all the room, but no less than this, in pixels.
    void FitPage(const wxSize& least);
    /// Scrolls the page until all of a place on it can be seen, its beginning at least.
    void ShowWhole(const wxRect& place);

  private:
    wxWindow* page_;
};

} // namespace zy
