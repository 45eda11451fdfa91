#pragma once

#include <memory>

#include "controls/Form.h"
#include "desktop/ViewContext.h"

namespace zy {

/// The focus of one window. The model asks the control that is left, so it learns of every move of the real
/// focus, and its answer is shown.
class FocusBinding {
  public:
    FocusBinding(const ViewContext& context, Form& form, wxWindow& window);

    /// Gives the focus to the control that the form has given it to, in a window that opens; to the first one
    /// that can have it when there is none.
    void ShowFirst();

  private:
    /// False when the control that the real focus left refused.
    bool TakeMove();
    void Show();

    const ViewContext& context_;
    Form& form_;
    Subscription focusChanged_;
    std::shared_ptr<bool> open_ = std::make_shared<bool>(true); ///< false for others once this object is gone
};

} // namespace zy
