#include "desktop/BoundControls.h"

#include <algorithm>

#include "desktop/ControlBinding.h"

namespace zy {
namespace {

template <typename Matches>
ControlBinding* FindWhere(const std::vector<ControlBinding*>& bindings, const Matches& matches) {
    const auto found = std::find_if(bindings.begin(), bindings.end(), matches);
    return found == bindings.end() ? nullptr : *found;
}

} // namespace

ControlBinding* BoundControls::Find(const wxWindow* window) const {
    // A real control may consist of several windows.
    for (; window != nullptr; window = window->GetParent()) {
        if (auto* found = FindWhere(bindings_, [&](const auto* each) { return &each->Window() == window; })) {
            return found;
        }
    }
    return nullptr;
}

ControlBinding* BoundControls::Find(const Control* control) const {
    return FindWhere(bindings_, [&](const auto* each) { return &each->Model() == control; });
}

} // namespace zy
