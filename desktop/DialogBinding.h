#pragma once

#include <wx/dialog.h>

#include "controls/Form.h"
#include "desktop/Bindings.h"
#include "desktop/FocusBinding.h"
#include "desktop/ViewContext.h"

namespace zy {

/// A dialog of the program on the screen, from construction to destruction. It takes its size from the form,
/// which lays itself out once it knows how much room its controls need.
class DialogBinding {
  public:
    /// `parent` is the window that the dialog belongs to; null when none is shown.
    DialogBinding(const CodePage& codePage, EventGate& gate, Form& form, wxWindow* parent);
    ~DialogBinding();
    DialogBinding(const DialogBinding&) = delete;
    DialogBinding& operator=(const DialogBinding&) = delete;

    /// Returns when the form has hidden itself, when a person has closed the dialog, or when something
    /// failed.
    void Run();

  private:
    void TakeSize();
    void PlaceOn(wxWindow* parent);
    void Rescale();
    void ConnectKeys();
    void PressKey(wxKeyEvent& event);
    void End();

    EventGate& gate_;
    Form& form_;
    wxDialog dialog_;
    BoundControls controls_;
    StatusBar notes_; ///< a dialog has no room for them: a sound tells that a character was refused
    MenuPlace menuPlace_;
    ViewContext context_;
    Inside inside_;
    Bindings children_;
    FocusBinding focus_;
    Subscription appearanceChanged_;
    Subscription noteChanged_;
};

} // namespace zy
