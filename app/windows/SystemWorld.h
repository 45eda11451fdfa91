#pragma once

#include "platform/windows/CrashNotes.h"
#include "platform/windows/MemoryDumps.h"
#include "platform/windows/WindowsWorld.h"

namespace zy {

/// The operating system that the program runs on.
struct SystemWorld : WindowsWorld {
    /// The arguments are not needed: the system itself gives the command line.
    SystemWorld(int /*argumentCount*/, const char* const* /*arguments*/) {}

    /// The toolkit waits for nobody there.
    void ReadyForToolkit() {}
    static bool IsWithoutBus() { return false; }
};

} // namespace zy
