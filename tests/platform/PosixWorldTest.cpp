#include "platform/posix/PosixWorld.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

#include "platform/memory/MemoryWorld.h"
#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

constexpr const char* kArguments[] = {"zyGlobal", "@UNITS"};

TEST(PosixWorldTest, GivesItsOwnPartsAndTheScreenGiven) {
    PosixWorld world(2, kArguments);
    MemoryWorld screen;
    const World view = world.Get({.dialogs = screen.dialogs, .help = screen.help, .window = screen.window});
    EXPECT_EQ(&view.files, &world.files);
    EXPECT_EQ(&view.system, &world.system);
    EXPECT_EQ(&view.traceServers, &world.traceServers);
    EXPECT_EQ(&view.recycleBin, &world.recycleBin);
    EXPECT_EQ(&view.registry, &world.registry);
    EXPECT_EQ(&view.links, &world.links);
    EXPECT_EQ(&view.dialogs, &screen.dialogs);
    EXPECT_EQ(&view.help, &screen.help);
    EXPECT_EQ(&view.window, &screen.window);
    EXPECT_EQ(&view.codePage, &Windows1252());
    EXPECT_EQ(view.system.CommandLine(), "@UNITS");
}

TEST(PosixWorldTest, FindsItsFilesInItsSystemDirectory) {
    const TemporaryFolder folder;
    folder.Put("ZYRules.sys", "");
    const EnvironmentVariable named("ZYSETUP_SYSTEM_DIR", folder.Path().string());
    PosixWorld world(2, kArguments);
    EXPECT_TRUE(world.files.Exists(world.system.SystemDirectory() + R"(\ZYRULES.SYS)"));
}

TEST(PosixWorldTest, FailsToWriteBeyondTheUsersLimitAndLivesOn) {
    const TemporaryFolder folder;
    PosixWorld world(2, kArguments);
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limit{.rlim_cur = 4, .rlim_max = before.rlim_max};
    const auto file = world.files.Create(folder.InsidePath("a.sys")).handle;
    ::setrlimit(RLIMIT_FSIZE, &limit);
    const auto error = file->Write("12345");
    ::setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(error, FileError::DiskFull);
}

} // namespace
} // namespace zy::test
