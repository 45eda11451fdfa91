#pragma once

#include <functional>
#include <memory>

#include "controls/Form.h"
#include "desktop/Bindings.h"
#include "desktop/FocusBinding.h"
#include "desktop/ViewContext.h"

class wxFrame;

namespace zy {

/// A main window on the screen: title, size, state, the controls in it and the focus among them.
class WindowBinding {
  public:
    /// What a main window is at first, in twips and with its borders.
    struct Sizes {
        Size first;
        Size least;
    };
    /// `mayClose` is asked when a person closes the window; it hides the form when it agrees.
    WindowBinding(const ViewContext& context, Form& form, const Sizes& sizes, std::function<void()> mayClose);
    ~WindowBinding();
    WindowBinding(const WindowBinding&) = delete;
    WindowBinding& operator=(const WindowBinding&) = delete;

    wxFrame& Frame() { return *frame_; }
    /// Brings the window to the screen, laid out.
    void Open();

  private:
    void ConnectFrame(std::function<void()> close);
    void TellSize();
    void TellState();
    void ShowAppearance();
    void ShowState();

    const ViewContext& context_;
    Form& form_;
    wxFrame* frame_;
    Inside inside_;
    Bindings children_;
    std::unique_ptr<FocusBinding> focus_;
    std::vector<Subscription> subscriptions_;
};

} // namespace zy
