#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gmock/gmock.h>

#include "Scene.h"
#include "Screen.h"
#include "UsersTable.h"
#include "support/AnotherDisk.h"

namespace zy::test {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::Not;
using ::testing::Optional;

/// What only Linux has: a program without a display, the user's folders, a session bus that may be missing.
class OnLinux : public Scene {
  protected:
    /// Starts the program where no window can come up.
    std::optional<int> StatusWithoutDisplay(const std::vector<std::string>& arguments) {
        outside.environment.unset.emplace_back("DISPLAY");
        Start(arguments);
        return Program().WaitForEnd();
    }
    /// What the system tells of the child of a process.
    static fs::path ProcessOf(int parent) {
        const auto tasks = fs::path("/proc") / std::to_string(parent) / "task";
        for (const auto& task : fs::directory_iterator(tasks)) {
            int child = 0;
            if (std::ifstream(task.path() / "children") >> child) {
                return fs::path("/proc") / std::to_string(child);
            }
        }
        return {};
    }
    /// The paths of all files of the user's that hold a text.
    std::vector<std::string> FilesWith(const std::string& wanted) const {
        std::vector<std::string> found;
        for (const auto& entry : fs::recursive_directory_iterator(outside.Output(""))) {
            if (entry.is_regular_file()) {
                std::ifstream file(entry.path(), std::ios::binary);
                const std::string bytes{std::istreambuf_iterator<char>(file), {}};
                if (bytes.find(wanted) != std::string::npos) {
                    found.push_back(entry.path().string());
                }
            }
        }
        return found;
    }
    /// Puts a link in place of one of the settings files.
    void Link(const std::string& fileName, const std::string& target) const {
        fs::create_symlink(target, outside.Settings() / fileName);
    }
    /// The most that the system may write of the program's memory when that breaks off, as the system tells
    /// it.
    static std::string LargestDump() {
        constexpr auto kLimit = "Max core file size";
        std::ifstream limits(ProcessOf(::getpid()) / "limits");
        for (std::string line; std::getline(limits, line);) {
            if (line.starts_with(kLimit)) {
                return line.substr(std::string_view(kLimit).size());
            }
        }
        return {};
    }
    bool IsLink(const std::string& fileName) const { return fs::is_symlink(outside.Settings() / fileName); }
};

TEST_F(OnLinux, AnUnknownArgumentNeedsNoDisplay) {
    EXPECT_EQ(StatusWithoutDisplay({"@OTHER"}), 0);
}

TEST_F(OnLinux, ABlankBehindTheKeywordMakesItUnknown) {
    EXPECT_EQ(StatusWithoutDisplay({"@RULES "}), 0);
}

TEST_F(OnLinux, AnUnknownArgumentNeedsNoDisplayAlthoughAPlaceIsStored) {
    OpenUnits();
    Close();
    EXPECT_NE(outside.Registry(), "");
    EXPECT_EQ(StatusWithoutDisplay({"@OTHER"}), 0);
}

TEST_F(OnLinux, AnEditorWithoutADisplaySaysSoAndEndsWithStatusOne) {
    EXPECT_EQ(StatusWithoutDisplay({"@RULES"}), 1);
    printed =
        "ZY Setup: There is no display to open a window on: start it in a desktop session, or set DISPLAY\n";
}

TEST_F(OnLinux, NothingOfThePasswordsInMemoryIsWrittenWhenTheProgramBreaksOff) {
    OpenUsers();
    EXPECT_THAT(LargestDump(), MatchesRegex(" +0 +0 +bytes +"));
    Close();
}

TEST_F(OnLinux, AProgramThatAMistakeEndsLeavesANoteWithoutAnyValue) {
    OpenUnits();
    TypeCharacters("Marked");
    PressKeys("Tab");
    Program().Signal(SIGSEGV);
    constexpr int kSignalled = 128;
    EXPECT_EQ(Program().WaitForEnd(), kSignalled + SIGSEGV);
    const auto note = fs::path(outside.environment.set["XDG_STATE_HOME"]) / "zysetup" / "crash.txt";
    std::ifstream file(note);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    EXPECT_THAT(text, AllOf(HasSubstr("\nSignal 11\n"), HasSubstr("\nmUnits LoadUnitsData\n"),
                            HasSubstr("zyGlobal(+0x"), Not(HasSubstr("Marked"))));
}

TEST_F(OnLinux, APasswordIsInNothingThatTheProgramTouchesButTheTable) {
    StartViewer();
    Put("ZYSECURE.DBF", TableOf("ADMIN"));
    Start({"@SECURITY"});
    ASSERT_TRUE(WaitForWindow("ZY Setup Security Login"));
    TypeCharacters("admin");
    PressKeys("Tab");
    TypeCharacters("MarkedWrong");
    PressKeys("Return");
    ASSERT_TRUE(WaitForWindow("Login"));
    PressKeys("Return");
    ASSERT_TRUE(WaitForWindow("ZY Setup Security Login"));
    TypeCharacters("secret");
    PressKeys("Return");
    ASSERT_TRUE(WaitForWindow(kUsersTitle));
    PressKeys("ctrl+Home Tab");
    TypeCharacters("MarkedSaved");
    PressKeys("Return");
    PressKeys("ctrl+s");
    ASSERT_TRUE(WaitUntil([this] { return Get("ZYSECURE.DBF").find("MarkedSaved") != std::string::npos; }));
    PressKeys("ctrl+Home Tab");
    TypeCharacters("MarkedUnsaved");
    PressKeys("Return");
    EXPECT_THAT(FilesWith("Marked"), Each(EndsWith(".DBF")));
    EXPECT_THAT(FilesWith("MarkedSaved"), Contains(EndsWith("system/ZYSECURE.DBF")))
        << "it is not looked for rightly";
    Program().Signal(SIGSEGV);
    EXPECT_NE(Program().WaitForEnd(), std::nullopt);
    EXPECT_THAT(FilesWith("Marked"), Each(EndsWith(".DBF")));
    EXPECT_THAT(FilesWith("mSecurity"), Contains(EndsWith("crash.txt")));
    EXPECT_THAT(Traces(), Each(Not(HasSubstr("Marked"))));
}

TEST_F(OnLinux, AMissingSettingsFolderIsMadeInTheUsersDataFolder) {
    outside.environment.set.erase("ZYSETUP_SYSTEM_DIR");
    outside.environment.unset.emplace_back("ZYSETUP_SYSTEM_DIR");
    EXPECT_EQ(StatusWithoutDisplay({""}), 0);
    EXPECT_TRUE(std::filesystem::is_directory(outside.environment.set["XDG_DATA_HOME"] + "/zysetup/system"));
}

TEST_F(OnLinux, AWindowTooFarAwayForItsPlaceToBeStoredIsAnOverflow) {
    outside.environment.set["GDK_DPI_SCALE"] = "0.5"; // 30 twips to the pixel
    OpenUnits();
    ExpectOverflowAt(1150);
}

TEST_F(OnLinux, TheLoginStandsBeforeTheUsersWhateverFoldersAreBesideTheirs) {
    Put("ZYSECURE.DBF", TableOf("ADMIN"));
    for (const char* other : {"SYSTEM", "System"}) {
        fs::create_directory(outside.Settings().parent_path() / other);
    }
    Start({"@SECURITY"});
    ASSERT_TRUE(WaitForWindow("ZY Setup Security Login")) << Program().Output();
    PressKeys("Escape");
    EXPECT_EQ(Program().WaitForEnd(), 0);
}

TEST_F(OnLinux, RulesAreSavedWhereALinkLeads) {
    const TemporaryFolder shared(kAnotherDisk);
    shared.Put("shared.sys", "[RULE]\r\nCODE=R1\r\nMIN=1\r\nMAX=1\r\nCOND=>\r\nZONE=UCL\r\nDESC1=Old\r\n");
    Link("ZYRules.sys", shared.Path("shared.sys"));
    OpenRules();
    PressKeys("alt+d ctrl+a"); // to the Description
    TypeCharacters("Changed");
    PressKeys("ctrl+s");
    EXPECT_TRUE(WaitUntil([&] {
        return shared.Get("shared.sys").value_or("").find("= Changed") != std::string::npos;
    })) << shared.Get("shared.sys").value_or("no file");
    EXPECT_TRUE(IsLink("ZYRules.sys"));
    EXPECT_THAT(outside.FileNames(), ElementsAre("ZYRules.sys"));
    EXPECT_THAT(shared.Names(), ElementsAre("shared.sys"));
}

TEST_F(OnLinux, UnitsAreSavedWhereALinkLeads) {
    const TemporaryFolder shared;
    shared.Put("shared.sys", "Kilograms,kg\r\n");
    Link("ZYUNITS.SYS", shared.Path("shared.sys"));
    OpenUnits();
    PressKeys("ctrl+Home"); // the first unit, from the list where the keyboard starts
    TypeCharacters("g");
    PressKeys("Return ctrl+s");
    EXPECT_TRUE(WaitUntil([&] { return shared.Get("shared.sys") == "Kilograms,g\r\n"; }))
        << shared.Get("shared.sys").value_or("no file");
    EXPECT_TRUE(IsLink("ZYUNITS.SYS"));
}

TEST_F(OnLinux, UsersAreSavedWhereLinksLead) {
    const TemporaryFolder shared(kAnotherDisk);
    shared.Put("users.dbf", TableOf("Ann"));
    Link("ZYSECURE.DBF", shared.Path("users.dbf"));
    Link("ZYSECURE.NDX", shared.Path("users.ndx"));
    OpenUsers();
    PressKeys("ctrl+Home");
    TypeCharacters("Bea");
    PressKeys("Return ctrl+s");
    EXPECT_TRUE(WaitUntil([&] { return shared.Get("users.ndx").has_value(); })) << Program().Output();
    EXPECT_THAT(shared.Get("users.dbf"), Optional(HasSubstr(" Bea       secret ")));
    EXPECT_TRUE(IsLink("ZYSECURE.DBF"));
    EXPECT_TRUE(IsLink("ZYSECURE.NDX"));
    EXPECT_THAT(outside.FileNames(), ElementsAre("ZYSECURE.DBF", "ZYSECURE.NDX"));
}

TEST_F(OnLinux, WithoutASessionBusNoneIsStarted) {
    OpenRules();
    Close();
    const auto runtimeFolder = outside.environment.set["XDG_RUNTIME_DIR"];
    EXPECT_FALSE(std::filesystem::exists(runtimeFolder + "/bus"));
    Child search({"pgrep", "-f", "[d]bus-daemon.*" + runtimeFolder}, {}, outside.Output("search.txt"));
    EXPECT_EQ(search.WaitForEnd(), 1); // found none
}

} // namespace
} // namespace zy::test
