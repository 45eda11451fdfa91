#pragma once

#include "platform/PatientTraceServers.h"
#include "platform/World.h"
#include "platform/windows/AnsiCodePage.h"
#include "platform/windows/WindowsFileSystem.h"
#include "platform/windows/WindowsJournals.h"
#include "platform/windows/WindowsRecycleBin.h"
#include "platform/windows/WindowsRegistry.h"
#include "platform/windows/WindowsShellLinks.h"
#include "platform/windows/WindowsSystemInfo.h"
#include "platform/windows/WindowsTraceServers.h"

namespace zy {

// platform/windows: the operating system below the program on Windows. It owns the files, the recycle bin,
// the registry, the links, the journals, what is known of the system, and the trace channel; it alone
// includes headers of the operating system, and calls nothing of the program but the interfaces and the code
// page in platform/.
//
// Text inside is in the system's ANSI code page: the system's calls for bytes take it as it is.

/// The world of the real program, but for the part that the window toolkit supplies.
struct WindowsWorld {
    /// The program's view of this world, which must outlive it.
    World Get(const ScreenWorld& screen);

    const CodePage& codePage = AnsiCodePage();
    WindowsSystemInfo system;
    WindowsFileSystem files{system.Folder()};
    WindowsTraceServers traceViewers{codePage};
    PatientTraceServers traceServers{traceViewers};
    WindowsRecycleBin recycleBin;
    WindowsRegistry registry;
    WindowsShellLinks links;
    WindowsJournals journals;
};

} // namespace zy
