#pragma once

#include "platform/CodePage.h"
#include "platform/Dialogs.h"
#include "platform/FileSystem.h"
#include "platform/RecycleBin.h"
#include "platform/SystemInfo.h"
#include "platform/TraceServers.h"

namespace zy {

/// The outside world, as one program sees it. Whoever builds the program owns the parts and outlives it.
struct World {
    FileSystem& files;
    SystemInfo& system;
    TraceServers& traceServers;
    RecycleBin& recycleBin;
    Dialogs& dialogs;
    const CodePage& codePage;
};

} // namespace zy
