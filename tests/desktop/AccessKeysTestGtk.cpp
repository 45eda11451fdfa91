#include "RulesWindow.h"
#include "desktop/Native.h"

namespace zy::test {
namespace {

class AccessKeys : public RulesWindow {
  protected:
    AccessKeys() { PutRules(ThreeRules()); }
};

TEST_F(AccessKeys, LeadToTheirControlsFromTheFirstEventOn) {
    const auto pressAltD = [] {
        wxKeyEvent press(wxEVT_KEY_DOWN);
        press.m_rawCode = 'D';
        HandOnAccessKey(RealFrame(), press);
    };
    Subscription shown;
    prepare = [&] {
        shown = program->form.appearanceChanged.Observe([&] {
            if (program->form.Visible()) {
                HandToWindow(pressAltD); // comes before the toolkit's first moment without events
            }
        });
    };
    Play([&] { WaitForFocus(page().txtDescription); });
}

} // namespace
} // namespace zy::test
