// The program in a desktop session that is not in order.

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>

#include "Scene.h"
#include "Screen.h"
#include "UsersTable.h"
#include "support/SilentSocket.h"

namespace zy::test {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

class TroubleOnLinux : public Scene {
  protected:
    void Set(const std::string& name, const std::string& value) {
        std::erase(outside.environment.unset, name);
        outside.environment.set[name] = value;
    }
    void Unset(const std::string& name) {
        outside.environment.set.erase(name);
        outside.environment.unset.push_back(name);
    }
    /// Opens the help and goes back to the rules.
    void OpenHelp() {
        PressKeys("F1");
        ASSERT_TRUE(WaitForWindow("ZY Setup - Help")) << Program().Output();
        PressKeys("Escape");
        ASSERT_TRUE(WaitForWindow(kRulesTitle)) << Program().Output();
    }
    /// Changes a unit, saves it and closes the editor, as on any day.
    void ExpectToWork() {
        Put("ZYUNITS.SYS", "Kilograms,kg\r\n");
        OpenUnits();
        PressKeys("ctrl+Home");
        TypeCharacters("t");
        PressKeys("Return ctrl+s");
        EXPECT_TRUE(WaitForBytes("ZYUNITS.SYS", "Kilograms,t\r\n")) << Get("ZYUNITS.SYS");
        Close();
    }
};

TEST_F(TroubleOnLinux, ASessionBusThatHangsKeepsNobodyFromTheUnits) {
    const auto path = outside.Output("bus").string();
    const SilentSocket bus(path);
    Set("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + path);
    Unset("NO_AT_BRIDGE"); // the bridge to the screen readers would wait for ever
    ExpectToWork();
}

TEST_F(TroubleOnLinux, ATraceViewerThatHangsHoldsTheProgramUpOnce) {
    const auto timesTold = [this] {
        const auto traces = Traces();
        return std::count(traces.begin(), traces.end(), "frmGlobalSettings\tmnuContents_Click\tStart");
    };
    StartViewer();
    OpenRules();
    OpenHelp(); // the window has its size by then, of which it would tell else
    ASSERT_TRUE(WaitUntil([&] { return timesTold() == 1; }));
    Viewer().Signal(SIGSTOP);
    OpenHelp(); // is told as soon as the viewer goes on
    OpenHelp(); // is not told
    Viewer().Signal(SIGCONT);
    EXPECT_TRUE(WaitUntil([&] { return timesTold() == 2; }));
    Close();
    StopViewer();
    EXPECT_EQ(timesTold(), 2);
}

TEST_F(TroubleOnLinux, ASystemWithoutAnyFontIsToldAndEndsWithStatusOne) {
    std::ofstream(outside.Output("fonts.conf")) << "<fontconfig/>";
    Set("FONTCONFIG_FILE", outside.Output("fonts.conf").string());
    Start({"@UNITS"});
    EXPECT_EQ(Program().WaitForEnd(), 1);
    printed = HasSubstr("ZY Setup: There is no font to show text with: install one, such as DejaVu Sans\n");
}

TEST_F(TroubleOnLinux, AHomeFolderThatTakesNothingKeepsNobodyFromTheUnits) {
    const auto home = outside.Output("home").string();
    std::ofstream(home) << "a file where the folder should be";
    Set("HOME", home);
    for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME"}) {
        Set(name, home + "/folder");
    }
    ExpectToWork();
    EXPECT_EQ(outside.Registry(), "");
}

TEST_F(TroubleOnLinux, ATrashThatTakesNothingLeavesTheTableAsItWas) {
    fs::create_directory(outside.environment.set["XDG_DATA_HOME"]);
    std::ofstream(outside.environment.set["XDG_DATA_HOME"] + "/Trash") << "a file where the folder should be";
    const auto before = TableOf("Ann");
    Put("ZYSECURE.DBF", before);
    OpenUsers();
    PressKeys("ctrl+Home");
    TypeCharacters("Bea");
    PressKeys("Return ctrl+s");
    ASSERT_TRUE(WaitForWindow("ZY Setup")) << Program().Output();
    PressKeys("Return");
    EXPECT_EQ(Program().WaitForEnd(), 1);
    EXPECT_EQ(Get("ZYSECURE.DBF"), before);
    EXPECT_THAT(Get("ZYSECURE.TMP"), HasSubstr(" Bea       "));
}

} // namespace
} // namespace zy::test
