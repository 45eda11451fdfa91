#include "controls/Form.h"

#include <utility>

namespace zy {

Form::Form(std::string name) : Container(nullptr, std::move(name)) {
    SetVisible(false);
}

void Form::GiveFocus(Control& control) {
    focused_ = &control;
    focusChanged.Raise();
}

bool Form::MoveFocus(Control& control) {
    if (focused_ == &control) {
        return true;
    }
    if (asking_) {
        return false;
    }
    if (focused_ != nullptr && focused_->IsUsable() && focused_->validate) {
        asking_ = true;
        const bool mayLeave = focused_->validate();
        asking_ = false;
        if (!mayLeave) {
            focusChanged.Raise();
            return false;
        }
    }
    GiveFocus(control);
    return true;
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
