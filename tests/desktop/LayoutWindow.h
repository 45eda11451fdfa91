#pragma once

#include <wx/scrolwin.h>

#include "RulesWindow.h"

namespace zy::test {

/// The rules editor's window, whose controls are to lie tidily at every size.
class LayoutWindow : public RulesWindow {
  protected:
    LayoutWindow() { PutRules(ThreeRules()); }

    /// The window's least size, in the pixels of this screen.
    static wxSize LeastSize();
    /// Every control can be seen whole, has the room it needs, and lies on no other.
    void ExpectTidy();

    /// Every control has the room it needs, and lies on no other.
    void ExpectUncrowded();
    /// Has the page ask for this much room, in twips, and waits until it has that or more.
    void NeedRoom(const Size& least);
    /// Waits until the whole control can be seen.
    void ExpectSeen(const Control& control);
    void ExpectStatusBarSeen();
    /// Scrolls the page so that the lower part of a control is out of sight. Returns a place on the upper.
    wxPoint ScrollUntilTheTopOfItIsSeen(const Control& control);

  private:
    /// Waits until a description of what is wrong is empty.
    static void ExpectNothingWrong(const std::function<std::string()>& describe);
    std::vector<const Control*> ListControls();
    std::vector<const Control*> DetailControls();
    std::string Crowding();
    std::string Clipping();
    wxScrolledWindow& PageArea();
    static std::string Overlaps(const std::vector<const Control*>& controls);
    static std::string Clipped(const Control& control);
    static std::string Text(const wxRect& place);
    std::string Cramped(const Control& control);
};

} // namespace zy::test
