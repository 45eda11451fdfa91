#pragma once

#include <wx/dialog.h>

#include <string>
#include <string_view>

#include "controls/Form.h"
#include "desktop/Bindings.h"
#include "desktop/FocusBinding.h"
#include "desktop/Notice.h"
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

    /// Returns when the form has hidden itself, when the user has closed the dialog, or when something
    /// failed.
    void Run();

  private:
    void TakeSize();
    /// Of a dialog that can be made larger.
    void TellSize();
    void PlaceOn(wxWindow* parent);
    void Rescale();
    void ConnectKeys();
    void PressKey(wxKeyEvent& event);
    void End();
    /// Rings the bell for a reason that is another one than before; a dialog has no room to show it, but a
    /// screen reader says it.
    void RingForRefusal(std::string_view reason);

    EventGate& gate_;
    Form& form_;
    wxDialog dialog_;
    BoundControls controls_;
    std::string refusal_; ///< the reason that the bell rang for last
    MenuPlace menuPlace_;
    ViewContext context_;
    Inside inside_;
    Notice notice_;
    Bindings children_;
    FocusBinding focus_;
    Subscription appearanceChanged_;
};

} // namespace zy
