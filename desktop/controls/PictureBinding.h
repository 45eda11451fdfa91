#pragma once

#include "controls/Decoration.h"
#include "desktop/ControlBinding.h"

namespace zy {

/// The program's picture, drawn for the size that its model has.
class PictureBinding : public ControlBinding {
  public:
    PictureBinding(const ViewContext& context, const Inside& inside, Picture& model);
};

} // namespace zy
