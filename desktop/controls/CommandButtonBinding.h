#pragma once

#include <wx/button.h>

#include "controls/CommandButton.h"
#include "desktop/ControlBinding.h"

namespace zy {

class CommandButtonBinding : public ControlBinding {
  public:
    CommandButtonBinding(const ViewContext& context, const Inside& inside, CommandButton& model);
};

} // namespace zy
