#pragma once

#include "controls/Decoration.h"
#include "desktop/ControlBinding.h"

namespace zy {

/// A text that stands for itself.
class TextLabelBinding : public ControlBinding {
  public:
    TextLabelBinding(const ViewContext& context, const Inside& inside, TextLabel& model);

  protected:
    void Measure() override;
};

} // namespace zy
