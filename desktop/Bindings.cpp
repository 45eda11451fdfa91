#include "desktop/Bindings.h"

#include <stdexcept>
#include <string>

#include "desktop/ComboBoxBinding.h"
#include "desktop/CommandButtonBinding.h"
#include "desktop/DecorationBindings.h"
#include "desktop/DrawingBoxBinding.h"
#include "desktop/FrameBinding.h"
#include "desktop/GridBinding.h"
#include "desktop/LabelBinding.h"
#include "desktop/LinkLabelBinding.h"
#include "desktop/ListViewBinding.h"
#include "desktop/MonthCalendarBinding.h"
#include "desktop/StatusBarBinding.h"
#include "desktop/TextBoxBinding.h"
#include "desktop/UpDownBinding.h"

namespace zy {
namespace {

using Made = std::unique_ptr<ControlBinding>;

/// Makes the binding when the control is of that kind and none has been made.
template <typename Kind, typename Binding>
void MakeIfKind(Made& made, const ViewContext& context, const Inside& inside, Control& control) {
    if (auto* model = made ? nullptr : dynamic_cast<Kind*>(&control)) {
        made = std::make_unique<Binding>(context, inside, *model);
    }
}

Made MakeBinding(const ViewContext& context, const Inside& inside, Control& control) {
    Made made;
    MakeIfKind<TextBox, TextBoxBinding>(made, context, inside, control);
    MakeIfKind<ComboBox, ComboBoxBinding>(made, context, inside, control);
    MakeIfKind<ListView, ListViewBinding>(made, context, inside, control);
    MakeIfKind<Grid, GridBinding>(made, context, inside, control);
    MakeIfKind<MonthCalendar, MonthCalendarBinding>(made, context, inside, control);
    MakeIfKind<CommandButton, CommandButtonBinding>(made, context, inside, control);
    MakeIfKind<UpDown, UpDownBinding>(made, context, inside, control);
    MakeIfKind<Label, LabelBinding>(made, context, inside, control);
    MakeIfKind<TextLabel, TextLabelBinding>(made, context, inside, control);
    MakeIfKind<LinkLabel, LinkLabelBinding>(made, context, inside, control);
    MakeIfKind<Line, LineBinding>(made, context, inside, control);
    MakeIfKind<Picture, PictureBinding>(made, context, inside, control);
    MakeIfKind<DrawingBox, DrawingBoxBinding>(made, context, inside, control);
    MakeIfKind<Frame, FrameBinding>(made, context, inside, control);
    MakeIfKind<StatusBar, StatusBarBinding>(made, context, inside, control);
    if (!made) {
        throw std::logic_error("No real control for " + control.Name());
    }
    return made;
}

} // namespace

Bindings BindChildren(const ViewContext& context, const Inside& inside, const Container& container) {
    Bindings bindings;
    for (auto* child : container.Children()) {
        auto* const label = FindLabelOf(*child);
        if (dynamic_cast<Label*>(child) != nullptr) {
            continue;
        }
        if (label != nullptr) {
            bindings.push_back(MakeBinding(context, inside, *label));
        }
        bindings.push_back(MakeBinding(context, inside, *child));
    }
    return bindings;
}

} // namespace zy
