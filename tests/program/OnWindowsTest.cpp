#include "Scene.h"
#include "Screen.h"

namespace zy::test {
namespace {

/// What is different on Windows: a window can be moved off every screen.
class OnWindows : public Scene {};

TEST_F(OnWindows, AWindowTooFarAwayForItsPlaceToBeStoredIsAnOverflow) {
    Open("@UNITS", "ZY Setup - Units of Measure");
    MoveActiveWindow(2300, 100);
    PressKeys("alt+F4");
    ASSERT_TRUE(WaitForWindow("ZY Setup")) << Program().Output();
    PressKeys("Return");
    EXPECT_EQ(Program().WaitForEnd(), 1);
    EXPECT_EQ(outside.Registry(), "");
}

} // namespace
} // namespace zy::test
