#include "platform/posix/PosixWorld.h"

#include <csignal>

namespace zy {

PosixWorld::PosixWorld(int argumentCount, const char* const* arguments)
    : system(argumentCount, arguments, codePage) {
    std::signal(SIGXFSZ, SIG_IGN);
}

World PosixWorld::Get(const ScreenWorld& screen) {
    return WorldOf(*this, screen);
}

} // namespace zy
