#include "platform/windows/WindowsWorld.h"

namespace zy {

World WindowsWorld::Get(const ScreenWorld& screen) {
    return {.files = files,
            .system = system,
            .traceServers = traceServers,
            .recycleBin = recycleBin,
            .registry = registry,
            .links = links,
            .dialogs = screen.dialogs,
            .help = screen.help,
            .window = screen.window,
            .codePage = codePage};
}

} // namespace zy
