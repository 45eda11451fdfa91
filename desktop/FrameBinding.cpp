#include "desktop/FrameBinding.h"

#include <wx/panel.h>
#include <wx/statbox.h>

#include "desktop/Native.h"
#include "desktop/Panels.h"
#include "desktop/ShownText.h"

namespace zy {

FrameBinding::FrameBinding(const ViewContext& context, const Inside& inside, Frame& model)
    : ControlBinding(context, inside, model), model_(model) {
    if (model_.Caption().empty()) {
        content_.window = MakeInnerPanel(*Parent());
    } else {
        const auto caption = WithMnemonic(context.codePage, model_.Caption(), '\0');
        box_ = MakeInnerBox(*Parent(), caption);
        content_.window = box_;
    }
    Attach(content_.window);
}

void FrameBinding::ShowAppearance() {
    if (model_.Visible() && children_.empty()) {
        // Where the inside of a box begins is not known while it is hidden.
        content_.window->Show();
        MakeChildren();
    }
    ControlBinding::ShowAppearance();
}

void FrameBinding::MakeChildren() {
    if (box_ != nullptr) {
        // While the box is empty: then there is nothing else to lay out.
        LookInside();
        Measure();
    }
    children_ = BindChildren(Context(), content_, model_);
}

void FrameBinding::LookInside() {
    const BoxInside inside = InsideOf(*box_);
    content_.origin = inside.origin;
    above_ = inside.above;
}

void FrameBinding::Rescale() {
    if (box_ != nullptr && !children_.empty()) {
        LookInside();
    }
    for (const auto& child : children_) {
        child->Rescale();
    }
    ControlBinding::Rescale();
}

void FrameBinding::Measure() {
    model_.SetPreferred({0, Context().scale.ToTwips(above_)});
}

} // namespace zy
