#pragma once

#include "RulesWindow.h"

namespace zy::test {

/// The rules editor's window, whose controls are to lie tidily at every size.
class LayoutWindow : public RulesWindow {
  protected:
    LayoutWindow() { PutRules(ThreeRules()); }

    void Resize(const wxSize& size);
    /// Every control can be seen whole, has the room it needs, and lies on no other.
    void ExpectTidy();

  private:
    std::string Untidiness();
    static std::string Overlaps(const std::vector<const Control*>& controls);
    static std::string Clipped(const Control& control);
    std::string Cramped(const Control& control);
};

} // namespace zy::test
