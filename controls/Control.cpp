#include "controls/Control.h"

#include <utility>

#include "controls/Form.h"

namespace zy {

Control::Control(Container* parent, std::string name, std::string caption)
    : parent_(parent), name_(std::move(name)), caption_(std::move(caption)) {
    if (parent_ != nullptr) {
        parent_->children_.push_back(this);
    }
}

void Control::SetCaption(const std::string& caption) {
    if (caption_ != caption) {
        caption_ = caption;
        appearanceChanged.Raise();
    }
}

void Control::SetEnabled(bool enabled) {
    if (enabled_ != enabled) {
        enabled_ = enabled;
        appearanceChanged.Raise();
    }
}

void Control::SetVisible(bool visible) {
    if (visible_ != visible) {
        visible_ = visible;
        appearanceChanged.Raise();
    }
}

bool Control::IsUsable() const {
    return enabled_ && visible_ && (parent_ == nullptr || parent_->IsUsable());
}

void Control::SetBounds(const Rect& bounds) {
    if (bounds_ != bounds) {
        bounds_ = bounds;
        appearanceChanged.Raise();
    }
}

Form& Control::Window() {
    Control* top = this;
    while (top->parent_ != nullptr) {
        top = top->parent_;
    }
    return static_cast<Form&>(*top);
}

void Control::SetFocus() {
    Window().GiveFocus(*this);
}

bool Control::TakeFocus() {
    return IsUsable() && Window().MoveFocus(*this);
}

bool Control::HasFocus() {
    return Window().Focused() == this;
}

Label* FindLabelOf(const Control& control) {
    for (auto* sibling : control.Parent()->Children()) {
        auto* label = dynamic_cast<Label*>(sibling);
        if (label != nullptr && &label->Buddy() == &control) {
            return label;
        }
    }
    return nullptr;
}

} // namespace zy
