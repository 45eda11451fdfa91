#include "platform/posix/PosixWorld.h"

#include <csignal>

namespace zy {

PosixWorld::PosixWorld(int argumentCount, const char* const* arguments)
    : system(argumentCount, arguments, codePage) {
    std::signal(SIGXFSZ, SIG_IGN);
}

World PosixWorld::Get(Dialogs& dialogs) {
    return {.files = files,
            .system = system,
            .traceServers = traceServers,
            .recycleBin = recycleBin,
            .dialogs = dialogs,
            .codePage = codePage};
}

} // namespace zy
