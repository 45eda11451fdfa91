#include "HeldMouse.h"
#include "RulesWindow.h"
#include "desktop/GtkFunctions.h"

namespace zy::test {
namespace {

class HeldMouseWindow : public RulesWindow {
  protected:
    HeldMouseWindow() { PutRules(ThreeRules()); }

    /// What is typed in the list stands in a window of its own, which has all keys and clicks.
    void WaitForSearch(bool isOpen) {
        WaitUntil(isOpen ? "a search is open" : "no search is open",
                  [isOpen] { return (gtk_grab_get_current() != nullptr) == isOpen; });
    }
    void PressSpaceInVain() {
        Press('C', wxMOD_ALT);
        WaitForFocus(page().cboCondition);
        const HeldMouse mouse;
        Press(WXK_SPACE);
        Press(WXK_TAB);
        WaitForFocus(page().cboZone);
    }
};

TEST_F(HeldMouseWindow, AListThatCannotDropDownLeavesTheKeysToTheWindow) {
    Play([&] { PressSpaceInVain(); });
}

TEST_F(HeldMouseWindow, AListThatCouldNotDropDownDoesSoWhenTheMouseIsFreeAgain) {
    Play([&] {
        PressSpaceInVain();
        PickItem(page().cboCondition, 4);
        WaitForStatus("3 rules   -   R1 edited; File > Save stores it");
    });
}

TEST_F(HeldMouseWindow, AMenuThatCannotOpenLeavesTheKeysToTheWindow) {
    Play([&] {
        Press('C', wxMOD_ALT);
        WaitForFocus(page().cboCondition);
        const HeldMouse mouse;
        Press('E', wxMOD_ALT);
        Press(WXK_TAB);
        WaitForFocus(page().cboZone);
    });
}

TEST_F(HeldMouseWindow, AContextMenuOfATextThatCannotOpenLeavesTheKeysToTheWindow) {
    Play([&] {
        Press('D', wxMOD_ALT);
        WaitForFocus(page().txtDescription);
        const HeldMouse mouse;
        Press(WXK_F10, wxMOD_SHIFT);
        Press('C', wxMOD_ALT);
        WaitForFocus(page().cboCondition);
    });
}

TEST_F(HeldMouseWindow, ASearchInTheListEndsAlsoWhenItsOwnMenuCannotOpen) {
    Play([&] {
        WaitForFocus(page().lstRulesList);
        Type("r");
        WaitForSearch(true);
        const HeldMouse mouse;
        Press(WXK_F10, wxMOD_SHIFT);
        Press(WXK_ESCAPE);
        WaitForSearch(false);
    });
}

TEST_F(HeldMouseWindow, AMenuThatCouldNotOpenDoesSoWhenTheMouseIsFreeAgain) {
    Play([&] {
        {
            const HeldMouse mouse;
            Press('E', wxMOD_ALT);
            Press('C', wxMOD_ALT);
            WaitForFocus(page().cboCondition);
        }
        Press('F', wxMOD_ALT);
        WaitForMenu();
        Press(WXK_ESCAPE);
        WaitForNoMenu();
    });
}

} // namespace
} // namespace zy::test
