#include "platform/posix/MemoryDumps.h"

#include <sys/prctl.h>
#include <sys/resource.h>

namespace zy {

void ForbidMemoryDumps() {
    const rlimit none{.rlim_cur = 0, .rlim_max = 0};
    ::setrlimit(RLIMIT_CORE, &none);
    // A program that takes the system's dumps gets them whatever that limit says.
    ::prctl(PR_SET_DUMPABLE, 0);
}

} // namespace zy
