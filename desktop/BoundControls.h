#pragma once

#include <vector>

class wxWindow;

namespace zy {

class Control;
class ControlBinding;

/// The controls of one window that have a real control, without those that only contain others.
class BoundControls {
  public:
    /// The binding must outlive this object's last use.
    void Add(ControlBinding& binding) { bindings_.push_back(&binding); }

    /// The binding whose real control a window is or belongs to; null when there is none.
    ControlBinding* Find(const wxWindow* window) const;
    ControlBinding* Find(const Control* control) const;

  private:
    std::vector<ControlBinding*> bindings_;
};

} // namespace zy
