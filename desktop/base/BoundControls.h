#pragma once

#include <vector>

namespace zy {

class Control;
class ControlBinding;

/// The controls of one window that have a real control, without those that only contain others.
class BoundControls {
  public:
    /// The binding must outlive this object's last use.
    void Add(ControlBinding& binding) { bindings_.push_back(&binding); }

    /// The binding of a control, or of the one that really has the focus; null when there is none.
    ControlBinding* Find(const Control* control) const;
    ControlBinding* FindFocused() const;
    /// Gives the focus to the next control that can have it, in tab order behind the given one; to the first
    /// when none is given.
    void FocusNext(const ControlBinding* behind) const;

  private:
    std::vector<ControlBinding*> bindings_;
};

} // namespace zy
