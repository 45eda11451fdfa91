#include "platform/posix/PosixWorld.h"

#include <csignal>

#include "platform/posix/SessionBus.h"

namespace zy {

PosixWorld::PosixWorld(int argumentCount, const char* const* arguments)
    : system(argumentCount, arguments, codePage) {
    std::signal(SIGXFSZ, SIG_IGN);
}

void PosixWorld::ReadyForToolkit() {
    isWithoutBus_ = !traceViewers.HasBus() && LeaveOutSilentBus(kBusPatience);
}

World PosixWorld::Get(const ScreenWorld& screen) {
    return WorldOf(*this, screen);
}

} // namespace zy
