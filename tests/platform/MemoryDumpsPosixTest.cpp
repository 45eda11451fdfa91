#include "platform/posix/MemoryDumps.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace zy::test {
namespace {

/// In a process of its own, since there is no way back.
[[noreturn]] void EndWithWhatIsAllowed() {
    ForbidMemoryDumps();
    rlimit most{.rlim_cur = 1, .rlim_max = 1};
    ::getrlimit(RLIMIT_CORE, &most);
    const bool allowed = ::prctl(PR_GET_DUMPABLE) != 0 || most.rlim_cur != 0 || most.rlim_max != 0;
    ::_exit(allowed ? 1 : 0);
}

TEST(MemoryDumps, AreNeitherWrittenNorTakenByOthersOnceTheyAreForbidden) {
    ASSERT_EQ(::prctl(PR_GET_DUMPABLE), 1) << "of the test itself";
    EXPECT_EXIT(EndWithWhatIsAllowed(), ::testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace zy::test
