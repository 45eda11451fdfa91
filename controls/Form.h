#pragma once

#include "controls/Control.h"

namespace zy {

class CommandButton;

enum class WindowState { Normal = 0, Minimized = 1, Maximized = 2 };

/// A window: the root of its controls and the keeper of the focus. Its caption is the window's title.
class Form : public Container {
  public:
    explicit Form(std::string name);

    /// The control that has the focus; none before anything took it.
    Control* Focused() const { return focused_; }
    /// Moves the focus from code: no check runs. Raises `focusChanged` also when the control has it.
    void GiveFocus(Control& control);
    /// Asks the control that is left whether it may be; false when it keeps the focus. A control that is not
    /// usable any more is not asked, and no second question starts while one is being asked. On the way to a
    /// control that causes no validation nothing is asked: that waits until the focus goes on from there.
    bool MoveFocus(Control& control);

    /// The buttons of a dialog that Enter and Escape press; none in other windows.
    CommandButton* OnEnter() const { return onEnter_; }
    CommandButton* OnEscape() const { return onEscape_; }
    void SetKeyButtons(CommandButton* onEnter, CommandButton* onEscape);

    WindowState State() const { return state_; }
    /// Sets the state, whether the program or the user wants it; the inner size follows by SetInnerSize.
    void SetState(WindowState state);

    /// The room for controls, without menu bar and borders but with the status bar's.
    const Size& InnerSize() const { return innerSize_; }
    /// The least inner size in which all controls have the room that they need; none where nothing is known
    /// of it. A view that has less room pretends to have this much, and lets the user scroll.
    Size LeastInnerSize() const { return leastInnerSize ? leastInnerSize() : Size(); }
    /// Takes the size from the window system and raises `resize`, also when only the state changed.
    void SetInnerSize(const Size& size);

    std::function<Size()> leastInnerSize;
    Event<> focusChanged;
    Event<> stateChanged;
    Event<> resize;

  private:
    bool MayLeave(const Control* control);

    Control* focused_ = nullptr;
    Control* unasked_ = nullptr; ///< left for a control that causes no validation, and not asked yet
    bool asking_ = false;
    CommandButton* onEnter_ = nullptr;
    CommandButton* onEscape_ = nullptr;
    WindowState state_ = WindowState::Normal;
    Size innerSize_;
};

} // namespace zy
