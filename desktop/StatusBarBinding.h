#pragma once

#include <wx/statusbr.h>

#include "controls/StatusBar.h"
#include "desktop/Bindings.h"
#include "desktop/ControlBinding.h"
#include "desktop/Notice.h"

namespace zy {

/// The status bar, which the window places itself.
class StatusBarBinding : public ControlBinding {
  public:
    StatusBarBinding(const ViewContext& context, const Inside& inside, StatusBar& model);

    void ShowAppearance() override;
    void Rescale() override;

  private:
    void ShowText();
    /// From one link to the next, and from the last one to the first.
    void GoOn(bool backwards);
    /// What stands in the bar and can be seen; null when nothing does.
    const Container* ShownChild() const;
    /// Keeps the text out of the room of what stands in the bar, and says what that has to say.
    void ShowContent();

    StatusBar& model_;
    wxStatusBar* bar_;
    Notice notice_;
    Inside content_;
    Bindings children_;
};

} // namespace zy
