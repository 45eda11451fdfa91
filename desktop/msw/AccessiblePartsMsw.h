#pragma once

#include <wx/access.h>
#include <wx/event.h>
#include <wx/weakref.h>

class wxWindow;

namespace zy {

/// A window with parts, as the system's screen readers know it. They count the parts from 1 on, and there is
/// no object for a part.
class AccessibleParts : public wxAccessible {
  public:
    static constexpr int kItself = wxACC_SELF;

    explicit AccessibleParts(wxWindow& window) : wxAccessible(&window), window_(window) {}

    /// The part that the user has come to; the window itself where there is none.
    virtual int NumberOfCurrent() const = 0;
    bool HasKeyboard() const;

    wxAccStatus GetChildCount(int* count) final;
    wxAccStatus GetChild(int number, wxAccessible** child) final;
    wxAccStatus GetValue(int number, wxString* value) final;
    wxAccStatus GetLocation(wxRect& place, int number) final;
    wxAccStatus Navigate(wxNavDir direction, int from, int* number, wxAccessible** child) final;
    wxAccStatus GetFocus(int* number, wxAccessible** child) final;

  protected:
    wxWindow& Window() const { return window_; }
    virtual int Count() const = 0;
    /// Where a part is on the screen.
    virtual wxRect PlaceOf(int number) const = 0;
    /// What is in a direction from a part, or from the window itself: a part, else any other number.
    virtual int NumberFrom(int from, wxNavDir direction) const = 0;

  private:
    wxWindow& window_;
};

/// Makes such an object a window's own, and tells the system's listeners of it, for as long as this lives.
/// The window may go before it. That the keyboard comes to the window it notices itself.
class PartsTold final : public wxEvtHandler {
  public:
    /// The window takes the object over.
    PartsTold(wxWindow& window, AccessibleParts* parts);
    ~PartsTold() override;
    PartsTold(const PartsTold&) = delete;
    PartsTold& operator=(const PartsTold&) = delete;

    /// That the user has come to the current part, while the window has the keyboard.
    void TellFocus() const;
    void TellOfCurrent(int event) const { Tell(event, parts_->NumberOfCurrent()); }
    void TellOfItself(int event) const { Tell(event, AccessibleParts::kItself); }

  private:
    void TakeFocus(wxFocusEvent& event);
    void Tell(int event, int number) const;

    wxWeakRef<wxWindow> window_;
    AccessibleParts* parts_; ///< the window's own
};

} // namespace zy
