#pragma once

#include "controls/Decoration.h"
#include "desktop/ControlBinding.h"

namespace zy {

/// A thin line.
class LineBinding : public ControlBinding {
  public:
    LineBinding(const ViewContext& context, const Inside& inside, Line& model);
};

} // namespace zy
