#include "Scene.h"
#include "Screen.h"

namespace zy::test {
namespace {

/// What only Linux has: a program without a display, the user's folders, a session bus that may be missing.
class OnLinux : public Scene {
  protected:
    /// Starts the program where no window can come up.
    std::optional<int> StatusWithoutDisplay(const std::vector<std::string>& arguments) {
        outside.environment.unset.emplace_back("DISPLAY");
        Start(arguments);
        return Program().WaitForEnd();
    }
};

TEST_F(OnLinux, AnUnknownArgumentNeedsNoDisplay) {
    EXPECT_EQ(StatusWithoutDisplay({"@OTHER"}), 0);
}

TEST_F(OnLinux, ABlankBehindTheKeywordMakesItUnknown) {
    EXPECT_EQ(StatusWithoutDisplay({"@RULES "}), 0);
}

TEST_F(OnLinux, AnUnknownArgumentNeedsNoDisplayAlthoughAPlaceIsStored) {
    Open("@UNITS", "ZY Setup - Units of Measure");
    Close();
    EXPECT_NE(outside.Registry(), "");
    EXPECT_EQ(StatusWithoutDisplay({"@OTHER"}), 0);
}

TEST_F(OnLinux, AnEditorWithoutADisplaySaysSoAndEndsWithStatusOne) {
    EXPECT_EQ(StatusWithoutDisplay({"@RULES"}), 1);
    printed =
        "ZY Setup: There is no display to open a window on: start it in a desktop session, or set DISPLAY\n";
}

TEST_F(OnLinux, AMissingSettingsFolderIsMadeInTheUsersDataFolder) {
    outside.environment.set.erase("ZYSETUP_SYSTEM_DIR");
    outside.environment.unset.emplace_back("ZYSETUP_SYSTEM_DIR");
    EXPECT_EQ(StatusWithoutDisplay({""}), 0);
    EXPECT_TRUE(std::filesystem::is_directory(outside.environment.set["XDG_DATA_HOME"] + "/zysetup/system"));
}

TEST_F(OnLinux, AWindowTooFarAwayForItsPlaceToBeStoredIsAnOverflow) {
    outside.environment.set["GDK_DPI_SCALE"] = "0.5"; // 30 twips to the pixel
    Open("@UNITS", "ZY Setup - Units of Measure");
    MoveActiveWindow(1150, 100);
    PressKeys("alt+F4");
    ASSERT_TRUE(WaitForWindow("ZY Setup")) << Program().Output();
    PressKeys("Return");
    EXPECT_EQ(Program().WaitForEnd(), 1);
    EXPECT_EQ(outside.Registry(), "");
}

TEST_F(OnLinux, WithoutASessionBusNoneIsStarted) {
    Open("@RULES", "ZY Setup - Rules");
    Close();
    const auto runtimeFolder = outside.environment.set["XDG_RUNTIME_DIR"];
    EXPECT_FALSE(std::filesystem::exists(runtimeFolder + "/bus"));
    Child search({"pgrep", "-f", "[d]bus-daemon.*" + runtimeFolder}, {}, outside.Output("search.txt"));
    EXPECT_EQ(search.WaitForEnd(), 1); // found none
}

} // namespace
} // namespace zy::test
