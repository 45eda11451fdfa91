#include "platform/posix/PosixWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <string>

#include "RecyclePlaces.h"
#include "platform/memory/MemoryWorld.h"
#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

constexpr const char* kArguments[] = {"zyGlobal", "@UNITS"};

TEST(PosixWorldTest, GivesItsOwnPartsAndTheScreenGiven) {
    PosixWorld world(2, kArguments);
    MemoryWorld screen;
    const World view = world.Get(
        {.dialogs = screen.dialogs, .help = screen.help, .window = screen.window, .paper = screen.paper});
    EXPECT_EQ(&view.files, &world.files);
    EXPECT_EQ(&view.system, &world.system);
    EXPECT_EQ(&view.traceServers, &world.traceServers);
    EXPECT_EQ(&view.recycleBin, &world.recycleBin);
    EXPECT_EQ(&view.registry, &world.registry);
    EXPECT_EQ(&view.links, &world.links);
    EXPECT_EQ(&view.dialogs, &screen.dialogs);
    EXPECT_EQ(&view.help, &screen.help);
    EXPECT_EQ(&view.window, &screen.window);
    EXPECT_EQ(&view.paper, &screen.paper);
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

/// In capitals, as the program names the table of users.
std::string TablePath(PosixWorld& world) {
    return world.codePage.UCase(world.system.SystemDirectory() + R"(\ZYSECURE.DBF)");
}

/// The table's bytes, read by that path.
std::string Table(PosixWorld& world) {
    EXPECT_EQ(world.files.Locate(TablePath(world)), FileError::None);
    const auto opened = world.files.OpenForReading(TablePath(world));
    std::string bytes(100, ' ');
    bytes.resize(opened.handle ? opened.handle->Read(bytes) : 0);
    return bytes;
}

/// The table that a program finds whose system directory is given so.
std::string TableIn(const std::string& systemDirectory) {
    const EnvironmentVariable named("ZYSETUP_SYSTEM_DIR", systemDirectory);
    PosixWorld world(2, kArguments);
    return Table(world);
}

TEST(PosixWorldTest, ReachesItsSystemDirectoryInCapitalsHoweverThatIsGiven) {
    const TemporaryFolder folder;
    folder.AddFolder("w/sys");
    folder.Put("w/sys/ZYSECURE.DBF", "users");
    folder.AddFolder("W/SYS");
    folder.AddFolder("w/SYS");
    std::filesystem::create_directory_symlink("w", folder.Path("link"));
    for (const char* name : {"w/sys", "w/sys/", "/w//sys//", "./w/./sys/.", "w/../w/sys", "link/sys"}) {
        EXPECT_EQ(TableIn(folder.Path().string() + '/' + name), "users") << name;
    }
}

TEST(PosixWorldTest, ReachesASystemDirectoryThatIsGivenFromTheCurrentFolderOn) {
    const TemporaryFolder folder;
    folder.AddFolder("w/sys");
    folder.Put("w/sys/ZYSECURE.DBF", "users");
    folder.AddFolder("w/SYS");
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path("w"));
    EXPECT_EQ(TableIn("sys"), "users");
    EXPECT_EQ(TableIn("../w/sys"), "users");
    std::filesystem::current_path(before);
}

TEST(PosixWorldTest, ReachesTheUsualSystemDirectoryOfOneUserBesideAnothersOfTheSameName) {
    const TemporaryFolder folder;
    for (const char* user : {"ANNA", "Anna", "anna"}) {
        folder.AddFolder(std::string(user) + "/zysetup/system");
        folder.Put(std::string(user) + "/zysetup/system/ZYSECURE.DBF", user);
    }
    const EnvironmentVariable none("ZYSETUP_SYSTEM_DIR", std::nullopt);
    const EnvironmentVariable data("XDG_DATA_HOME", folder.Path("Anna"));
    PosixWorld world(2, kArguments);
    EXPECT_EQ(Table(world), "Anna");
}

TEST(PosixWorldTest, MakesNoFolderBeforeItIsAskedForOne) {
    const TemporaryFolder folder;
    const EnvironmentVariable none("ZYSETUP_SYSTEM_DIR", std::nullopt);
    const EnvironmentVariable data("XDG_DATA_HOME", folder.Path("data"));
    const EnvironmentVariable state("XDG_STATE_HOME", folder.Path("state"));
    PosixWorld world(2, kArguments);
    EXPECT_FALSE(std::filesystem::exists(folder.Path("data")));
    EXPECT_NE(world.system.StateFolder(), "");
    EXPECT_FALSE(std::filesystem::exists(folder.Path("state")));
}

TEST(PosixWorldTest, ReachesItsStateFolderHoweverThatIsCalledAndWhateverStandsBesideIt) {
    for (const char* name : {"state", "My State", "Gr\u00F6\u00DFe", "./state/../x/", "a//b"}) {
        const TemporaryFolder folder;
        folder.AddFolder("STATE/ZYSETUP");
        folder.AddFolder("x/ZYSETUP");
        const EnvironmentVariable state("XDG_STATE_HOME", folder.Path().string() + '/' + name);
        std::filesystem::create_directories(folder.Path(name));
        PosixWorld world(2, kArguments);
        const auto kept = world.codePage.UCase(world.system.StateFolder()) + R"(\BACKUPS)";
        EXPECT_EQ(world.files.MakePrivateFolder(kept), FileError::None);
        EXPECT_TRUE(std::filesystem::is_directory(folder.Path(name) + "/zysetup/BACKUPS")) << name;
    }
}

TEST(PosixWorldTest, RecyclesTheTableThatItReads) {
    const RecyclePlaces places;
    const TemporaryFolder folder(RecyclePlaces::Home());
    folder.AddFolder("w/sys");
    folder.Put("w/sys/ZYSECURE.DBF", "users");
    folder.AddFolder("w/SYS");
    folder.Put("w/SYS/ZYSECURE.DBF", "another's");
    const EnvironmentVariable named("ZYSETUP_SYSTEM_DIR", folder.Path("w/sys"));
    PosixWorld world(2, kArguments);
    EXPECT_EQ(world.recycleBin.Delete(TablePath(world) + std::string(2, '\0')), 0);
    EXPECT_THAT(RecyclePlaces::BytesInDesktopTrash(), ::testing::ElementsAre("users"));
}

TEST(PosixWorldTest, ShowsThePathsThatItPutsTogetherInCapitalsAsTheSystemHasThem) {
    const TemporaryFolder folder;
    folder.AddFolder("Gr\u00F6\u00DFe/sys");
    const auto outside = folder.Path("Gr\u00F6\u00DFe/sys");
    const EnvironmentVariable named("ZYSETUP_SYSTEM_DIR", outside);
    PosixWorld world(2, kArguments);
    EXPECT_EQ(world.codePage.ToUtf8(world.files.DisplayPath(TablePath(world))), outside + "/ZYSECURE.DBF");
}

TEST(PosixWorldTest, KnowsTheFolderOfTheRunningProgram) {
    PosixWorld world(2, kArguments);
    const auto program = std::filesystem::read_symlink("/proc/self/exe");
    const auto known = world.system.KnownFolders();
    ASSERT_FALSE(known.empty());
    EXPECT_EQ(known.back().outside, program.parent_path());
    EXPECT_EQ(known.back().inside, world.system.ExecutableFolder());
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
