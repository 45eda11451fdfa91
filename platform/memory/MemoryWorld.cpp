#include "platform/memory/MemoryWorld.h"

namespace zy {

MemoryWorld::MemoryWorld(const CodePage& page) : codePage(page) {
    files.AddFolder(system.SystemDirectory());
}

World MemoryWorld::Get() {
    return {.files = files,
            .system = system,
            .traceServers = traceServers,
            .recycleBin = recycleBin,
            .registry = registry,
            .links = links,
            .dialogs = dialogs,
            .help = help,
            .window = window,
            .codePage = codePage};
}

} // namespace zy
