#pragma once

#include <memory>
#include <vector>

#include "controls/Control.h"
#include "desktop/ViewContext.h"

namespace zy {

class ControlBinding;

using Bindings = std::vector<std::unique_ptr<ControlBinding>>;

/// Makes a real control for each child of a container, in tab order. A label stands right before the control
/// that it names, which is how the toolkit learns of it.
Bindings BindChildren(const ViewContext& context, const Inside& inside, const Container& container);

} // namespace zy
