#include "platform/posix/PosixWorld.h"

#include <csignal>

namespace zy {

PosixWorld::PosixWorld(int argumentCount, const char* const* arguments)
    : system(argumentCount, arguments, codePage) {
    std::signal(SIGXFSZ, SIG_IGN);
}

World PosixWorld::Get(const ScreenWorld& screen) {
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
