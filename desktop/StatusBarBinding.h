#pragma once

#include <wx/statusbr.h>

#include "controls/StatusBar.h"
#include "desktop/ControlBinding.h"
#include "desktop/Notice.h"

namespace zy {

/// The status bar, which the window places itself.
class StatusBarBinding : public ControlBinding {
  public:
    StatusBarBinding(const ViewContext& context, const Inside& inside, StatusBar& model);

    void ShowAppearance() override;

  private:
    void ShowText();

    StatusBar& model_;
    wxStatusBar* bar_;
    Notice notice_;
};

} // namespace zy
