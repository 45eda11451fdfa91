#pragma once

#include <wx/frame.h>

class wxHtmlHelpData;

namespace zy {

class HelpWindow;

/// The help's window, a window of its own over the middle of another one's. Escape closes it; Alt+Left and
/// Alt+Right go through the pages that were read.
class HelpFrame : public wxFrame {
  public:
    /// The book must outlive the window.
    HelpFrame(wxWindow& owner, wxHtmlHelpData& book);

    HelpWindow& Inside() { return *inside_; }

  private:
    void PressKey(wxKeyEvent& event);

    HelpWindow* inside_;
};

} // namespace zy
