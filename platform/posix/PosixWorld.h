#pragma once

#include "platform/PatientTraceServers.h"
#include "platform/World.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/PosixJournals.h"
#include "platform/posix/PosixRecycleBin.h"
#include "platform/posix/PosixRegistry.h"
#include "platform/posix/PosixShellLinks.h"
#include "platform/posix/PosixSystemInfo.h"
#include "platform/posix/PosixTraceServers.h"

namespace zy {

// platform/posix: the operating system below the program on Linux. It owns the files, the recycle bin, the
// registry, the links, the journals, what is known of the system, and the trace channel; it alone includes
// headers of the operating system and of GLib, and calls nothing of the program but the interfaces and the
// code page in platform/.

/// The world of the real program, but for the part that the window toolkit supplies.
struct PosixWorld {
    /// Takes the arguments of main(). From here on a file that grows beyond the user's limit is a failed
    /// write instead of the end of the process.
    PosixWorld(int argumentCount, const char* const* arguments);

    /// Has nothing that the window toolkit waits for keep it from starting.
    void ReadyForToolkit();
    /// Whether the session bus was left out by that, and the screen readers with it.
    bool IsWithoutBus() const { return isWithoutBus_; }

    /// The program's view of this world, which must outlive it.
    World Get(const ScreenWorld& screen);

    const CodePage& codePage = Windows1252();
    PosixSystemInfo system;
    PosixFileSystem files{codePage, system.KnownFolders()};
    PosixTraceServers traceViewers{codePage};
    PatientTraceServers traceServers{traceViewers};
    PosixRecycleBin recycleBin{codePage, system.KnownFolders()};
    PosixRegistry registry{codePage};
    PosixShellLinks links{codePage};
    PosixJournals journals;

  private:
    bool isWithoutBus_ = false;
};

} // namespace zy
