#include "Scene.h"
#include "Screen.h"

namespace zy::test {
namespace {

constexpr auto kFile = "ZYUNITS.SYS";
constexpr auto kBefore = "Kilograms,kg\r\n";
constexpr auto kAfter = "Kilograms,t\r\n";
constexpr auto kQuestion = "ZY Setup - Unsaved Changes";

/// The units editor, which is ended by force.
class RecoveryProgram : public Scene {
  protected:
    void SetUp() override {
        StartViewer();
        Put(kFile, kBefore);
    }
    /// Types over the unit and ends the program before it is saved.
    void EditAndKill() {
        OpenUnits();
        PressKeys("ctrl+Home");
        TypeCharacters("t");
        PressKeys("Return alt+F4");
        ASSERT_TRUE(WaitForWindow("Save Changes?")) << Program().Output();
        KillProgram();
    }
    /// The window has the keyboard before the changes are back in it: a save comes too early at first.
    void SaveRestored() {
        EXPECT_TRUE(WaitUntil([this] {
            PressKeys("ctrl+s");
            return Get(kFile) == kAfter;
        })) << Get(kFile);
    }
    void StartToTheQuestion() {
        Start({"@UNITS"});
        ASSERT_TRUE(WaitForWindow(kQuestion)) << Program().Output();
    }
};

TEST_F(RecoveryProgram, WhatWasDoneBeforeAKillIsRestoredByEnterAndSaved) {
    EditAndKill();
    EXPECT_EQ(Get(kFile), kBefore);
    StartToTheQuestion();
    PressKeys("Return");
    ASSERT_TRUE(WaitForWindow(kUnitsTitle)) << Program().Output();
    SaveRestored();
    Close();
    OpenUnits();
    Close();
}

TEST_F(RecoveryProgram, EscapeAsksAgainTheNextTimeAndDiscardNeverMore) {
    EditAndKill();
    StartToTheQuestion();
    PressKeys("Escape");
    ASSERT_TRUE(WaitForWindow(kUnitsTitle)) << Program().Output();
    Close();
    StartToTheQuestion();
    PressKeys("alt+d");
    ASSERT_TRUE(WaitForWindow(kUnitsTitle)) << Program().Output();
    Close();
    OpenUnits();
    Close();
    EXPECT_EQ(Get(kFile), kBefore);
}

} // namespace
} // namespace zy::test
