#include "platform/memory/MemoryWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zy::test {
namespace {

using ::testing::IsEmpty;

TEST(MemoryWorldTest, GivesItsOwnParts) {
    MemoryWorld world;
    const World view = world.Get();
    EXPECT_EQ(&view.files, &world.files);
    EXPECT_EQ(&view.system, &world.system);
    EXPECT_EQ(&view.traceServers, &world.traceServers);
    EXPECT_EQ(&view.recycleBin, &world.recycleBin);
    EXPECT_EQ(&view.registry, &world.registry);
    EXPECT_EQ(&view.links, &world.links);
    EXPECT_EQ(&view.dialogs, &world.dialogs);
    EXPECT_EQ(&view.help, &world.help);
    EXPECT_EQ(&view.window, &world.window);
    EXPECT_EQ(&view.codePage, &Windows1252());
}

TEST(MemoryWorldTest, GivesOtherPartsInPlaceOfItsOwn) {
    MemoryWorld world;
    MemoryRegistry registry(world.codePage);
    MemoryTraceServers viewers;
    const World view = world.With(viewers, registry);
    EXPECT_EQ(&view.registry, &registry);
    EXPECT_EQ(&view.traceServers, &viewers);
    EXPECT_EQ(&view.files, &world.files);
    EXPECT_EQ(&view.window, &world.window);
}

TEST(MemoryWorldTest, StartsWithAnEmptySystemDirectory) {
    MemoryWorld world;
    EXPECT_EQ(world.system.SystemDirectory(), R"(C:\SYS)");
    EXPECT_THAT(world.files.Names(R"(C:\SYS)"), IsEmpty());
    EXPECT_EQ(world.files.Create(R"(C:\SYS\a.sys)").error, FileError::None);
}

TEST(MemoryWorldTest, StartsWithTheProgramAsItIsUsually) {
    MemoryWorld world;
    EXPECT_EQ(world.system.ExecutableName(), "zyGlobal");
    EXPECT_EQ(world.system.CommandLine(), "");
    EXPECT_EQ(world.system.DecimalSeparator(), '.');
    EXPECT_FALSE(world.traceServers.GetRunning("ZYDebug.Application"));
}

TEST(MemoryWorldTest, SaysOfTheSystemWhatItIsTold) {
    MemoryWorld world;
    world.system.SetSystemDirectory(R"(D:\Other)");
    world.system.SetExecutableName("other");
    world.system.SetCommandLine("@UNITS");
    world.system.SetExecutableFolder(R"(D:\Programs)");
    world.system.SetDecimalSeparator(',');
    SystemInfo& system = world.Get().system;
    EXPECT_EQ(system.SystemDirectory(), R"(D:\Other)");
    EXPECT_EQ(system.ExecutableName(), "other");
    EXPECT_EQ(system.CommandLine(), "@UNITS");
    EXPECT_EQ(system.ExecutableFolder(), R"(D:\Programs)");
    EXPECT_EQ(system.DecimalSeparator(), ',');
}

TEST(MemoryWorldTest, RecyclesFilesOfItsOwnDisk) {
    MemoryWorld world;
    world.files.Put(R"(C:\SYS\a.sys)", "x");
    EXPECT_EQ(world.Get().recycleBin.Delete(std::string_view("C:\\SYS\\a.sys\0\0", 14)), 0);
    EXPECT_EQ(world.files.Get(R"(C:\SYS\a.sys)"), std::nullopt);
}

} // namespace
} // namespace zy::test
