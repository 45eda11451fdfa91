#include "controls/Form.h"

#include <utility>

namespace zy {

Form::Form(std::string name) : Container(nullptr, std::move(name)) {
    SetVisible(false);
}

void Form::GiveFocus(Control& control) {
    focused_ = &control;
    unasked_ = nullptr;
    focusChanged.Raise();
}

bool Form::MoveFocus(Control& control) {
    if (focused_ == &control) {
        return true;
    }
    if (asking_) {
        return false;
    }
    Control* const left = unasked_ != nullptr ? unasked_ : focused_;
    if (control.CausesValidation() && left != &control && !MayLeave(left)) {
        GiveFocus(*left);
        return false;
    }
    GiveFocus(control);
    unasked_ = control.CausesValidation() ? nullptr : left;
    return true;
}

bool Form::MayLeave(const Control* control) {
    if (control == nullptr || !control->IsUsable() || !control->validate) {
        return true;
    }
    asking_ = true;
    const bool mayLeave = control->validate();
    asking_ = false;
    return mayLeave;
}

void Form::SetKeyButtons(CommandButton* onEnter, CommandButton* onEscape) {
    onEnter_ = onEnter;
    onEscape_ = onEscape;
}

void Form::SetState(WindowState state) {
    if (state_ != state) {
        state_ = state;
        stateChanged.Raise();
    }
}

void Form::SetInnerSize(const Size& size) {
    innerSize_ = size;
    resize.Raise();
}

} // namespace zy
