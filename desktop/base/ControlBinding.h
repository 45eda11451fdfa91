#pragma once

#include <wx/window.h>

#include <string_view>
#include <utility>
#include <vector>

#include "controls/Control.h"
#include "desktop/ViewContext.h"

// This room shows the program's forms in real windows of the toolkit. It owns the toolkit, the real controls
// and the event loop, and may call everything but the operating system below; nothing calls it but app/.
//
// Each kind of control has one binding, which connects the model and the real control once, both ways: what
// the model announces is shown, and what the user does is handed to the model. A window's view is a list of
// bindings. No rule or decision of the program is made here.

namespace zy {

class ControlBinding {
  public:
    virtual ~ControlBinding() = default;
    ControlBinding(const ControlBinding&) = delete;
    ControlBinding& operator=(const ControlBinding&) = delete;

    Control& Model() const { return model_; }
    wxWindow& Window() const { return *window_; }

    /// Gives the real control the focus.
    virtual void TakeFocus() { window_->SetFocus(); }
    /// Shows the model's place and switches.
    virtual void ShowAppearance();
    /// Measures and places the real control anew, on a screen where an inch has more or fewer pixels.
    virtual void Rescale();

  protected:
    ControlBinding(const ViewContext& context, const Inside& inside, Control& model)
        : context_(context), inside_(inside), model_(model) {}

    /// Each kind makes its real control and attaches it, once.
    void Attach(wxWindow* window);
    /// Sets the model's preferred size to what the real control needs.
    virtual void Measure();

    const ViewContext& Context() const { return context_; }
    EventGate& Gate() const { return context_.gate; }
    wxWindow* Parent() const { return inside_.window; }
    wxString Shown(std::string_view text) const;
    /// Keeps a subscription to an event of the model for the life of the binding.
    void Keep(Subscription subscription) { subscriptions_.push_back(std::move(subscription)); }

  private:
    const ViewContext& context_;
    const Inside& inside_;
    Control& model_;
    wxWindow* window_ = nullptr;
    std::vector<Subscription> subscriptions_;
};

} // namespace zy
