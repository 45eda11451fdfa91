#pragma once

#include <functional>
#include <memory>

#include "controls/Form.h"
#include "desktop/Bindings.h"
#include "desktop/FocusBinding.h"
#include "desktop/PageArea.h"
#include "desktop/ViewContext.h"

class wxFrame;

namespace zy {

/// A main window on the screen: title, state, the controls in it and the focus among them.
class WindowBinding {
  public:
    /// `mayClose` is asked when the user closes the window; it hides the form when it agrees.
    WindowBinding(ViewContext& context, Form& form, std::function<void()> mayClose);
    ~WindowBinding();
    WindowBinding(const WindowBinding&) = delete;
    WindowBinding& operator=(const WindowBinding&) = delete;

    wxFrame& Frame() { return *frame_; }
    /// Brings the window to the screen, laid out, in the state that its form has.
    void Open();

  private:
    void ConnectFrame(std::function<void()> close);
    /// Gives the page the room that there is, but no less than it needs.
    void FitPage();
    void TellSize();
    void TellState();
    int StatusBarHeight() const;
    void Rescale();
    /// Scrolls the page to the control that has the focus.
    void ShowFocused();
    void ShowAppearance();
    void ShowState();

    ViewContext& context_;
    Form& form_;
    wxFrame* frame_;
    PageArea* area_;
    WindowState firstState_; ///< the form's at first: until it is shown, the real window has none
    Inside inside_;
    Bindings children_;
    std::unique_ptr<FocusBinding> focus_;
    std::vector<Subscription> subscriptions_;
};

} // namespace zy
