#pragma once

#include <wx/choice.h>

#include "controls/ComboBox.h"
#include "desktop/ControlBinding.h"

namespace zy {

class ComboBoxBinding : public ControlBinding {
  public:
    ComboBoxBinding(const ViewContext& context, const Inside& inside, ComboBox& model);

  private:
    void TakePick();
    void ShowIndex();

    ComboBox& model_;
    wxChoice* choice_;
};

} // namespace zy
