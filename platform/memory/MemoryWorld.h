#pragma once

#include "platform/World.h"
#include "platform/memory/MemoryFileSystem.h"
#include "platform/memory/MemoryHelpSystem.h"
#include "platform/memory/MemoryNativeWindow.h"
#include "platform/memory/MemoryRecycleBin.h"
#include "platform/memory/MemoryRegistry.h"
#include "platform/memory/MemoryShellLinks.h"
#include "platform/memory/MemorySystemInfo.h"
#include "platform/memory/MemoryTraceServers.h"
#include "platform/memory/ScriptedDialogs.h"

namespace zy {

// platform/memory: the whole outside world in memory, for tests, benchmarks and fuzzing. It owns one
// implementation of every interface of platform/, each of which can be looked into and be made to fail, and
// calls nothing outside.

/// One of each. At first the system directory "C:\SYS" is an empty folder, the registry is empty, no trace
/// viewer runs, no box is expected, the program is called "zyGlobal", and it was started without an argument.
struct MemoryWorld {
    explicit MemoryWorld(const CodePage& page = Windows1252());

    /// The program's view of this world, which must outlive it.
    World Get();

    const CodePage& codePage;
    MemoryFileSystem files{codePage};
    MemorySystemInfo system;
    MemoryTraceServers traceServers;
    MemoryRecycleBin recycleBin{files};
    MemoryRegistry registry{codePage};
    MemoryShellLinks links;
    ScriptedDialogs dialogs;
    MemoryHelpSystem help;
    MemoryNativeWindow window;
};

} // namespace zy
