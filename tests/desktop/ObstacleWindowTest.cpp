#include "UnitsWindow.h"

namespace zy::test {
namespace {

class ObstacleWindow : public UnitsWindow {};

TEST_F(ObstacleWindow, SaysAtItsOpeningWhatToDoAboutAFolderThatMayNotBeWritten) {
    world.files.SetFolderReadOnly(R"(C:\SYS)");
    Play([&] {
        WaitForStatus(
            "0 units; ZYUNITS.SYS cannot be written now: access is denied; open the editor as its owner "
            "or an administrator");
        EXPECT_TRUE(boxes.Seen().empty()) << "nobody has to answer that";
        CloseWindow();
    });
}

} // namespace
} // namespace zy::test
