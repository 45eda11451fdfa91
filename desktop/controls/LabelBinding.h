#pragma once

#include <wx/stattext.h>

#include "desktop/ControlBinding.h"

namespace zy {

/// A label, whose mnemonic and name belong to the control made next.
class LabelBinding : public ControlBinding {
  public:
    LabelBinding(const ViewContext& context, const Inside& inside, Label& model);
};

} // namespace zy
