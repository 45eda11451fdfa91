#include "Scene.h"
#include "Screen.h"

namespace zy::test {
namespace {

/// What is different on Windows: a window can be moved off every screen.
class OnWindows : public Scene {};

TEST_F(OnWindows, AWindowTooFarAwayForItsPlaceToBeStoredIsAnOverflow) {
    OpenUnits();
    ExpectOverflowAt(2300);
}

} // namespace
} // namespace zy::test
