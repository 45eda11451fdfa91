#include "desktop/LineBinding.h"

#include <wx/statline.h>

namespace zy {

LineBinding::LineBinding(const ViewContext& context, const Inside& inside, Line& model)
    : ControlBinding(context, inside, model) {
    Attach(new wxStaticLine(Parent()));
}

} // namespace zy
