#pragma once

#include <wx/panel.h>

namespace zy {

/// The buttons above a page of the help. Pressing one raises a button event with its own id: those of the
/// toolkit's help window, and wxID_ZOOM_IN and wxID_ZOOM_OUT.
class HelpTools : public wxPanel {
  public:
    explicit HelpTools(wxWindow* parent);

  private:
    /// Draws the pictures in the user's colours.
    void Draw();
};

} // namespace zy
