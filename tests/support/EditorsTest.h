#pragma once

#include "support/FakeEditors.h"
#include "support/ProgramTest.h"

namespace zy::test {

/// A program whose users editor, units editor, placement and size hook are fakes; their calls and the traces
/// come in one list.
class EditorsTest : public ProgramTest {
  protected:
    EditorsTest() {
        options = {.security = &security, .units = &units, .placement = &placement, .minSize = &minSize};
    }

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
                .registry = outside.registry,
                .links = outside.links,
                .dialogs = outside.dialogs,
                .help = outside.help,
                .window = outside.window,
                .codePage = outside.codePage};
    }

    Calls calls;
    FakeSecurityEditor security{calls};
    FakeUnitsEditor units{calls};
    FakePlacement placement{calls};
    FakeMinSizeHook minSize{calls};
    TracesAmongCalls viewer{calls};
};

} // namespace zy::test
