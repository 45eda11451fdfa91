#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "shell/Program.h"
#include "shell/mMain.h"
#include "support/RawBool16.h"
#include "support/RulesOnDisk.h"
#include "support/WorldTest.h"

namespace zy::test {

/// A whole program in a memory world, with a trace viewer that runs from the start.
class ProgramTest : public WorldTest {
  protected:
    ProgramTest() { world.traceServers.SetRunning(true); }

    /// Builds the program and runs its start-up with this command line. One that ran before has ended, and
    /// nobody misses what it did not save.
    StartUp Start(std::string_view commandLine) {
        Break();
        world.journals.Entries().clear();
        return StartAfterBreak(commandLine);
    }
    /// The program is gone from one moment to the next.
    void Break() { program_.reset(); }
    /// Starts it again after that.
    StartUp StartAfterBreak(std::string_view commandLine) {
        Break();
        world.system.SetCommandLine(commandLine);
        program_ = std::make_unique<Program>(Outside());
        program().window.unloaded.Connect([this] { ++unloaded; });
        return mMain(program());
    }

    /// The world that the program is built in.
    virtual World Outside() { return world.Get(); }

    Program& program() { return *program_; }
    frmGlobalSettings& window() { return program().window; }
    SettingsForm& form() { return program().form; }
    SharedState& state() { return program().state; }

    /// The two marks of unsaved changes.
    void ExpectMarks(bool changeFlag, bool changed) {
        EXPECT_EQ(ValueOf(form().ChangeFlag), changeFlag ? -1 : 0);
        EXPECT_EQ(ValueOf(state().gbChanged), changed ? -1 : 0);
    }

    int unloaded = 0; ///< how many times the window told that it is gone

  private:
    std::unique_ptr<Program> program_;
};

} // namespace zy::test
