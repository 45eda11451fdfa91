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

TEST_F(LayoutWindow, KeepsItsLeastSizeOnAScreenThatIsSmaller) {
    const EnvironmentVariable large("GDK_SCALE", "3");
    Play([&] {
        WaitUntil("it is larger than the screen", [] {
            const wxSize size = RealFrame().GetSize();
            const wxSize screen = wxGetDisplaySize();
            return size.x > screen.x && size.y > screen.y;
        });
        EXPECT_GE(InWindow([] { return RealFrame().GetPosition().y; }), 0);
    });
}

} // namespace
} // namespace zy::test
