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

} // namespace
} // namespace zy::test
