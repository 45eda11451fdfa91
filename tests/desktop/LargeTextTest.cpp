#include <wx/frame.h>

#include "LayoutWindow.h"
#include "support/EnvironmentVariable.h"

namespace zy::test {
namespace {

TEST_F(LayoutWindow, IsTidyWhereTextIsTwiceAsLarge) {
    const EnvironmentVariable large("GDK_DPI_SCALE", "2");
    Play([&] {
        ExpectTidy();
        Resize({1173, 1120});
        ExpectTidy();
    });
}

TEST_F(LayoutWindow, IsTidyWhereEverythingIsTwiceAsLarge) {
    const EnvironmentVariable large("GDK_SCALE", "2");
    Play([&] {
        ExpectTidy();
        Resize({586, 560});
        ExpectTidy();
    });
}

TEST_F(LayoutWindow, IsNoLargerThanAScreenWhereEverythingCanBeReachedByScrolling) {
    const EnvironmentVariable large("GDK_SCALE", "3");
    Play([&] {
        WaitUntil("it lies on the screen",
                  [] { return wxRect(wxGetDisplaySize()).Contains(RealFrame().GetRect()); });
        EXPECT_LT(InWindow([] { return RealFrame().GetSize().y; }), 560);
        for (const auto* control : ControlsInOrder()) {
            WaitForFocus(*control);
            ExpectSeen(*control);
            ExpectStatusBarSeen();
            Press(WXK_TAB);
        }
        ExpectUncrowded();
    });
}

} // namespace
} // namespace zy::test
