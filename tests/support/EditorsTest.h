#pragma once

#include "support/FakeEditors.h"
#include "support/ProgramTest.h"

namespace zy::test {

/// A program whose users editor, units editor and placement are fakes; their calls and the traces come in one
/// list.
class EditorsTest : public ProgramTest {
  protected:
    EditorsTest() { options = {.security = &security, .units = &units, .placement = &placement}; }

    /// Starts the program as ProgramTest does and forgets the calls of the start.
    void StartAndForget(std::string_view commandLine) {
        Start(commandLine);
        calls.clear();
    }

    World Outside() override {
        World outside = world.Get();
        return {.files = outside.files,
                .system = outside.system,
                .traceServers = viewer,
                .recycleBin = outside.recycleBin,
                .dialogs = outside.dialogs,
                .codePage = outside.codePage};
    }

    Calls calls;
    FakeSecurityEditor security{calls};
    FakeUnitsEditor units{calls};
    FakePlacement placement{calls};
    TracesAmongCalls viewer{calls};
};

} // namespace zy::test
