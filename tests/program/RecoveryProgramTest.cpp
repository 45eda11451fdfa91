#include <filesystem>

#include "UnsavedUnits.h"

namespace zy::test {
namespace {

/// The units editor, which ends before its change is saved.
class RecoveryProgram : public UnsavedUnits {
  protected:
    void EditAndKill() {
        Edit();
        AskToClose();
        KillProgram();
    }
};

TEST_F(RecoveryProgram, WhatWasDoneBeforeAKillIsRestoredByEnterAndSaved) {
    EditAndKill();
    EXPECT_EQ(Get(kFile), kBefore);
    ExpectRestored();
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

TEST_F(RecoveryProgram, AnErrorOfTheNextStartLeavesWhatWasDoneToTheOneAfterIt) {
    EditAndKill();
    Put(kFile, "Kilograms\r\n"); // without a unit the list cannot be loaded: run-time error 9
    Start({"@UNITS"});
    EndByError();
    Put(kFile, kBefore);
    ExpectRestored();
}

} // namespace
} // namespace zy::test
