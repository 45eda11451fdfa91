#pragma once

#include "Scene.h"
#include "Screen.h"

namespace zy::test {

/// The units editor with a change that is not saved, whatever becomes of it then.
class UnsavedUnits : public Scene {
  protected:
    static constexpr auto kFile = "ZYUNITS.SYS";
    static constexpr auto kBefore = "Kilograms,kg\r\n";
    static constexpr auto kAfter = "Kilograms,t\r\n";
    static constexpr auto kQuestion = "ZY Setup - Unsaved Changes";
    static constexpr auto kSaveChanges = "Save Changes?";
    static constexpr auto kError = "ZY Setup"; ///< the title of its box

    void SetUp() override {
        StartViewer();
        Put(kFile, kBefore);
    }
    /// Types over the unit.
    void Edit() {
        OpenUnits();
        PressKeys("ctrl+Home");
        TypeCharacters("t");
        PressKeys("Return");
    }
    /// Asks for the end, up to the question before it.
    void AskToClose() {
        PressKeys("alt+F4");
        ASSERT_TRUE(WaitForWindow(kSaveChanges)) << Program().Output();
    }
    /// Lets the error that is shown end the program.
    void EndByError() {
        ASSERT_TRUE(WaitForWindow(kError)) << Program().Output();
        PressKeys("Return");
        EXPECT_EQ(Program().WaitForEnd(), 1);
    }
    void StartToTheQuestion() {
        Start({"@UNITS"});
        ASSERT_TRUE(WaitForWindow(kQuestion)) << Program().Output();
    }
    /// The next start offers the change; it is restored, saved and not missed any more.
    void ExpectRestored() {
        StartToTheQuestion();
        PressKeys("Return");
        ASSERT_TRUE(WaitForWindow(kUnitsTitle)) << Program().Output();
        SaveRestored();
        Close();
    }

  private:
    /// The window has the keyboard before the changes are back in it: a save comes too early at first. One
    /// at a time: keys that come faster than they are worked off keep a Windows program from anything else.
    void SaveRestored() {
        EXPECT_TRUE(WaitUntil([this] {
            PressKeys("ctrl+s");
            return WaitUntil([this] { return Get(kFile) == kAfter; }, std::chrono::seconds(2));
        })) << Get(kFile);
    }
};

} // namespace zy::test
