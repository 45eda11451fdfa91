#pragma once

#include "controls/LinkLabel.h"
#include "desktop/ControlBinding.h"

namespace zy {

/// A link, which looks as links do on the user's desktop.
class LinkLabelBinding : public ControlBinding {
  public:
    LinkLabelBinding(const ViewContext& context, const Inside& inside, LinkLabel& model);
};

} // namespace zy
