#pragma once

#include "support/NotedCalls.h"
#include "support/ProgramTest.h"

namespace zy::test {

/// A program whose traces come in one list with what it asks of the window and the registry, so that the
/// order of all of them can be seen.
class EditorsTest : public ProgramTest {
  protected:
    /// Starts the program as ProgramTest does and forgets the calls of the start.
    void StartAndForget(std::string_view commandLine) {
        Start(commandLine);
        calls.clear();
    }
    /// The same, where nothing may have been marked as changed.
    void StartUnchanged(std::string_view commandLine) {
        StartAndForget(commandLine);
        ExpectMarks(false, false);
    }
    void ChooseSave() { window().menu.mnuSave.Click(); }
    /// From now on somebody else is saving in the system directory.
    void LetSomebodyElseSave() { world.files.SetFolderLocked(R"(C:\SYS)", true); }

    World Outside() override { return world.With(viewer, registry, nativeWindow); }

    Calls calls;
    TracesAmongCalls viewer{calls};
    WindowAmongCalls nativeWindow{calls, world.window};
    RegistryAmongCalls registry{calls, world.registry};
};

} // namespace zy::test
