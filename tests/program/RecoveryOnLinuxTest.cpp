#include <csignal>
#include <cstring>
#include <filesystem>
#include <set>

#include "UnsavedUnits.h"
#include "UsersTable.h"
#include "support/AnotherDisk.h"

namespace zy::test {
namespace {

namespace fs = std::filesystem;
using ::testing::AnyOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// The paths of the notes in this folder for the state of programs.
std::set<fs::path> NotesIn(const fs::path& folder) {
    std::error_code none;
    const fs::directory_iterator files(folder / "zysetup", none);
    std::set<fs::path> notes;
    for (const auto& file : files) {
        if (file.path().extension() == ".journal") {
            notes.insert(file.path());
        }
    }
    return notes;
}

/// The units editor, which the system ends before its change is saved.
class EndedUnits : public UnsavedUnits {
  protected:
    void EditAndWaitForTheNote() {
        Edit();
        const fs::path folder = outside.environment.set["XDG_STATE_HOME"];
        ASSERT_TRUE(WaitUntil([&] { return !NotesIn(folder).empty(); }));
    }
};

class SignalledUnits : public EndedUnits, public ::testing::WithParamInterface<int> {
  protected:
    void ExpectEndBySignal() {
        Program().Signal(GetParam());
        constexpr int kSignalled = 128;
        EXPECT_EQ(Program().WaitForEnd(), kSignalled + GetParam());
        EXPECT_EQ(Get(kFile), kBefore);
    }
};

TEST_P(SignalledUnits, WhatWasDoneIsRestored) {
    EditAndWaitForTheNote();
    ExpectEndBySignal();
    ExpectRestored();
}

TEST_P(SignalledUnits, WhatWasDoneIsRestoredAfterASignalAtAQuestion) {
    Edit();
    AskToClose();
    ExpectEndBySignal();
    ExpectRestored();
}

std::string NameOfSignal(const ::testing::TestParamInfo<int>& signal) {
    return sigabbrev_np(signal.param);
}

INSTANTIATE_TEST_SUITE_P(Each, SignalledUnits, ::testing::Values(SIGHUP, SIGTERM), NameOfSignal);

TEST_F(EndedUnits, WhatWasDoneIsRestoredAfterTheDisplayHasGone) {
    EditAndWaitForTheNote();
    CutOffActiveWindow();
    EXPECT_EQ(Program().WaitForEnd(), 1);
    printed = AnyOf(IsEmpty(), HasSubstr("display")); // the first of the two says what ended it
    ExpectRestored();
}

TEST_F(EndedUnits, WhatWasDoneIsRestoredAfterTheErrorOfAWindowTooFarAway) {
    outside.environment.set["GDK_DPI_SCALE"] = "0.5"; // 30 twips to the pixel
    Edit();
    MoveActiveWindow(1150, 100);
    AskToClose();
    PressKeys("alt+n");
    EndByError();
    outside.environment.set.erase("GDK_DPI_SCALE");
    ExpectRestored();
}

/// The users editor, in a session with a folder in memory, the only place for notes of passwords.
class EndedUsers : public Scene {
  protected:
    static constexpr auto kTable = "ZYSECURE.DBF";

    void SetUp() override {
        outside.environment.set["XDG_RUNTIME_DIR"] = memory.Path().string();
        Put(kTable, TableOf("Ann"));
    }
    /// Starts it where an earlier session has left notes, and has them restored.
    void StartAndRestore() {
        const auto before = NotesIn(memory.Path());
        Start({"@SECURITY"});
        ASSERT_TRUE(WaitForWindow("ZY Setup - Unsaved Changes")) << Program().Output();
        PressKeys("Return");
        // They are noted anew once all of them are done again.
        ASSERT_TRUE(WaitUntil([&] {
            const auto now = NotesIn(memory.Path());
            return !now.empty() && now != before;
        }));
        ASSERT_TRUE(WaitForWindow(kUsersTitle)) << Program().Output();
    }

    TemporaryFolder memory{kAnotherDisk};
};

TEST_F(EndedUsers, WhatWasDoneIsRestoredAfterTheErrorOfAQuoteInAPassword) {
    OpenUsers();
    PressKeys("ctrl+Home");
    TypeCharacters("Bea");
    PressKeys("Tab");
    TypeCharacters("it's");
    PressKeys("Return ctrl+s");
    ASSERT_TRUE(WaitForWindow("ZY Setup")) << Program().Output(); // the box of the error
    PressKeys("Return");
    EXPECT_EQ(Program().WaitForEnd(), 1);
    EXPECT_EQ(Get(kTable), TableOf("Ann"));

    StartAndRestore();
    fs::remove(outside.Settings() / "ZYSECURE.TMP"); // of the save that failed
    PressKeys("ctrl+Home Right F2 Home Right Right Delete Return ctrl+s");
    EXPECT_TRUE(WaitUntil([&] { return Get(kTable) != TableOf("Ann"); })) << Program().Output();
    EXPECT_THAT(Get(kTable), HasSubstr(" Bea       its  "));
    Close();
}

} // namespace
} // namespace zy::test
