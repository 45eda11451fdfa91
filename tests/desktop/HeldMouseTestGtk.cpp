#include "HeldMouse.h"
#include "RulesWindow.h"

namespace zy::test {
namespace {

class HeldMouseWindow : public RulesWindow {
  protected:
    HeldMouseWindow() { PutRules(ThreeRules()); }

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

} // namespace
} // namespace zy::test
